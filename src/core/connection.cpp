#include "core/connection.h"

#include <fmt/core.h>

#include <array>
#include <fstream>
#include <utility>

namespace tarvane {

namespace {

// Marks a file as ours, so that another program's database is refused before anything is written to it.
constexpr std::int64_t kApplicationId = 0x54525642;

constexpr int kBusyMilliseconds = 5000;

[[noreturn]] void NotOurs(const std::filesystem::path& path, std::string_view what) {
    throw DatabaseError(DatabaseError::kNotADatabase,
                        fmt::format("{} {} Put back a copy of the file or choose another one.", path.string(), what));
}

// Tells a file of another kind from a damaged one of ours by its first bytes.
void CheckHeader(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw DatabaseError(DatabaseError::kFileMissing,
                            fmt::format("The database {} is not there. Check the folder and the name.", path.string()));
    std::array<char, 20> head{};
    std::ifstream in(path, std::ios::binary);
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    const std::string_view bytes(head.data(), static_cast<std::size_t>(in.gcount()));
    if (bytes.substr(0, 16) == std::string_view("SQLite format 3\0", 16)) return;
    const std::string_view kind = bytes.substr(std::min<std::size_t>(4, bytes.size()));
    if (kind.substr(0, 12) == "Standard Jet" || kind.substr(0, 12) == "Standard ACE")
        NotOurs(path, "is an Access database, not one of this program's.");
    NotOurs(path, bytes.empty() ? "is empty." : "is not a database.");
}

int ErrorNumber(sqlite3* handle) {
    const std::string_view message = sqlite3_errmsg(handle);
    if (message.find("no such table") != std::string_view::npos) return DatabaseError::kNoSuchTable;
    if (message.find("no such column") != std::string_view::npos) return DatabaseError::kNoSuchField;
    const int code = sqlite3_errcode(handle);
    return code == SQLITE_NOTADB || code == SQLITE_CORRUPT ? DatabaseError::kNotADatabase : code;
}

}  // namespace

std::string Quoted(std::string_view name) {
    std::string quoted = "\"";
    for (const char c : name) {
        quoted += c;
        if (c == '"') quoted += c;
    }
    return quoted + '"';
}

Connection::Connection(const std::filesystem::path& path, bool create) : path_(path) {
    std::error_code error;
    if (create && std::filesystem::exists(path, error))
        throw DatabaseError(SQLITE_CANTOPEN, fmt::format("{} is already there; it was left as it is.", path.string()));
    if (!create) CheckHeader(path);
    try {
        Open(create);
    } catch (...) {
        sqlite3_close_v2(handle_);
        throw;
    }
}

void Connection::Open(bool create) {
    // No two threads ever share a connection, so the engine's own lock is left out.
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (create ? SQLITE_OPEN_CREATE : 0);
    if (sqlite3_open_v2(path_.string().c_str(), &handle_, flags, nullptr) != SQLITE_OK)
        throw DatabaseError(SQLITE_CANTOPEN,
                            fmt::format("The database {} can't be opened: {}. Check that you may write to its folder.",
                                        path_.string(), sqlite3_errmsg(handle_)));
    sqlite3_busy_timeout(handle_, kBusyMilliseconds);
    // A misspelt "name" must be an error, not a text.
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    if (create) Run(fmt::format("PRAGMA application_id = {}", kApplicationId).c_str());
    SchemaVersion();  // the first look into the file: damage shows here
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, "PRAGMA application_id", -1, &statement, nullptr) != SQLITE_OK) Fail("open");
    const bool ours = sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_int64(statement, 0) == kApplicationId;
    sqlite3_finalize(statement);
    if (!ours) NotOurs(path_, "is a database of another program.");
    Run("PRAGMA journal_mode = WAL");
    Run("PRAGMA synchronous = NORMAL");
}

void Connection::Close() {
    if (handle_ == nullptr) return;
    while (sqlite3_stmt* open = sqlite3_next_stmt(handle_, nullptr)) sqlite3_finalize(open);
    if (sqlite3_get_autocommit(handle_) == 0) sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_wal_checkpoint_v2(handle_, nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    sqlite3_close_v2(handle_);
    handle_ = nullptr;
    tables_.clear();
}

void Connection::Fail(std::string_view sql) const {
    std::string_view shown = sql;
    if (shown.size() > 200) shown = Utf8Truncate(shown, 200);
    throw DatabaseError(ErrorNumber(handle_),
                        fmt::format("{}: {} (in \"{}\")", path_.string(), sqlite3_errmsg(handle_), shown));
}

void Connection::Run(const char* sql) {
    if (sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fail(sql);
}

std::int64_t Connection::SchemaVersion() {
    constexpr const char* kSql = "PRAGMA schema_version";
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, kSql, -1, &statement, nullptr) != SQLITE_OK) Fail(kSql);
    const bool row = sqlite3_step(statement) == SQLITE_ROW;
    const std::int64_t version = row ? sqlite3_column_int64(statement, 0) : -1;
    sqlite3_finalize(statement);
    if (!row) Fail(kSql);
    return version;
}

std::shared_ptr<const TableInfo> Connection::Table(std::string_view table) {
    const std::int64_t version = SchemaVersion();
    if (version != schemaVersion_) tables_.clear();
    schemaVersion_ = version;
    const auto known = tables_.find(table);
    if (known != tables_.end()) return known->second;

    constexpr const char* kSql =
        "SELECT m.name, c.name, c.type, c.pk FROM sqlite_master m, pragma_table_info(m.name) c "
        "WHERE m.type = 'table' AND m.name = ? COLLATE NOCASE ORDER BY c.cid";
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, kSql, -1, &statement, nullptr) != SQLITE_OK) Fail(kSql);
    sqlite3_bind_text(statement, 1, table.data(), static_cast<int>(table.size()), SQLITE_TRANSIENT);
    const auto text = [statement](int column) {
        const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        return std::string(bytes == nullptr ? "" : bytes);
    };
    auto info = std::make_shared<TableInfo>();
    while (sqlite3_step(statement) == SQLITE_ROW) {
        info->name = text(0);
        info->index.emplace(text(1), static_cast<int>(info->columns.size()));
        info->columns.push_back({text(1), ParseColumnType(text(2), sqlite3_column_int(statement, 3) != 0)});
    }
    const bool failed = sqlite3_finalize(statement) != SQLITE_OK;
    if (failed) Fail(kSql);
    if (info->columns.empty()) return nullptr;
    tables_.emplace(std::string(table), info);
    return info;
}

Query::Query(std::shared_ptr<Connection> connection, std::string_view sql) : connection_(std::move(connection)) {
    if (!connection_ || !connection_->IsOpen()) throw DatabaseError(DatabaseError::kClosed, "The database is closed.");
    const int result = sqlite3_prepare_v3(connection_->Handle(), sql.data(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement_, nullptr);
    if (result != SQLITE_OK) connection_->Fail(sql);
}

Query& Query::operator=(Query&& other) noexcept {
    if (this == &other) return *this;
    Finalize();
    connection_ = std::move(other.connection_);
    statement_ = std::exchange(other.statement_, nullptr);
    return *this;
}

// A closed connection has ended its statements already.
void Query::Finalize() {
    if (statement_ != nullptr && connection_->IsOpen()) sqlite3_finalize(statement_);
    statement_ = nullptr;
}

sqlite3_stmt* Query::Handle() const {
    if (statement_ == nullptr || !connection_->IsOpen())
        throw DatabaseError(DatabaseError::kClosed, "The database was closed while its rows were in use.");
    return statement_;
}

void Query::Bind(int index, const Value& value) {
    sqlite3_stmt* statement = Handle();
    int result = SQLITE_OK;
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        result = sqlite3_bind_int64(statement, index, *whole);
    else if (const auto* number = std::get_if<double>(&value))
        result = sqlite3_bind_double(statement, index, *number);
    else if (const auto* text = std::get_if<std::string>(&value))
        result = sqlite3_bind_text(statement, index, text->data(), static_cast<int>(text->size()), SQLITE_TRANSIENT);
    else
        result = sqlite3_bind_null(statement, index);
    if (result != SQLITE_OK) connection_->Fail(sqlite3_sql(statement));
}

bool Query::Step() {
    sqlite3_stmt* statement = Handle();
    const int result = sqlite3_step(statement);
    if (result == SQLITE_ROW) return true;
    if (result == SQLITE_DONE) return false;
    // A failed statement must not keep the file locked while the error is told.
    const std::string sql = sqlite3_sql(statement);
    try {
        connection_->Fail(sql);
    } catch (...) {
        sqlite3_reset(statement);
        throw;
    }
}

void Query::Reset() {
    sqlite3_reset(Handle());
}

Value Query::Column(int column) const {
    sqlite3_stmt* statement = Handle();
    switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER: return std::int64_t{sqlite3_column_int64(statement, column)};
        case SQLITE_FLOAT: return sqlite3_column_double(statement, column);
        case SQLITE_NULL: return std::monostate{};
        default: break;
    }
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return std::string(bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
}

}  // namespace tarvane
