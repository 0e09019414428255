#include "engine/replaylog.h"

namespace tarvane {

namespace {

// Every value is stirred into what came before it; the order of the fields therefore counts.
class StateHasher {
  public:
    template <class... Values>
    void Add(const Values&... values) {
        (Stir(static_cast<std::uint64_t>(values)), ...);
    }
    template <class T, std::size_t N>
    void AddEach(const std::array<T, N>& values) {
        for (const T& value : values) Add(value);
    }
    std::uint64_t Value() const { return hash_; }
    std::uint32_t Short() const { return static_cast<std::uint32_t>(hash_ ^ hash_ >> 32U); }

  private:
    void Stir(std::uint64_t value) {
        hash_ = (hash_ ^ value) * 0x9E3779B97F4A7C15ULL;
        hash_ ^= hash_ >> 29U;
    }
    std::uint64_t hash_ = 0xCBF29CE484222325ULL;
};

// The structs of a state are taken apart by structured bindings: a field added to one of them stops the build here
// until the fingerprint takes it in.

void AddTo(StateHasher& h, PlayerRef player) {
    const auto& [type, index] = player;
    h.Add(type, index);
}

void AddTo(StateHasher& h, const BattingCounts& counts) {
    const auto& [AB, H, Doubles, Triples, HR, RBI, BB, SO, HBP, SH, SF, GIDP] = counts;
    h.Add(AB, H, Doubles, Triples, HR, RBI, BB, SO, HBP, SH, SF, GIDP);
}

void AddTo(StateHasher& h, const BatterLine& line) {
    const auto& [player, position, Slot, Active, total, vsLeft, vsRight, R, SB, CS] = line;
    AddTo(h, player);
    h.Add(position, Slot, Active, R, SB, CS);
    AddTo(h, total);
    AddTo(h, vsLeft);
    AddTo(h, vsRight);
}

void AddTo(StateHasher& h, const PitchingLine& line) {
    const auto& [player, H, R, ER, HR, BB, SO, HBP, IPOuts, BF, AutoOuts, Win, Loss, Save, RunnersCharged, Role,
                 MustBeReplaced, Reminded, BatReminded] = line;
    AddTo(h, player);
    h.Add(H, R, ER, HR, BB, SO, HBP, IPOuts, BF, AutoOuts, Win, Loss, Save, RunnersCharged, Role, MustBeReplaced,
          Reminded, BatReminded);
}

void AddTo(StateHasher& h, const FielderLine& line) {
    const auto& [player, position, Slot, Active, PutOuts, Assists, Errors, DoublePlays, PassBalls, OpponentSB,
                 OpponentCS, GreatDefensivePlays] = line;
    AddTo(h, player);
    h.Add(position, Slot, Active, PutOuts, Assists, Errors, DoublePlays, PassBalls, OpponentSB, OpponentCS,
          GreatDefensivePlays);
}

void AddTo(StateHasher& h, const BoxLines& box) {
    const auto& [batter, pitching, fielder, BatterLineCount, PitchersUsed, FielderLineCount] = box;
    h.Add(BatterLineCount, PitchersUsed, FielderLineCount);
    for (const BatterLine& line : batter) AddTo(h, line);
    for (const PitchingLine& line : pitching) AddTo(h, line);
    for (const FielderLine& line : fielder) AddTo(h, line);
}

void AddTo(StateHasher& h, const Runner& runner) {
    const auto& [slot, Unearned] = runner;
    h.Add(slot, Unearned);
}

void AddTo(StateHasher& h, const LineupSlot& man) {
    const auto& [player, position, SlotDR, SlotErrorRating, runRating, BuntRating, bats] = man;
    AddTo(h, player);
    h.Add(position, SlotDR, SlotErrorRating, runRating, BuntRating, bats);
}

// Without the lines, which are a part of their own.
void AddTo(StateHasher& h, const TeamState& team) {
    const auto& [Runs, Hits, Errors, LOB, InningRuns, BatterSlot, runner, lineup, pitcher, PitcherThrows,
                 PitcherStamina, PitcherSecondWind, PitcherTired, PitcherIntermediateTired, PitcherChangePending,
                 PitcherHasOutCells, PitcherLastBattedInning, DRTotal, AutoOuts, CatcherIRated, CatcherORated,
                 battersUsed, pitchersUsedMask, box] = team;
    static_cast<void>(box);
    h.Add(Runs, Hits, Errors, LOB, BatterSlot, PitcherThrows, PitcherStamina, PitcherSecondWind, PitcherTired,
          PitcherIntermediateTired, PitcherChangePending, PitcherHasOutCells, PitcherLastBattedInning, DRTotal,
          AutoOuts, CatcherIRated, CatcherORated);
    h.AddEach(InningRuns);
    h.AddEach(battersUsed);
    h.AddEach(pitchersUsedMask);
    AddTo(h, pitcher);
    for (const Runner& man : runner) AddTo(h, man);
    for (const LineupSlot& man : lineup) AddTo(h, man);
}

void AddTo(StateHasher& h, const PlayValues& values) {
    const auto& [NarrationRoll, RunnerRoll, CoverRoll, FieldingRoll, ErrorRoll, ErrorColumn, FlyFielderRoll,
                 ErrorSpotRoll, SpareRoll, InfieldRoll, ErrorKindRoll] = values;
    h.Add(NarrationRoll, RunnerRoll, CoverRoll, FieldingRoll, ErrorRoll, ErrorColumn, FlyFielderRoll, ErrorSpotRoll,
          SpareRoll, InfieldRoll, ErrorKindRoll);
}

void AddTo(StateHasher& h, const Play& play) {
    const auto& [PlayResult, DisplayResult, PitcherSheetEffect, ParkResult, YearResult, ChartRoll, BBSORating,
                 GreatPlay, AutoOutPlay, FieldingDone, NearLine, NarrationDone, Notes, FieldedBy, ErrorBy,
                 DecisionErrorBy, errorKind, ForcePivot, playAt, batterHeld, extraBase, MDResult, MDRow, BuntRow,
                 StealRow, buntType, buntTypeOnPlay, buntResult, SecondBuntAttempt, BuntTriedThisAtBat, BuntFoulOut,
                 SqueezeDoubledOff, StealTarget, StolenBaseSlot, StealHomeTried, values, RunsScoredList,
                 RunsScoredCount, EarnedRunsOnPlay, RBIOnPlay, InjuryPending, InjuredPosition, InjuredBatter,
                 InjuredSlot, InjuryDays] = play;
    h.Add(PlayResult, DisplayResult, PitcherSheetEffect, ParkResult, YearResult, ChartRoll, BBSORating, GreatPlay,
          AutoOutPlay, FieldingDone, NearLine, NarrationDone, Notes, FieldedBy, ErrorBy, DecisionErrorBy, errorKind,
          ForcePivot, playAt, extraBase, MDResult, MDRow, BuntRow, StealRow, buntType, buntTypeOnPlay, buntResult,
          SecondBuntAttempt, BuntTriedThisAtBat, BuntFoulOut, SqueezeDoubledOff, StealTarget, StolenBaseSlot,
          StealHomeTried, RunsScoredCount, EarnedRunsOnPlay, RBIOnPlay, InjuryPending, InjuredPosition, InjuredBatter,
          InjuredSlot, InjuryDays);
    AddTo(h, batterHeld);
    AddTo(h, values);
    h.AddEach(RunsScoredList);
}

void AddTo(StateHasher& h, const Awaited& awaited) {
    const auto& [kind, decision, cause, side, position, slot] = awaited;
    h.Add(kind, decision, cause, side, position, slot);
}

void AddTo(StateHasher& h, const GameInjury& injury) {
    const auto& [side, player, days] = injury;
    h.Add(side, days);
    AddTo(h, player);
}

template <class Part>
std::uint32_t ShortHash(const Part& part) {
    StateHasher h;
    AddTo(h, part);
    return h.Short();
}

}  // namespace

StateHash HashState(const GameState& state) {
    const auto& [BattingSide, Inning, Outs, HalfInningRuns, ErrorInInning, StaminaCheckPending, PlayStarted,
                 GameOverFlag, WalkOff, BottomNotPlayed, sheet, awaited, play, team, computer, injury, injuryCount,
                 steps] = state;
    StateHasher situation;
    situation.Add(BattingSide, Inning, Outs, HalfInningRuns, ErrorInInning, StaminaCheckPending, PlayStarted,
                  GameOverFlag, WalkOff, BottomNotPlayed, sheet, steps);
    AddTo(situation, awaited);
    for (const Side side : kBothSides) situation.Add(computer[side].lineups, computer[side].subs, computer[side].game);
    StateHasher injuries;
    injuries.Add(injuryCount);
    for (const GameInjury& one : injury) AddTo(injuries, one);
    const TeamState &visitor = team[Side::Visitor], &home = team[Side::Home];
    return {situation.Short(),      ShortHash(play), injuries.Short(),   ShortHash(visitor),
            ShortHash(visitor.box), ShortHash(home), ShortHash(home.box)};
}

namespace {

void AddTo(StateHasher& h, const Cell& cell) {
    const auto& [text, color, result, position, number] = cell;
    h.Add(text, color, result, position, number);
}

void AddTo(StateHasher& h, const Chart& chart) {
    for (const Cell& cell : chart) AddTo(h, cell);
}

template <class Table>
void AddCharts(StateHasher& h, const Table& charts) {
    for (const Chart& chart : charts) AddTo(h, chart);
}

void AddTo(StateHasher& h, const CompiledGameCharts& charts) {
    AddCharts(h, charts.MgrDec);
    AddCharts(h, charts.Bunt);
    AddCharts(h, charts.StolenBase);
    for (const auto& row : charts.ErrorStands) h.AddEach(row);
    AddCharts(h, charts.Fielding);
    AddTo(h, charts.YellowXBasic);
    AddCharts(h, charts.YellowXInjuries);
}

template <class Ratings>
void AddRatings(StateHasher& h, const Ratings& ratings) {
    for (const PositionRating& entry : ratings) h.Add(entry.position, entry.rating, entry.errorRating);
}

char BuntLetter(const std::string& text) {
    return text.empty() ? ' ' : text.front();
}

void AddTo(StateHasher& h, const Batter& man) {
    h.Add(man.playerID, man.bats, BuntLetter(man.BuntRating), man.runRating, man.CatcherIRating, man.CatcherORating,
          man.Inactive, man.NoLongerWithTeam, man.injury.InjuredDaysRemaining);
    AddRatings(h, man.Pos);
}

void AddTo(StateHasher& h, const Pitcher& man) {
    h.Add(man.playerID, man.bats, man.throws_, BuntLetter(man.BuntRating), man.runRating, man.pitcherType,
          man.tiredRating, man.secondWindRating, man.PitcherRestDays, man.PitchedOnDay, man.IPOutsToday, man.Inactive,
          man.NoLongerWithTeam, man.injury.InjuredDaysRemaining);
    AddRatings(h, man.Pos);
}

void AddTo(StateHasher& h, const TeamData& team) {
    for (const Batter& man : team.roster.batters) AddTo(h, man);
    for (const Pitcher& man : team.roster.pitchers) AddTo(h, man);
    for (const BatterCharts& charts : team.batterCharts) {
        AddTo(h, charts.vsL);
        AddTo(h, charts.vsR);
        h.Add(charts.BBRating, charts.SORating);
    }
    for (const PitcherCharts& charts : team.pitcherCharts) {
        AddTo(h, charts.pitch);
        AddTo(h, charts.Bat);
        h.Add(charts.HasOutCells, charts.BBRating, charts.SORating);
    }
}

// The rules that a play or a change of line-up reads; the others of a season concern what happens between games.
void AddTo(StateHasher& h, const LeagueRules& rules) {
    h.Add(rules.UseParkEffects, rules.UseYearEffects, rules.DefChartEraID, rules.UseYellowXInjuryChart,
          rules.CatcherORating, rules.PitcherStamina, rules.PitcherStaminaSecondary, rules.BatterBBSORating,
          rules.UseErrorRatings, rules.DoNotCauseErrorsFromOuts, rules.AutoOutsForOF, rules.SpecialErrorRule,
          rules.RelieverMaxIPOuts, rules.OFOutOfPos, rules.CFOutOfPos, rules.IFOutOfPos, rules.FirstBaseOutOfPos,
          rules.COutOfPos, rules.OFOutOfPosErrorRating, rules.CFOutOfPosErrorRating, rules.IFOutOfPosErrorRating,
          rules.FirstBaseOutOfPosErrorRating, rules.COutOfPosErrorRating);
    for (const PitcherRestRow& row : rules.rest) h.Add(row.pitcherType, row.IPOutsFrom, row.IPOutsTo, row.RestDays);
}

}  // namespace

std::uint64_t HashGameData(const GameData& data) {
    StateHasher h;
    for (const Side side : kBothSides) AddTo(h, data[side]);
    AddTo(h, data.rules);
    AddTo(h, data.compiled);
    AddTo(h, data.parkChart);
    AddTo(h, data.yearChart);
    for (std::size_t range = 0; range < data.eraCells.size(); ++range) {
        h.Add(data.defensiveEra.range[range].StartRange, data.defensiveEra.range[range].EndRange);
        for (const Cell& cell : data.eraCells[range]) AddTo(h, cell);
    }
    h.Add(data.park.DefAdjustment, data.park.PitcherTiredAdjustment, data.park.SecondWindAdjustment,
          data.year.DefAdjustment, data.DHUsed, data.dayNumber);
    return h.Value();
}

}  // namespace tarvane
