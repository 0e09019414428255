#include "season/rest.h"

#include <algorithm>

#include "season/calendar.h"

namespace tarvane {

namespace {

// The outs by which a reliever is judged: those of an earlier game on the same day count.
int RelieverOuts(Pitcher& pitcher, int outs, int dayNumber) {
    if (pitcher.PitchedOnDay == dayNumber) {
        outs += pitcher.IPOutsToday;
    } else {
        pitcher.PitchedOnDay = static_cast<std::int16_t>(pitcher.PitchedOnDay == 0 ? dayNumber : 0);
    }
    pitcher.IPOutsToday = static_cast<std::int16_t>(outs);
    return outs;
}

void CountDown(Injury& injury, std::string_view gameDate, bool clearOnlyAtZero) {
    if (injury.InjuredDaysRemaining <= 0 && injury.InjuredDays == 0) return;
    const auto game = DayCount(gameDate), hurt = DayCount(injury.InjuryDate);
    if (!game || !hurt) return;
    if (injury.InjuredDaysRemaining > 0) {
        injury.InjuredDaysRemaining = static_cast<std::int16_t>(injury.InjuredDays - (*game - *hurt));
        if (*game == *hurt) {
            --injury.InjuredDaysRemaining;
            --injury.InjuredDays;
        }
    }
    const bool over = clearOnlyAtZero ? injury.InjuredDaysRemaining == 0 : injury.InjuredDaysRemaining <= 0;
    if (!over) return;
    injury.InjuryDate = "0";
    injury.InjuredDays = injury.InjuryNbrDate = 0;
}

}  // namespace

int RestForOuts(const LeagueRules& rules, char role, int outs) {
    for (const PitcherRestRow& row : rules.rest)
        if (row.pitcherType == role && row.IPOutsFrom >= 0 && row.IPOutsFrom <= outs && outs <= row.IPOutsTo)
            return std::max<int>(row.RestDays, 0);
    return 0;
}

void AssignPitcherRest(TeamRoster& roster, const BoxLines& box, const LeagueRules& rules, int dayNumber) {
    for (std::size_t i = 0; i < box.PitchersUsed; ++i) {
        const PitchingLine& line = box.pitching[i];
        if (line.player.Nobody()) continue;
        Pitcher& pitcher = roster.pitchers[static_cast<std::size_t>(line.player.index)];
        const bool starter = i == 0 || line.Role == 'S';
        const int days = starter ? RestForOuts(rules, 'S', line.IPOuts)
                                 : RestForOuts(rules, 'R', RelieverOuts(pitcher, line.IPOuts, dayNumber));
        if (days == 0) continue;
        pitcher.PitcherRestDays = static_cast<std::uint8_t>(std::min(pitcher.PitcherRestDays + days, 255));
        pitcher.PitchedOnDay = static_cast<std::int16_t>(dayNumber);
    }
}

void CountDownInjuries(TeamRoster& roster, std::string_view gameDate) {
    for (Batter& batter : roster.batters) CountDown(batter.injury, gameDate, false);
    // A pitcher whose count has run below zero keeps the date of his injury; he is healthy all the same.
    for (Pitcher& pitcher : roster.pitchers) CountDown(pitcher.injury, gameDate, true);
}

}  // namespace tarvane
