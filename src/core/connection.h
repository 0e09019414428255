#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "core/columntype.h"
#include "core/database.h"

namespace tarvane {

// What the store's own files share; nobody outside this layer includes it.

struct TableInfo {
    struct Column {
        std::string name;
        ColumnType type;
    };
    std::string name;  // as created
    std::vector<Column> columns;
    std::map<std::string, int, LessIgnoreCase> index;

    // The place of a column, from 0; -1 if there is none.
    int Find(std::string_view column) const {
        const auto found = index.find(column);
        return found == index.end() ? -1 : found->second;
    }
};

// An open file. Statements share it, and closing it ends them all.
class Connection {
  public:
    Connection(const std::filesystem::path& path, bool create);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { Close(); }

    void Close();
    bool IsOpen() const { return handle_ != nullptr; }
    sqlite3* Handle() const { return handle_; }
    const std::filesystem::path& Path() const { return path_; }
    // The file's name without its folders, for messages.
    std::string Name() const { return path_.filename().string(); }

    // Runs one statement without parameters or rows.
    void Run(const char* sql);
    // The columns of a table, null if there is none. Good until the table is altered.
    std::shared_ptr<const TableInfo> Table(std::string_view table);
    void ForgetTables() { tables_.clear(); }

    // Throws what the engine last said, with the file's name and the statement.
    [[noreturn]] void Fail(std::string_view sql) const;

    int transactionDepth = 0;

  private:
    void Open(bool create);
    std::int64_t SchemaVersion();

    std::filesystem::path path_;
    sqlite3* handle_ = nullptr;
    std::int64_t schemaVersion_ = -1;
    std::map<std::string, std::shared_ptr<const TableInfo>, LessIgnoreCase> tables_;
};

// A prepared statement of the engine.
class Query {
  public:
    Query() = default;
    Query(std::shared_ptr<Connection> connection, std::string_view sql);
    Query(Query&& other) noexcept { *this = std::move(other); }
    Query& operator=(Query&& other) noexcept;
    ~Query() { Finalize(); }

    void Bind(int index, const Value& value);
    bool Step();
    void Reset();
    bool IsPrepared() const { return statement_ != nullptr; }
    Value Column(int column) const;
    sqlite3_stmt* Handle() const;

  private:
    void Finalize();

    std::shared_ptr<Connection> connection_;
    sqlite3_stmt* statement_ = nullptr;
};

struct Database::Impl {
    std::shared_ptr<Connection> connection;

    // The connection if it is open; throws DatabaseError if it isn't.
    Connection& Open() const;
};

// A name as SQL takes it, whatever it holds.
std::string Quoted(std::string_view name);

}  // namespace tarvane
