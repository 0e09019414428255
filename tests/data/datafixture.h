#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/tempfolder.h"
#include "core/database.h"
#include "core/messages.h"
#include "data/schema.h"

namespace tarvane {

// Messages as a list: "<title>: <text>".
struct MessageList : MessageSink {
    void Warn(const std::string& title, const std::string& text) override { lines.push_back(title + ": " + text); }
    void Inform(const std::string& title, const std::string& text) override { lines.push_back(title + ": " + text); }
    std::vector<std::string> lines;
};

// An empty season or common database in a folder of its own.
struct TestDatabase {
    explicit TestDatabase(TableHome home) : db(folder / "test.mdb", Database::Mode::Create) { CreateTables(db, home); }

    std::int64_t Add(const std::string& table, const std::vector<std::pair<std::string, Value>>& values) {
        Recordset rs = db.OpenRecordset(table, "0");
        rs.AddNew();
        for (const auto& [field, value] : values) rs.Set(field, value);
        rs.Update();
        return db.LastInsertId();
    }
    Value Get(const std::string& table, const std::string& field, std::int64_t rowid) {
        return db.OpenRecordset(table, "rowid = ?", {rowid}).Get(field);
    }

    TempFolder folder;
    Database db;
};

}  // namespace tarvane
