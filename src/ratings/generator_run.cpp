#include "ratings/generator_run.h"

#include <fmt/format.h>

#include <stdexcept>

#include "data/parks.h"

namespace tarvane {

NoLeaguesError::NoLeaguesError(const std::string& what, const std::string& title)
    : UserError(what + " Not Generated - there are no Leagues. \nPlease Contact Tarvane."), Title(title) {}

BaselineFinder::BaselineFinder(Database& season, Database& common, const GeneratorScope& scope, std::string_view what,
                               std::string_view title)
    : single_(scope.player.has_value()) {
    if (single_) {
        LeagueBaseline baseline;
        if (LoadEraBaseline(common, scope.player->EraID, 0, baseline)) baselines_.push_back(baseline);
        return;
    }
    if (!HasLeagues(season)) throw NoLeaguesError(std::string(what), std::string(title));
    baselines_ = LoadLeagueBaselines(common, season);
}

const LeagueBaseline* BaselineFinder::Find(const PlayerRow& player) const {
    for (const LeagueBaseline& baseline : baselines_) {
        if (single_ || baseline.lgIdx == player.lgIdx) return &baseline;
    }
    return nullptr;
}

std::vector<PlayerRow> PlayersInScope(Database& season, PlayerTable table, const GeneratorScope& scope) {
    if (!scope.player) return ReadPlayers(season, table);
    if (scope.player->pitcher != (table == PlayerTable::Pitchers)) return {};
    return ReadPlayer(season, table, scope.player->playerID, scope.player->teamID);
}

namespace {

std::string UpdateText(std::string_view table, const std::vector<std::string>& columns) {
    std::string text = fmt::format("UPDATE {} SET ", table);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (i > 0) text += ", ";
        text += columns[i].find('=') == std::string::npos ? fmt::format("\"{}\" = ?", columns[i]) : columns[i];
    }
    return text + " WHERE rowid = ?";
}

}  // namespace

RowUpdate::RowUpdate(Database& database, std::string_view table, const std::vector<std::string>& columns)
    : columns_(columns.size()), statement_(database.Prepare(UpdateText(table, columns))) {}

RowUpdate& RowUpdate::Put(const Value& value) {
    statement_.Bind(next_++, value);
    return *this;
}

void RowUpdate::Write(std::int64_t rowid) {
    if (next_ != static_cast<int>(columns_) + 1) throw std::logic_error("A row was written with values missing.");
    Put(Value(rowid));
    statement_.Step();
    statement_.Reset();
    next_ = 1;
}

void AddCellColumns(std::vector<std::string>& columns, std::string_view prefix, int first, int last) {
    for (int roll = first; roll <= last; ++roll) {
        columns.push_back(fmt::format("{}{}", prefix, roll));
        columns.push_back(fmt::format("{}{}Color", prefix, roll));
    }
}

void PutCells(RowUpdate& update, const ChartCells& cells) {
    for (const ChartCell& cell : cells) update.Put(Value(cell.text)).PutInt(cell.color);
}

void AddChanceColumns(std::vector<std::string>& columns, std::string_view prefix) {
    for (const std::string_view name : {"Singles", "Doubles", "Triples", "HR", "BBorHBP", "SO"}) {
        columns.push_back(fmt::format("{}{}Chance", prefix, name));
    }
}

void PutChances(RowUpdate& update, const BattingChances& c) {
    for (const double chance : {c.Singles, c.Doubles, c.Triples, c.HR, c.BBorHBP, c.SO}) update.Put(Value(chance));
}

}  // namespace tarvane
