#include "season/gamelog.h"

#include <fmt/core.h>

#include "base/text.h"

namespace tarvane {

namespace {

// Places of the fields, from 0: two fields for each starting pitcher, three for each man of a batting order.
constexpr PerSide<std::size_t> kStarterField{101, 103};
constexpr PerSide<std::size_t> kNineField{105, 132};
constexpr std::int64_t kLoggedDH = 10;

// A log numbers positions as scorers do, with 10 for the DH.
Position PositionOf(std::string_view field) {
    const auto number = ParseInt(field);
    if (!number || *number < 1 || *number > kLoggedDH) return Position::None;
    return *number == kLoggedDH ? Position::DH : static_cast<Position>(*number);
}

std::string PlainName(std::string_view name) {
    std::string plain;
    for (const char c : ToLower(name))
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) > 127) plain += c;
    return plain;
}

// "ryann001" and "ryanno01" are one man: last name up to four letters, short ones filled up with '-', and an initial.
bool SameStem(const std::string& retroID, const std::string& lahmanID) {
    constexpr std::size_t kLastLetters = 4;
    if (retroID.size() != 8 || lahmanID.size() < 5) return false;
    std::string last = retroID.substr(0, kLastLetters);
    last.erase(last.find_last_not_of('-') + 1);
    const std::string letters = lahmanID.substr(0, lahmanID.size() - 2);  // without the number
    const std::string lahmanLast = letters.substr(0, letters.size() - 2);
    return lahmanLast.substr(0, kLastLetters) == last && letters[letters.size() - 2] == retroID[kLastLetters];
}

}  // namespace

PerSide<LoggedTeam> ReadLoggedTeams(const std::vector<std::string_view>& cells) {
    PerSide<LoggedTeam> teams;
    const auto man = [&cells](std::size_t at) {
        return LoggedMan{std::string(Trim(cells[at])), std::string(Trim(cells[at + 1])), Position::None};
    };
    for (const Side side : kBothSides) {
        teams[side].starter = man(kStarterField[side]);
        teams[side].starter.position = Position::P;
        std::size_t at = kNineField[side];
        for (LoggedMan& batter : teams[side].nine) {
            batter = man(at);
            batter.position = PositionOf(cells[at + 2]);
            at += 3;
        }
    }
    return teams;
}

LoggedPlayers::LoggedPlayers(Database& season)
    : batters_(Load(season, "KorvBatters", "0")), pitchers_(Load(season, "KorvPitchers", "pitcherType = 'S'")) {}

LoggedPlayers::Teams LoggedPlayers::Load(Database& season, std::string_view table, std::string_view starterCondition) {
    Teams teams;
    Statement rows = season.Prepare(fmt::format(
        "SELECT playerID, LahmanPlayerID, playerName, teamID, {} FROM {} ORDER BY playerID", starterCondition, table));
    while (rows.Step())
        teams[rows.Text(3)].push_back(
            {static_cast<std::int32_t>(rows.Int(0)), rows.Text(1), PlainName(rows.Text(2)), rows.Int(4) != 0});
    return teams;
}

LoggedPlayers::Found LoggedPlayers::Find(const Teams& teams, const std::string& teamID, const LoggedMan& man) {
    const auto team = teams.find(teamID);
    if (team == teams.end()) return {};
    const std::string name = PlainName(man.name);
    std::vector<const Row*> byName, byKey, both;
    for (const Row& row : team->second) {
        const bool named = !name.empty() && row.name == name;
        const bool keyed = SameStem(man.retroID, row.key);
        if (named) byName.push_back(&row);
        if (keyed) byKey.push_back(&row);
        if (named && keyed) both.push_back(&row);
    }
    const auto oneMan = [](const std::vector<const Row*>& rows) {
        for (const Row* row : rows)
            if (row->key != rows.front()->key) return false;
        return !rows.empty();
    };
    for (const auto* rows : {&byName, &both, &byKey}) {
        if (!oneMan(*rows)) continue;
        for (const Row* row : *rows)
            if (row->starter) return {row->playerID, true};
        return {rows->front()->playerID, false};
    }
    return {};
}

}  // namespace tarvane
