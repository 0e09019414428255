#pragma once

#include <concepts>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/error.h"

namespace tarvane {

// A value of a column: Null, whole number, double or text (UTF-8). Booleans are the whole numbers -1 and 0.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

// A fault of the store, told so that it can be shown: which file, which statement or field, what is wrong.
class DatabaseError : public UserError {
  public:
    // What callers tell apart; anything else carries the engine's own number.
    enum : int {
        kOverflow = 6,
        kNoCurrentRecord = 3021,
        kFileMissing = 3024,
        kNotUpdating = 3020,
        kNoSuchTable = 3078,
        kDeleted = 3167,
        kNoSuchField = 3265,
        kNotADatabase = 3343,
        kClosed = 3420,
        kDataType = 3421,
    };
    DatabaseError(int number, const std::string& message) : UserError(message), number_(number) {}
    int Number() const { return number_; }

  private:
    int number_;
};

class Recordset;

// A statement made once and run many times; parameters are bound by place, from 1.
class Statement {
  public:
    Statement(Statement&&) noexcept;
    Statement& operator=(Statement&&) noexcept;
    ~Statement();

    void Bind(int index, const Value& value);
    // The next row, or false at the end; a statement that is no query runs and gives false.
    bool Step();
    void Reset();
    int ColumnCount() const;
    std::string ColumnName(int column) const;
    Value Column(int column) const;  // from 0
    bool IsNull(int column) const;
    std::int64_t Int(int column) const;  // Null reads 0
    double Double(int column) const;     // Null reads 0
    std::string Text(int column) const;  // Null reads empty

  private:
    friend class Database;
    struct Impl;
    explicit Statement(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

// One database file of ours (SQLite under the tables' own file names). Table and column names don't tell case apart.
class Database {
  public:
    enum class Mode { Open, Create };

    // Throws DatabaseError if the file is missing (Mode::Open) or there already (Mode::Create), can't be opened, or
    // isn't a database of ours; the message names the file and what to do.
    explicit Database(const std::filesystem::path& path, Mode mode = Mode::Open);
    Database(Database&&) noexcept;
    Database& operator=(Database&&) noexcept;
    ~Database();

    // Writes the side file back and closes, so that the file alone may be copied or deleted. Statements and recordsets
    // that are still about throw DatabaseError when they are used.
    void Close();
    bool IsOpen() const;
    const std::filesystem::path& Path() const;

    Statement Prepare(std::string_view sql);
    void Execute(std::string_view sql);
    void Execute(std::string_view sql, const std::vector<Value>& parameters);

    bool HasTable(std::string_view table);
    std::vector<std::string> TableNames();
    // The columns in their order; empty if there is no such table.
    std::vector<std::string> ColumnNames(std::string_view table);
    int FieldCount(std::string_view table);

    // Rows of a query as an updatable set. table names the table that Edit, AddNew and Delete act on; where is a
    // condition with ? for parameters, empty for all rows; order is an ORDER BY list or empty for stored order.
    Recordset OpenRecordset(std::string_view table, std::string_view where = {},
                            const std::vector<Value>& parameters = {}, std::string_view order = {});

    std::int64_t LastInsertId() const;

    // A compacted copy of a closed database; target must not exist.
    static void Compact(const std::filesystem::path& source, const std::filesystem::path& target);

  private:
    friend class Recordset;
    friend class Transaction;
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

// What is written between its making and Commit is written together or not at all. They nest: only the outermost
// counts.
class Transaction {
  public:
    explicit Transaction(Database& database);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();  // rolls back unless committed
    void Commit();

  private:
    Database& database_;
    bool done_ = false;
};

// The rows of one table that met a condition when it was opened, with the verbs of the domain. The set of rows is fixed
// at opening (rows added through it come at the end); values are read when the row becomes current. After Delete there
// is no current row until the next move.
class Recordset {
  public:
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    bool EndOfFile() const;    // EOF
    bool BeginOfFile() const;  // BOF
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    int RecordCount() const;

    // The value of a column in the current row, or the one set since Edit or AddNew. Throws DatabaseError for a column
    // that isn't there.
    Value Get(std::string_view field) const;
    bool IsNull(std::string_view field) const;
    std::int64_t GetInt(std::string_view field, std::int64_t ifNull = 0) const;
    double GetDouble(std::string_view field, double ifNull = 0) const;
    std::string GetText(std::string_view field, std::string_view ifNull = {}) const;
    bool GetBool(std::string_view field, bool ifNull = false) const;

    void Edit();
    void AddNew();
    // Stored as the declared type of the column demands: BYTE, INTEGER (16 bit) and LONG round a half to the even
    // number, TEXT(n) is cut to n characters, BOOLEAN is -1 or 0, DATE is a text yyyy-mm-dd. A number outside the type
    // is a DatabaseError. Null fits every type.
    void Set(std::string_view field, const Value& value);
    template <std::same_as<char> T>
    void Set(std::string_view field, T letter) = delete;  // would store the letter's number: use std::string(1, letter)
    void SetBool(std::string_view field, bool value);
    void Update();  // ends Edit or AddNew; without it a change is lost
    void Delete();
    void Close();

  private:
    friend class Database;
    struct Impl;
    explicit Recordset(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

}  // namespace tarvane
