#include "season/schedulefile.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/csv.h"
#include "base/text.h"
#include "season/calendar.h"
#include "season/gamelog.h"

namespace tarvane {

namespace {

constexpr std::size_t kScheduleFields = 12;
constexpr char kDosEndOfFile = '\x1a';
constexpr std::size_t kDateField = 0;
constexpr std::size_t kVisitorField = 3;
constexpr std::size_t kHomeField = 6;

// yyyymmdd, perhaps with quote marks that a careless writer doubled around it; empty if it is no date.
std::string DateOf(std::string_view field) {
    if (field.size() == 10) field = field.substr(1, 8);
    if (field.size() == 11) field = field.substr(2, 8);
    if (field.size() != 8) return {};
    const std::string date = fmt::format("{}-{}-{}", field.substr(0, 4), field.substr(4, 2), field.substr(6, 2));
    return DayCount(date) ? date : std::string();
}

// Later editions name their columns in a first line.
bool IsHeader(const std::vector<std::string_view>& cells) {
    return EqualsIgnoreCase(Trim(cells[kDateField]), "Date");
}

bool IsBlank(const std::vector<std::string_view>& cells) {
    return std::all_of(cells.begin(), cells.end(), [](std::string_view cell) { return Trim(cell).empty(); });
}

}  // namespace

ScheduleFile ParseScheduleFile(std::string_view text, const std::string& name) {
    ScheduleFile file;
    file.name = name;
    CsvReader reader(text.substr(0, text.find(kDosEndOfFile)), name);
    std::vector<std::string_view> cells;
    while (reader.Next(cells)) {
        if (IsBlank(cells)) continue;
        if (file.games.empty()) {
            if (IsHeader(cells)) continue;
            file.gameLog = cells.size() >= kGameLogFields;
        }
        const bool fits = file.gameLog ? cells.size() >= kGameLogFields
                                       : cells.size() >= kScheduleFields && cells.size() < kGameLogFields;
        if (!fits)
            reader.Fail(fmt::format("has {} fields. A schedule has {} on every line, a game log {}.", cells.size(),
                                    kScheduleFields, kGameLogFields));
        FileGame& game = file.games.emplace_back();
        game.line = reader.Line();
        game.date = DateOf(Trim(cells[kDateField]));
        game.code[Side::Visitor] = Trim(cells[kVisitorField]);
        game.code[Side::Home] = Trim(cells[kHomeField]);
        if (file.gameLog) file.logged.push_back(ReadLoggedTeams(cells));
    }
    return file;
}

std::string ScheduleFileLine(std::string_view date, std::string_view visitorCode, std::string_view homeCode) {
    return fmt::format("\"{}{}{}\",\"\",\"\",\"{}\",\"\",,\"{}\",\"\",,\"\",\"\",\"\"\r\n", date.substr(0, 4),
                       date.substr(5, 2), date.substr(8, 2), visitorCode, homeCode);
}

}  // namespace tarvane
