#include "documents/scoresheet.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/error.h"
#include "base/text.h"
#include "documents/page.h"
#include "engine/availability.h"

namespace tarvane {

namespace {

constexpr const char* kRun = "\xE2\x80\xA2";  // a dot

bool FieldersBall(Result result) {
    switch (result) {
        case Result::K:
        case Result::BB:
        case Result::HBP:
        case Result::HR:
        case Result::WP:
        case Result::PB:
        case Result::BK: return false;
        default: return true;
    }
}

std::string Mark(const GameEvent& event) {
    // What the chart says of runners besides (stars, pluses, brackets) is of no concern here.
    std::string mark;
    for (const char c : ResultText(event.result))
        if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) mark += c;
    if (mark.size() == 1 && mark[0] >= '1' && mark[0] <= '3') mark += 'B';
    const int number = static_cast<int>(event.position) - static_cast<int>(Position::P) + 1;
    if (FieldersBall(event.result) && number >= 1 && number <= 9) mark += std::to_string(number);
    return mark;
}

std::string PositionMark(const GameData& data, const LineupSlot& slot, Side side) {
    std::string text(TrimRight(PositionText(slot.position)));
    if (slot.position != Position::C || slot.player.type != 'B') return text;
    const Batter& man = data[side].roster.batters[static_cast<std::size_t>(slot.player.index)];
    return text + (man.CatcherIRating ? " I" : "") + (man.CatcherORating ? " O" : "");
}

}  // namespace

ScoreSheetRow* ScoreSheet::Now(Side side, int slot) {
    for (auto row = rows_[side].rbegin(); row != rows_[side].rend(); ++row)
        if (row->slot == slot) return &*row;
    return nullptr;
}

void ScoreSheet::Enter(const GameData& data, const GameState& state, Side side) {
    for (std::uint8_t slot = 1; slot <= 9; ++slot) {
        const LineupSlot& man = state[side].lineup[slot - 1U];
        const std::string position = PositionMark(data, man, side);
        ScoreSheetRow* row = Now(side, slot);
        if (row == nullptr || !(row->player == man.player)) {
            rows_[side].push_back({man.player, slot, PlayerName(data[side], man.player), position, {}});
        } else if (row->position != position) {
            row->position += "-" + position;
            if (row->position.size() > 24) row->position = position;
        }
    }
}

void ScoreSheet::Begin(const GameData& data, const GameState& state) {
    for (const Side side : kBothSides) Enter(data, state, side);
}

void ScoreSheet::Clear() {
    for (const Side side : kBothSides) rows_[side].clear();
}

void ScoreSheet::OnEvent(const GameData& data, const GameState& state, const GameEvent& event) {
    if (rows_[Side::Visitor].empty()) Begin(data, state);
    if (event.kind == EventKind::Substitution) return Enter(data, state, event.side);
    if (event.kind != EventKind::ScoreSheet) return;
    ScoreSheetRow* row = Now(event.side, event.slot);
    if (row == nullptr) return;
    if (row->innings.size() < state.Inning) row->innings.resize(state.Inning);
    std::string& cell = row->innings[state.Inning - 1U];
    if (event.tag == Tag::RunsScored) {
        cell += kRun;
        return;
    }
    const std::string mark = Mark(event);
    // A home run's own run is told before the turn at bat is.
    if (cell == kRun)
        cell = mark + kRun;
    else
        cell += (cell.empty() ? "" : " ") + mark;
}

std::vector<ScoreSheetRow> ScoreSheet::Rows(Side side) const {
    std::vector<ScoreSheetRow> rows = rows_[side];
    std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.slot < b.slot; });
    return rows;
}

std::string ScoreSheet::Write() const {
    std::string text;
    for (const Side side : kBothSides)
        for (const ScoreSheetRow& row : rows_[side]) {
            text += fmt::format("{}\t{}\t{}\t{}\t{}", SideLetter(side), row.slot, row.player.type, row.player.index,
                                row.position);
            for (const std::string& cell : row.innings) text += '\t' + cell;
            text += '\n';
        }
    return text;
}

void ScoreSheet::Read(const GameData& data, const std::string& lines) {
    PerSide<std::vector<ScoreSheetRow>> rows;
    for (std::size_t from = 0; from < lines.size();) {
        const std::size_t end = std::min(lines.find('\n', from), lines.size());
        std::vector<std::string> fields;
        for (std::size_t at = from; at <= end;) {
            const std::size_t tab = std::min(lines.find('\t', at), end);
            fields.push_back(lines.substr(at, tab - at));
            at = tab + 1;
        }
        from = end + 1;
        const auto slot = fields.size() > 4 ? ParseInt(fields[1]) : std::nullopt;
        const auto index = fields.size() > 4 ? ParseInt(fields[3]) : std::nullopt;
        const bool sideKnown = !fields.empty() && (fields[0] == "V" || fields[0] == "H");
        if (!slot || !index || !sideKnown || *slot < 1 || *slot > 9 || fields[2].size() != 1 || *index < 0 ||
            *index > kMaxRosterRecords)
            throw UserError("A line of the score sheet can't be read.");
        const Side side = fields[0] == "V" ? Side::Visitor : Side::Home;
        const PlayerRef player{fields[2][0], static_cast<std::int16_t>(*index)};
        if (!KnownPlayer(data[side], player)) throw UserError("The score sheet names a player who isn't on the team.");
        rows[side].push_back({player,
                              static_cast<std::uint8_t>(*slot),
                              PlayerName(data[side], player),
                              fields[4],
                              {fields.begin() + 5, fields.end()}});
    }
    rows_ = std::move(rows);
}

DocumentTable ScoreSheetTable(const ScoreSheet& sheet, const BoxDocument& box, Side side) {
    DocumentTable table;
    table.heads = {box.side[side].batting.heads.front(), "POS"};
    const std::vector<ScoreSheetRow> rows = sheet.Rows(side);
    std::size_t innings = 9;
    for (const ScoreSheetRow& row : rows) innings = std::max(innings, row.innings.size());
    for (std::size_t inning = 1; inning <= innings; ++inning) table.heads.push_back(std::to_string(inning));
    int slot = 0;
    for (const ScoreSheetRow& row : rows) {
        std::vector<std::string> cells{(row.slot == slot ? "  " : "") + row.name, row.position};
        slot = row.slot;
        for (std::size_t inning = 0; inning < innings; ++inning)
            cells.push_back(inning < row.innings.size() ? row.innings[inning] : "");
        table.rows.push_back(std::move(cells));
    }
    return table;
}

std::string ScoreSheetText(const ScoreSheet& sheet, const BoxDocument& box) {
    std::string text = box.title + '\n';
    if (!box.place.empty()) text += box.place + '\n';
    text += '\n' + TableText(box.lineScore, 0);
    for (const Side side : kBothSides)
        text += '\n' + TableText(ScoreSheetTable(sheet, box, side), 0) + '\n' + TableText(box.side[side].pitching, 0);
    return text;
}

std::string ScoreSheetHtml(const ScoreSheet& sheet, const BoxDocument& box) {
    std::string body =
        fmt::format("<h1>{}</h1>\n<p class=\"place\">{}</p>\n", EscapeHtml(box.title), EscapeHtml(box.place));
    body += TableHtml(box.lineScore, "line");
    for (const Side side : kBothSides)
        body += fmt::format("<section>\n<h2>{}</h2>\n{}{}</section>\n", EscapeHtml(box.side[side].team),
                            TableHtml(ScoreSheetTable(sheet, box, side), "batting sheet"),
                            TableHtml(box.side[side].pitching, "pitching"));
    return PageHtml(box.title + " - Score Sheet", body);
}

}  // namespace tarvane
