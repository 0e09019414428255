#include "data/columnlist.h"

#include <fmt/core.h>

#include <stdexcept>

#include "base/text.h"
#include "records/cell.h"

namespace tarvane {

std::vector<std::string> Words(std::string_view text) {
    std::vector<std::string> words;
    for (std::size_t at = text.find_first_not_of(' '); at != std::string_view::npos;) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        words.emplace_back(text.substr(at, end - at));
        at = text.find_first_not_of(' ', end);
    }
    return words;
}

ColumnList& ColumnList::Add(std::string_view names, ColumnType type, const Value& defaultValue) {
    for (std::string& name : Words(names)) columns.push_back({std::move(name), type, defaultValue});
    return *this;
}

ColumnList& ColumnList::Cells(std::string_view prefix) {
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) BlankText(5, fmt::format("{}{}", prefix, roll));
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll)
        Add(fmt::format("{}{}Color", prefix, roll), {ColumnKind::Long}, std::int64_t{kGreenWord});
    return *this;
}

ColumnList& ColumnList::Integers(std::string_view prefix, std::string_view names) {
    for (const std::string& name : Words(names)) Integer(fmt::format("{}{}", prefix, name));
    return *this;
}

ColumnList& ColumnList::Doubles(std::string_view prefix, std::string_view names) {
    for (const std::string& name : Words(names)) Double(fmt::format("{}{}", prefix, name));
    return *this;
}

ColumnList& ColumnList::Spares(int count) {
    for (int i = 1; i <= count; ++i) Nullable(ColumnKind::Integer, fmt::format("Spare{}", i));
    return *this;
}

ColumnList& ColumnList::Append(const ColumnList& other) {
    columns.insert(columns.end(), other.columns.begin(), other.columns.end());
    return *this;
}

ColumnList& ColumnList::MissingAt(int count, std::string_view names, UpgradeStage stage) {
    for (const std::string& name : Words(names)) {
        bool found = false;
        for (ColumnDef& column : columns) {
            if (!EqualsIgnoreCase(column.name, name)) continue;
            column.missingAt = count;
            column.stage = stage;
            found = true;
        }
        if (!found) throw std::logic_error("no column " + name);
    }
    return *this;
}

}  // namespace tarvane
