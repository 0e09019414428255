#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tarvane {

// A bracket of required rest: so many outs in the last game cost so many days. -1 in IPOutsFrom marks an unused row.
struct PitcherRestRow {
    char pitcherType = 'R';
    std::int16_t IPOutsFrom = -1, IPOutsTo = -1, RestDays = 0;
};

// The rules of a season: the one row of LeagueRules and the ten rows of PitcherRestSettings, under the columns' names.
struct LeagueRules {
    bool LeagueDH = false;
    bool HometeamDH = false;
    bool UseParkEffects = true;
    bool UseYearEffects = true;      // excludes DefChartEraID 1
    std::int32_t DefChartEraID = -1; // 1: defensive eras in force, -1: off
    bool UseYellowXInjuryChart = true;
    bool CatcherORating = true;
    bool PitcherStamina = true;
    bool PitcherStaminaSecondary = false;
    bool BatterBBSORating = true;
    bool UseErrorRatings = true;
    bool DoNotCauseErrorsFromOuts = false;
    bool AutoOutsForOF = false;
    bool SpecialErrorRule = false;
    bool FactorActualUsage = false;
    bool IgnoreSchedLineups = false;
    std::int16_t RelieverMaxIPOuts = 15;
    std::int16_t OFOutOfPos = -3, CFOutOfPos = -4, IFOutOfPos = -5, FirstBaseOutOfPos = -2, COutOfPos = -8;
    char OFOutOfPosErrorRating = 'Z', CFOutOfPosErrorRating = 'Z', IFOutOfPosErrorRating = 'Z',
         FirstBaseOutOfPosErrorRating = 'Z', COutOfPosErrorRating = 'Z';
    bool TourneyMode = false;
    std::string TourneyType;  // "T", "D", "P" or empty
    std::int32_t NextResultsFile = 1;
    bool EnhancedInjury = false, HitAndRun = false, EnhancedPitcherRestRule = false;
    bool UseSBRatings = false, UsePowerRatings = false;
    std::int32_t PowerRatingEraID = 0;
    bool SpecialCharts = false;
    std::array<PitcherRestRow, 10> rest{};

    bool DefensiveErasInForce() const { return DefChartEraID == 1; }
};

}  // namespace tarvane
