#include "core/database.h"

#include <fmt/core.h>

#include "core/connection.h"

namespace tarvane {

// ---- Statement

struct Statement::Impl {
    Query query;
};

Statement::Statement(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Statement::Statement(Statement&&) noexcept = default;
Statement& Statement::operator=(Statement&&) noexcept = default;
Statement::~Statement() = default;

void Statement::Bind(int index, const Value& value) {
    impl_->query.Bind(index, value);
}
bool Statement::Step() {
    return impl_->query.Step();
}
void Statement::Reset() {
    impl_->query.Reset();
}
int Statement::ColumnCount() const {
    return sqlite3_column_count(impl_->query.Handle());
}
std::string Statement::ColumnName(int column) const {
    const char* name = sqlite3_column_name(impl_->query.Handle(), column);
    return name == nullptr ? "" : name;
}
Value Statement::Column(int column) const {
    return impl_->query.Column(column);
}
bool Statement::IsNull(int column) const {
    return sqlite3_column_type(impl_->query.Handle(), column) == SQLITE_NULL;
}
std::int64_t Statement::Int(int column) const {
    return sqlite3_column_int64(impl_->query.Handle(), column);
}
double Statement::Double(int column) const {
    return sqlite3_column_double(impl_->query.Handle(), column);
}
std::string Statement::Text(int column) const {
    sqlite3_stmt* statement = impl_->query.Handle();
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (bytes == nullptr) return {};
    return std::string(bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
}

// ---- Database

Connection& Database::Impl::Open() const {
    if (!connection->IsOpen())
        throw DatabaseError(DatabaseError::kClosed, fmt::format("{} is closed.", connection->Path().string()));
    return *connection;
}

Database::Database(const std::filesystem::path& path, Mode mode)
    : impl_(std::make_unique<Impl>(Impl{std::make_shared<Connection>(path, mode == Mode::Create)})) {}
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;
Database::~Database() {
    if (impl_) impl_->connection->Close();
}

void Database::Close() {
    impl_->connection->Close();
}
bool Database::IsOpen() const {
    return impl_->connection->IsOpen();
}
const std::filesystem::path& Database::Path() const {
    return impl_->connection->Path();
}

Statement Database::Prepare(std::string_view sql) {
    impl_->Open();
    return Statement(std::make_unique<Statement::Impl>(Statement::Impl{Query(impl_->connection, sql)}));
}

void Database::Execute(std::string_view sql) {
    Execute(sql, {});
}

void Database::Execute(std::string_view sql, const std::vector<Value>& parameters) {
    impl_->Open();
    Query query(impl_->connection, sql);
    for (std::size_t i = 0; i < parameters.size(); ++i) query.Bind(static_cast<int>(i) + 1, parameters[i]);
    while (query.Step()) {
    }
}

bool Database::HasTable(std::string_view table) {
    return impl_->Open().Table(table) != nullptr;
}

std::vector<std::string> Database::TableNames() {
    impl_->Open();
    Query query(
        impl_->connection,
        "SELECT name FROM sqlite_master WHERE type = 'table' AND substr(name, 1, 7) <> 'sqlite_' ORDER BY rowid");
    std::vector<std::string> names;
    while (query.Step()) names.push_back(std::get<std::string>(query.Column(0)));
    return names;
}

std::vector<std::string> Database::ColumnNames(std::string_view table) {
    std::vector<std::string> names;
    if (const auto info = impl_->Open().Table(table))
        for (const TableInfo::Column& column : info->columns) names.push_back(column.name);
    return names;
}

int Database::FieldCount(std::string_view table) {
    const auto info = impl_->Open().Table(table);
    return info ? static_cast<int>(info->columns.size()) : 0;
}

std::int64_t Database::LastInsertId() const {
    return sqlite3_last_insert_rowid(impl_->Open().Handle());
}

void Database::Compact(const std::filesystem::path& source, const std::filesystem::path& target) {
    std::error_code error;
    if (std::filesystem::exists(target, error))
        throw DatabaseError(SQLITE_CANTOPEN,
                            fmt::format("{} is already there; it was left as it is.", target.string()));
    const auto connection = std::make_shared<Connection>(source, false);
    try {
        Query query(connection, "VACUUM INTO ?");
        query.Bind(1, target.string());
        query.Step();
    } catch (...) {
        std::filesystem::remove(target, error);
        throw;
    }
}

// ---- Transaction

Transaction::Transaction(Database& database) : database_(database) {
    Connection& connection = database_.impl_->Open();
    // The write lock is taken at once, so that a busy file is met here and not half-way through.
    if (connection.transactionDepth == 0) connection.Run("BEGIN IMMEDIATE");
    ++connection.transactionDepth;
}

void Transaction::Commit() {
    if (done_) return;
    Connection& connection = database_.impl_->Open();
    if (connection.transactionDepth == 1) connection.Run("COMMIT");
    --connection.transactionDepth;
    done_ = true;
}

Transaction::~Transaction() {
    if (done_ || !database_.impl_) return;
    Connection& connection = *database_.impl_->connection;
    if (--connection.transactionDepth > 0 || !connection.IsOpen()) return;
    // The engine may have rolled back by itself (a full disk); then there is nothing left to undo.
    sqlite3_exec(connection.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    connection.ForgetTables();
}

}  // namespace tarvane
