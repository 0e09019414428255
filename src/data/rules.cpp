#include "data/rules.h"

#include <fmt/core.h>

namespace tarvane {

namespace {

std::int16_t Small(const Recordset& rs, std::string_view field) {
    return static_cast<std::int16_t>(rs.GetInt(field));
}

char ErrorLetter(const Recordset& rs, std::string_view field) {
    const std::string text = rs.GetText(field);
    return text.empty() || text[0] == ' ' ? 'Z' : text[0];
}

void ReadFirstRules(const Recordset& rs, LeagueRules& rules) {
    rules.LeagueDH = rs.GetBool("LeagueDH");
    rules.HometeamDH = rs.GetBool("HometeamDH");
    rules.UseParkEffects = rs.GetBool("UseParkEffects");
    rules.UseYearEffects = rs.GetBool("UseYearEffects");
    rules.UseYellowXInjuryChart = rs.GetBool("UseYellowXInjuryChart");
    rules.EnhancedInjury = rs.GetBool("EnhancedInjury");
    rules.HitAndRun = rs.GetBool("HitAndRun");
    rules.CatcherORating = rs.GetBool("CatcherORating");
    rules.PitcherStamina = rs.GetBool("PitcherStamina");
    rules.RelieverMaxIPOuts = static_cast<std::int16_t>(rs.GetInt("RelieverMaxIPOuts", 15));
    rules.OFOutOfPos = Small(rs, "OFOutOfPos");
    rules.CFOutOfPos = Small(rs, "CFOutOfPos");
    rules.IFOutOfPos = Small(rs, "IFOutOfPos");
    rules.FirstBaseOutOfPos = Small(rs, "FirstBaseOutOfPos");
    rules.COutOfPos = Small(rs, "COutOfPos");
    rules.BatterBBSORating = rs.GetBool("BatterBBSORating");
    rules.EnhancedPitcherRestRule = rs.GetBool("EnhancedPitcherRestRule");
    rules.NextResultsFile = static_cast<std::int32_t>(rs.GetInt("NextResultsFile", 1));
}

void ReadLaterRules(const Recordset& rs, int columnsBefore, LeagueRules& rules) {
    rules.TourneyType.clear();
    if (columnsBefore > 28) {
        const std::string type = rs.GetText("TourneyType");
        if (type != " ") rules.TourneyType = type;
        rules.TourneyMode = rs.GetBool("TourneyMode");
        rules.FactorActualUsage = rs.GetBool("FactorActualUsage");
        rules.SpecialErrorRule = rs.GetBool("SpecialErrorRule");
        rules.IgnoreSchedLineups = columnsBefore > 32 && rs.GetBool("IgnoreSchedLineups");
    }
    rules.UseErrorRatings = rs.GetBool("UseErrorRatings");
    rules.DoNotCauseErrorsFromOuts = rs.GetBool("DoNotCauseErrorsFromOuts");
    rules.PitcherStaminaSecondary = rs.GetBool("PitcherStaminaSecondary");
    rules.AutoOutsForOF = rs.GetBool("AutoOutsForOF");
    rules.OFOutOfPosErrorRating = ErrorLetter(rs, "OFOutOfPosErrorRating");
    rules.CFOutOfPosErrorRating = ErrorLetter(rs, "CFOutOfPosErrorRating");
    rules.IFOutOfPosErrorRating = ErrorLetter(rs, "IFOutOfPosErrorRating");
    rules.FirstBaseOutOfPosErrorRating = ErrorLetter(rs, "FirstBaseOutOfPosErrorRating");
    rules.COutOfPosErrorRating = ErrorLetter(rs, "COutOfPosErrorRating");
    rules.UseSBRatings = rs.GetBool("UseSBRatings");
    rules.UsePowerRatings = rs.GetBool("UsePowerRatings");
    rules.PowerRatingEraID = static_cast<std::int32_t>(rs.GetInt("PowerRatingEraID"));
    rules.DefChartEraID = static_cast<std::int32_t>(rs.GetInt("DefChartEraID", rules.DefChartEraID));
    rules.SpecialCharts = rs.GetBool("SpecialCharts");
}

void ReadRest(Database& season, LeagueRules& rules) {
    rules.rest.fill({});
    Recordset rs = season.OpenRecordset("PitcherRestSettings", {}, {}, "pitcherType, RestID");
    for (PitcherRestRow& row : rules.rest) {
        if (rs.EndOfFile()) break;
        row = {rs.GetText("pitcherType", "R").substr(0, 1) == "S" ? 'S' : 'R', Small(rs, "IPOutsFrom"),
               Small(rs, "IPOutsTo"), Small(rs, "RestDays")};
        rs.MoveNext();
    }
}

}  // namespace

void LoadLeagueRules(Database& season, int columnsBefore, LeagueRules& rules) {
    const Recordset rs = season.OpenRecordset("LeagueRules");
    if (rs.EndOfFile())
        throw DatabaseError(DatabaseError::kNoCurrentRecord,
                            fmt::format("{}: the table LeagueRules holds no row.", season.Path().string()));
    ReadFirstRules(rs, rules);
    ReadLaterRules(rs, columnsBefore, rules);
    ReadRest(season, rules);
}

LeagueRules LoadLeagueRules(Database& season) {
    LeagueRules rules;
    LoadLeagueRules(season, season.FieldCount("LeagueRules"), rules);
    return rules;
}

namespace {

void WriteRules(Recordset& rs, const LeagueRules& rules) {
    const std::pair<const char*, bool> flags[]{{"LeagueDH", rules.LeagueDH},
                                               {"HometeamDH", rules.HometeamDH},
                                               {"UseParkEffects", rules.UseParkEffects},
                                               {"UseYearEffects", rules.UseYearEffects},
                                               {"UseYellowXInjuryChart", rules.UseYellowXInjuryChart},
                                               {"CatcherORating", rules.CatcherORating},
                                               {"PitcherStamina", rules.PitcherStamina},
                                               {"PitcherStaminaSecondary", rules.PitcherStaminaSecondary},
                                               {"BatterBBSORating", rules.BatterBBSORating},
                                               {"UseErrorRatings", rules.UseErrorRatings},
                                               {"DoNotCauseErrorsFromOuts", rules.DoNotCauseErrorsFromOuts},
                                               {"AutoOutsForOF", rules.AutoOutsForOF},
                                               {"SpecialErrorRule", rules.SpecialErrorRule},
                                               {"FactorActualUsage", rules.FactorActualUsage},
                                               {"IgnoreSchedLineups", rules.IgnoreSchedLineups}};
    for (const auto& [column, on] : flags) rs.SetBool(column, on);
    const std::pair<const char*, std::int32_t> figures[]{
        {"DefChartEraID", rules.DefChartEraID}, {"RelieverMaxIPOuts", rules.RelieverMaxIPOuts},
        {"OFOutOfPos", rules.OFOutOfPos},       {"CFOutOfPos", rules.CFOutOfPos},
        {"IFOutOfPos", rules.IFOutOfPos},       {"FirstBaseOutOfPos", rules.FirstBaseOutOfPos},
        {"COutOfPos", rules.COutOfPos}};
    for (const auto& [column, figure] : figures) rs.Set(column, figure);
    const std::pair<const char*, char> letters[]{{"OFOutOfPosErrorRating", rules.OFOutOfPosErrorRating},
                                                 {"CFOutOfPosErrorRating", rules.CFOutOfPosErrorRating},
                                                 {"IFOutOfPosErrorRating", rules.IFOutOfPosErrorRating},
                                                 {"FirstBaseOutOfPosErrorRating", rules.FirstBaseOutOfPosErrorRating},
                                                 {"COutOfPosErrorRating", rules.COutOfPosErrorRating}};
    for (const auto& [column, letter] : letters) rs.Set(column, std::string(1, letter));
}

}  // namespace

void SaveLeagueRules(Database& season, const LeagueRules& rules) {
    Recordset rs = season.OpenRecordset("LeagueRules");
    if (rs.EndOfFile())
        throw DatabaseError(DatabaseError::kNoCurrentRecord,
                            fmt::format("{}: the table LeagueRules holds no row.", season.Path().string()));
    rs.Edit();
    WriteRules(rs, rules);
    rs.Update();
    Recordset rest = season.OpenRecordset("PitcherRestSettings", {}, {}, "pitcherType, RestID");
    for (const PitcherRestRow& row : rules.rest) {
        if (rest.EndOfFile()) break;
        rest.Edit();
        rest.Set("IPOutsFrom", row.IPOutsFrom);
        rest.Set("IPOutsTo", row.IPOutsTo);
        rest.Set("RestDays", row.RestDays);
        rest.Update();
        rest.MoveNext();
    }
}

}  // namespace tarvane
