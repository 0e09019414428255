#include <fmt/core.h>

#include <algorithm>
#include <optional>

#include "core/connection.h"
#include "core/database.h"

namespace tarvane {

struct Recordset::Impl {
    enum class Mode { Read, Edit, Add };
    struct Change {
        int column;
        Value value;
    };
    struct Row {
        std::int64_t id;
        bool deleted = false;
    };

    Impl(std::shared_ptr<Connection> db, std::string_view name, std::string_view where,
         const std::vector<Value>& parameters, std::string_view order);

    Connection& Open() const;
    int Column(std::string_view field) const;
    const Change* FindChange(int column) const;
    const Value& Read(std::string_view field);
    void Load();
    void SkipDeleted();
    std::int64_t CurrentId() const;
    void WriteEdit();
    void WriteAdd();
    void RunChanges(const std::string& sql, std::optional<std::int64_t> rowid);

    std::shared_ptr<Connection> connection;
    std::shared_ptr<const TableInfo> table;
    std::vector<Row> rows;
    std::size_t at = 0;
    int live = 0;
    Mode mode = Mode::Read;
    std::vector<Change> changes;
    Query select;
    std::vector<Value> values;  // the current row; a copy, so that no read stays open between two calls
    bool loaded = false;
    std::string writeSql;  // the statement of the last Update; a run over a table repeats it
    Query write;
};

Recordset::Impl::Impl(std::shared_ptr<Connection> db, std::string_view name, std::string_view where,
                      const std::vector<Value>& parameters, std::string_view order)
    : connection(std::move(db)), table(connection->Table(name)) {
    if (!table)
        throw DatabaseError(DatabaseError::kNoSuchTable,
                            fmt::format("{} has no table {}.", connection->Path().string(), name));
    std::string sql = fmt::format("SELECT rowid FROM {}", Quoted(table->name));
    if (!where.empty()) sql += fmt::format(" WHERE {}", where);
    // Equal rows stay in stored order, so that the same file always gives the same sequence.
    sql += order.empty() ? std::string(" ORDER BY rowid") : fmt::format(" ORDER BY {}, rowid", order);
    Query query(connection, sql);
    for (std::size_t i = 0; i < parameters.size(); ++i) query.Bind(static_cast<int>(i) + 1, parameters[i]);
    while (query.Step()) rows.push_back({std::get<std::int64_t>(query.Column(0))});
    live = static_cast<int>(rows.size());
}

Connection& Recordset::Impl::Open() const {
    if (!connection || !connection->IsOpen())
        throw DatabaseError(DatabaseError::kClosed, "The recordset or its database is closed.");
    return *connection;
}

int Recordset::Impl::Column(std::string_view field) const {
    const int column = table->Find(field);
    if (column >= 0) return column;
    throw DatabaseError(DatabaseError::kNoSuchField,
                        fmt::format("{}: table {} has no column {}.", Open().Path().string(), table->name, field));
}

const Recordset::Impl::Change* Recordset::Impl::FindChange(int column) const {
    const auto found = std::find_if(changes.begin(), changes.end(),
                                    [column](const Change& change) { return change.column == column; });
    return found == changes.end() ? nullptr : &*found;
}

std::int64_t Recordset::Impl::CurrentId() const {
    Open();
    if (at >= rows.size())
        throw DatabaseError(DatabaseError::kNoCurrentRecord,
                            fmt::format("{}: table {}: there is no current record.", connection->Name(), table->name));
    if (rows[at].deleted)
        throw DatabaseError(DatabaseError::kDeleted,
                            fmt::format("{}: table {}: the record is deleted.", connection->Name(), table->name));
    return rows[at].id;
}

void Recordset::Impl::Load() {
    const std::int64_t id = CurrentId();
    if (loaded) return;
    if (!select.IsPrepared())
        select = Query(connection, fmt::format("SELECT * FROM {} WHERE rowid = ?", Quoted(table->name)));
    select.Bind(1, id);
    if (!select.Step()) {
        select.Reset();
        throw DatabaseError(DatabaseError::kDeleted, fmt::format("{}: table {}: the record was deleted meanwhile.",
                                                                 connection->Name(), table->name));
    }
    values.resize(table->columns.size());
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = select.Column(static_cast<int>(i));
    select.Reset();
    loaded = true;
}

const Value& Recordset::Impl::Read(std::string_view field) {
    const int column = Column(field);
    if (const Change* change = FindChange(column)) return change->value;
    static const Value kNull;
    if (mode == Mode::Add) return kNull;
    Load();
    return values[static_cast<std::size_t>(column)];
}

void Recordset::Impl::SkipDeleted() {
    while (at < rows.size() && rows[at].deleted) ++at;
}

void Recordset::Impl::RunChanges(const std::string& sql, std::optional<std::int64_t> rowid) {
    if (sql != writeSql) {
        write = Query(connection, sql);
        writeSql = sql;
    }
    write.Reset();
    int parameter = 0;
    for (const Change& change : changes) write.Bind(++parameter, change.value);
    if (rowid) write.Bind(++parameter, *rowid);
    write.Step();
    write.Reset();
}

void Recordset::Impl::WriteEdit() {
    if (changes.empty()) return;
    const std::int64_t id = CurrentId();
    std::string sql = fmt::format("UPDATE {} SET ", Quoted(table->name));
    for (const Change& change : changes) {
        if (&change != &changes.front()) sql += ", ";
        sql += Quoted(table->columns[static_cast<std::size_t>(change.column)].name) + " = ?";
    }
    sql += " WHERE rowid = ?";
    loaded = false;
    RunChanges(sql, id);
}

void Recordset::Impl::WriteAdd() {
    std::string columns;
    std::string marks;
    for (const Change& change : changes) {
        if (!columns.empty()) columns += ", ", marks += ", ";
        columns += Quoted(table->columns[static_cast<std::size_t>(change.column)].name);
        marks += '?';
    }
    const std::string what = changes.empty() ? "DEFAULT VALUES" : fmt::format("({}) VALUES ({})", columns, marks);
    RunChanges(fmt::format("INSERT INTO {} {}", Quoted(table->name), what), std::nullopt);
    const bool atEnd = at >= rows.size();
    rows.push_back({sqlite3_last_insert_rowid(connection->Handle())});
    ++live;
    if (atEnd) at = rows.size();
}

// ---- The verbs

Recordset Database::OpenRecordset(std::string_view table, std::string_view where, const std::vector<Value>& parameters,
                                  std::string_view order) {
    impl_->Open();
    return Recordset(std::make_unique<Recordset::Impl>(impl_->connection, table, where, parameters, order));
}

Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::EndOfFile() const {
    return impl_->at >= impl_->rows.size();
}
bool Recordset::BeginOfFile() const {
    return impl_->live == 0;
}
int Recordset::RecordCount() const {
    return impl_->live;
}

void Recordset::MoveFirst() {
    impl_->at = 0;
    impl_->SkipDeleted();
    impl_->loaded = false;
    impl_->mode = Impl::Mode::Read;
    impl_->changes.clear();
}

void Recordset::MoveLast() {
    MoveFirst();
    for (std::size_t i = impl_->rows.size(); i > impl_->at + 1; --i) {
        if (impl_->rows[i - 1].deleted) continue;
        impl_->at = i - 1;
        break;
    }
}

void Recordset::MoveNext() {
    if (impl_->at < impl_->rows.size()) ++impl_->at;
    impl_->SkipDeleted();
    impl_->loaded = false;
    impl_->mode = Impl::Mode::Read;
    impl_->changes.clear();
}

Value Recordset::Get(std::string_view field) const {
    return impl_->Read(field);
}
bool Recordset::IsNull(std::string_view field) const {
    return std::holds_alternative<std::monostate>(impl_->Read(field));
}

std::int64_t Recordset::GetInt(std::string_view field, std::int64_t ifNull) const {
    const Value& value = impl_->Read(field);
    if (std::holds_alternative<std::monostate>(value)) return ifNull;
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
    return std::get<std::int64_t>(ConvertTo({ColumnKind::Long}, value, std::string(field)));
}

double Recordset::GetDouble(std::string_view field, double ifNull) const {
    const Value& value = impl_->Read(field);
    if (std::holds_alternative<std::monostate>(value)) return ifNull;
    return std::get<double>(ConvertTo({ColumnKind::Double}, value, std::string(field)));
}

std::string Recordset::GetText(std::string_view field, std::string_view ifNull) const {
    const Value& value = impl_->Read(field);
    if (std::holds_alternative<std::monostate>(value)) return std::string(ifNull);
    return std::get<std::string>(ConvertTo({ColumnKind::Text}, value, std::string(field)));
}

bool Recordset::GetBool(std::string_view field, bool ifNull) const {
    return GetInt(field, ifNull ? -1 : 0) != 0;
}

void Recordset::Edit() {
    impl_->CurrentId();
    impl_->mode = Impl::Mode::Edit;
    impl_->changes.clear();
}

void Recordset::AddNew() {
    impl_->Open();
    impl_->mode = Impl::Mode::Add;
    impl_->changes.clear();
}

void Recordset::Set(std::string_view field, const Value& value) {
    const int column = impl_->Column(field);
    const TableInfo::Column& info = impl_->table->columns[static_cast<std::size_t>(column)];
    if (impl_->mode == Impl::Mode::Read)
        throw DatabaseError(DatabaseError::kNotUpdating,
                            fmt::format("Table {}: {} was set without Edit or AddNew.", impl_->table->name, info.name));
    const bool isText = info.type.kind == ColumnKind::Text && info.type.size == 0;
    Value converted = isText && std::holds_alternative<std::string>(value)
                          ? value
                          : ConvertTo(info.type, value, fmt::format("{}.{}", impl_->table->name, info.name));
    for (Impl::Change& change : impl_->changes) {
        if (change.column != column) continue;
        change.value = std::move(converted);
        return;
    }
    impl_->changes.push_back({column, std::move(converted)});
}

void Recordset::SetBool(std::string_view field, bool value) {
    Set(field, std::int64_t{value ? -1 : 0});
}

void Recordset::Update() {
    if (impl_->mode == Impl::Mode::Read)
        throw DatabaseError(DatabaseError::kNotUpdating,
                            fmt::format("Table {}: Update without Edit or AddNew.", impl_->table->name));
    if (impl_->mode == Impl::Mode::Edit)
        impl_->WriteEdit();
    else
        impl_->WriteAdd();
    impl_->mode = Impl::Mode::Read;
    impl_->changes.clear();
}

void Recordset::Delete() {
    const std::int64_t id = impl_->CurrentId();
    impl_->loaded = false;
    Query query(impl_->connection, fmt::format("DELETE FROM {} WHERE rowid = ?", Quoted(impl_->table->name)));
    query.Bind(1, id);
    query.Step();
    impl_->rows[impl_->at].deleted = true;
    --impl_->live;
    impl_->mode = Impl::Mode::Read;
    impl_->changes.clear();
}

void Recordset::Close() {
    impl_->select = Query();
    impl_->write = Query();
    impl_->connection.reset();
    impl_->rows.clear();
    impl_->at = 0;
    impl_->live = 0;
}

}  // namespace tarvane
