#include "manager/generate.h"

#include <algorithm>

#include "manager/roster.h"

namespace tarvane {

namespace {

// 1 above the upper bound, 3 below the lower, else 2.
std::uint8_t TendencyOf(double measure, double upper, double lower) {
    if (measure > upper) return 1;
    return measure < lower ? 3 : 2;
}

double NetChance(const BattingChances& c) {
    return c.Singles + c.Doubles + c.Triples + c.HR + c.BBorHBP - c.SO;
}

struct RosterMeans {
    double bunt = 0, run = 0, defence = 0, hit = 0;
    int men = 0;
};

RosterMeans MeansOf(const TeamRoster& roster) {
    RosterMeans mean;
    for (const Batter& batter : roster.batters) {
        if (batter.NoLongerWithTeam) continue;
        ++mean.men;
        mean.bunt += batter.BuntRating == "A" ? 2 : 1;
        mean.run += batter.runRating;
        for (const PositionRating& entry : batter.Pos)
            if (entry.position != Position::None) mean.defence += entry.rating;
        mean.hit += NetChance(batter.vsLChance) + NetChance(batter.vsRChance);
    }
    if (mean.men == 0) return mean;
    for (double* sum : {&mean.bunt, &mean.run, &mean.defence, &mean.hit}) *sum /= mean.men;
    return mean;
}

std::uint8_t TendencyOfCount(int count, int often, int average) {
    if (count > often) return 1;
    return count >= average ? 2 : 3;
}

bool PitchersKnown(const TeamRoster& roster, const RealUse& real) {
    for (std::size_t i = 0; i < roster.pitchers.size(); ++i)
        if (!roster.pitchers[i].NoLongerWithTeam && !real.PitcherAt(static_cast<int>(i)).found) return false;
    return true;
}

}  // namespace

void GenerateTendencies(TeamRoster& roster, const RealUse* real, bool usage) {
    const RosterMeans mean = MeansOf(roster);
    if (mean.men == 0) return;
    ManagerTendencies& tendency = roster.tendencies;
    tendency.Bunting = TendencyOf(mean.bunt, 1.6, 1.3);
    tendency.BaseRunning = tendency.BaseStealing = tendency.PinchRunning = TendencyOf(mean.run, 1.75, 0.95);
    tendency.DefensiveSubs = TendencyOf(mean.defence, 4.0, 0.5);
    tendency.PinchHitting = TendencyOf(mean.hit, 0.225, 0.15);
    if (!usage) return;
    tendency.BaseStealing = TendencyOfCount(real->teamSB, 150, 75);
    tendency.Bunting = TendencyOfCount(real->teamSH, 99, 70);
}

LineupList& EnsureList(TeamRoster& roster, char type, Position depth, int number) {
    for (LineupList& list : roster.lists) {
        if (list.LineupType != type || (type == 'D' && PositionFromText(list.DepthType) != depth)) continue;
        if (--number == 0) return list;
    }
    LineupList list;
    list.teamID = roster.team.teamID;
    list.LineupType = type;
    if (type == 'D') {
        const std::string_view text = PositionText(depth);
        list.DepthType = std::string(text.substr(0, text.back() == ' ' ? 1 : 2));
    }
    roster.lists.push_back(list);
    return number > 1 ? EnsureList(roster, type, depth, number - 1) : roster.lists.back();
}

void GenerateComputerManager(TeamRoster& roster, const GenerateOptions& options, const RealUse* real) {
    bool usage = options.basedOnUsage && real != nullptr && real->present;
    if (options.tendencies) GenerateTendencies(roster, real, usage);
    GenerateHitters(roster, options, real, usage);
    if (usage) usage = PitchersKnown(roster, *real);
    GeneratePitchers(roster, options, real, usage);
}

}  // namespace tarvane
