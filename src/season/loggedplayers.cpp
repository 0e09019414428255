#include "season/loggedplayers.h"

#include <fmt/core.h>

#include "base/text.h"

namespace tarvane {

namespace {

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
