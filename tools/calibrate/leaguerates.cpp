#include "leaguerates.h"

#include <map>

#include "base/error.h"

namespace tarvane::calibrate {

namespace {

// The sums of some columns over a league. A column that no player has a count in isn't in the map.
std::map<std::string, double> Sums(Database& season, const std::string& table, const std::vector<std::string>& columns,
                                   const std::string& league) {
    std::string list;
    for (const std::string& column : columns) list += (list.empty() ? "sum(\"" : ", sum(\"") + column + "\")";
    Statement query = season.Prepare("SELECT " + list + " FROM " + table + " WHERE lgID = ?");
    query.Bind(1, league);
    std::map<std::string, double> sums;
    if (!query.Step()) return sums;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const double sum = query.Double(static_cast<int>(i));
        if (sum > 0) sums[columns[i]] = sum;
    }
    return sums;
}

double Get(const std::map<std::string, double>& sums, const std::string& column) {
    const auto found = sums.find(column);
    return found == sums.end() ? 0 : found->second;
}

std::optional<double> Rate(const std::map<std::string, double>& sums, const std::string& column, double of) {
    const auto found = sums.find(column);
    return found == sums.end() ? std::nullopt : std::optional<double>(found->second / of);
}

}  // namespace

std::vector<NamedRate> Listed(const LeagueRates& r) {
    return {{"R", r.R},     {"PA", r.PA},   {"H", r.H},     {"1B", r.Singles}, {"2B", r.Doubles}, {"3B", r.Triples},
            {"HR", r.HR},   {"BB", r.BB},   {"SO", r.SO},   {"HBP", r.HBP},    {"SB", r.SB},      {"CS", r.CS},
            {"SH", r.SH},   {"SF", r.SF},   {"GIDP", r.GIDP}, {"E", r.E},      {"PB", r.PB},      {"pitchers", r.Pitchers},
            {"CG", r.CG},   {"SV", r.SV},   {"SHO", r.SHO}};
}

LeagueRates RealRates(Database& season, const std::string& league) {
    const auto bat = Sums(season, "LahmanBatting",
                          {"AB", "R", "H", "2B", "3B", "HR", "BB", "IBB", "SO", "HBP", "SB", "CS", "SH", "SF", "GIDP"},
                          league);
    const auto pitch = Sums(season, "LahmanPitching", {"G", "GS", "CG", "SV", "SHO", "SO"}, league);
    const auto field = Sums(season, "LahmanFielding", {"E", "PB"}, league);
    const double games = Get(pitch, "GS");
    const double walks = Get(bat, "BB") - Get(bat, "IBB");
    const double PA = Get(bat, "AB") + walks + Get(bat, "HBP") + Get(bat, "SH") + Get(bat, "SF");
    if (games <= 0 || PA <= 0) throw UserError("league " + league + " has no statistics to calibrate by");
    LeagueRates r;
    r.PA = PA / games;
    r.H = Get(bat, "H") / PA;
    r.Doubles = Get(bat, "2B") / PA;
    r.Triples = Get(bat, "3B") / PA;
    r.HR = Get(bat, "HR") / PA;
    r.Singles = r.H - r.Doubles - r.Triples - r.HR;
    r.BB = walks / PA;
    r.HBP = Get(bat, "HBP") / PA;
    // Where the batters' strikeouts were not counted those of the pitchers were.
    r.SO = std::max(Get(bat, "SO"), Get(pitch, "SO")) / PA;
    r.R = Get(bat, "R") / games;
    r.SB = Get(bat, "SB") / games;
    r.SH = Get(bat, "SH") / games;
    r.E = Get(field, "E") / games;
    r.PB = Get(field, "PB") / games;
    r.Pitchers = Get(pitch, "G") / games;
    r.CG = Get(pitch, "CG") / games;
    r.SV = Get(pitch, "SV") / games;
    r.SHO = Get(pitch, "SHO") / games;
    r.SF = Rate(bat, "SF", games);
    r.GIDP = Rate(bat, "GIDP", games);
    r.CS = Rate(bat, "CS", games);
    return r;
}

LeagueRates ReplayRates(const GameTally& t) {
    const auto games = static_cast<double>(t.games);
    const auto PA = static_cast<double>(t.PA);
    const auto perGame = [&](long count) { return static_cast<double>(count) / games; };
    const auto perPA = [&](long count) { return static_cast<double>(count) / PA; };
    LeagueRates r;
    r.PA = PA / games;
    r.H = perPA(t.H);
    r.Doubles = perPA(t.Doubles);
    r.Triples = perPA(t.Triples);
    r.HR = perPA(t.HR);
    r.Singles = r.H - r.Doubles - r.Triples - r.HR;
    r.BB = perPA(t.BB);
    r.SO = perPA(t.SO);
    r.HBP = perPA(t.HBP);
    r.R = perGame(t.R);
    r.SB = perGame(t.SB);
    r.SH = perGame(t.SH);
    r.E = perGame(t.E);
    r.PB = perGame(t.PB);
    r.Pitchers = perGame(t.PitchersUsed);
    r.CG = perGame(t.CG);
    r.SV = perGame(t.SV);
    r.SHO = perGame(t.SHO);
    r.SF = perGame(t.SF);
    r.GIDP = perGame(t.GIDP);
    r.CS = perGame(t.CS);
    return r;
}

}  // namespace tarvane::calibrate
