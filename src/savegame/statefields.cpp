#include "savegame/statefields.h"

#include "engine/availability.h"

namespace tarvane {

namespace {

void SideField(SaveFields& f, std::string_view field, Side& side) {
    f.Choice(field, side, Side::Home);
}
void PositionField(SaveFields& f, std::string_view field, Position& position) {
    f.Choice(field, position, Position::Inj);
}
void ResultField(SaveFields& f, std::string_view field, Result& result) {
    f.Choice(field, result, Result::Defence);
}

void RunnerFields(SaveFields& f, Runner& runner) {
    f.Number("a runner's slot", runner.slot, 0, 9);
    f.Flag("Unearned", runner.Unearned);
}

void Values(SaveFields& f, PlayValues& v) {
    f.Begin("values of the play");
    f.Number("NarrationRoll", v.NarrationRoll);
    f.Number("RunnerRoll", v.RunnerRoll);
    f.Number("CoverRoll", v.CoverRoll);
    f.Number("FieldingRoll", v.FieldingRoll, kFirstRoll, kLastRoll);
    f.Number("ErrorRoll", v.ErrorRoll, kFirstRoll, kLastRoll);
    f.Number("ErrorColumn", v.ErrorColumn, 1, 5);
    f.Number("FlyFielderRoll", v.FlyFielderRoll);
    f.Number("ErrorSpotRoll", v.ErrorSpotRoll);
    f.Number("SpareRoll", v.SpareRoll);
    f.Number("InfieldRoll", v.InfieldRoll);
    f.Number("ErrorKindRoll", v.ErrorKindRoll, kFirstRoll, kLastRoll);
    f.End();
}

void BallInPlay(SaveFields& f, Play& p) {
    f.Begin("ball in play");
    ResultField(f, "PlayResult", p.PlayResult);
    ResultField(f, "DisplayResult", p.DisplayResult);
    f.Choice("PitcherSheetEffect", p.PitcherSheetEffect, SheetEffect::HRIncreased);
    f.Choice("ParkResult", p.ParkResult, ColumnEffect::SinglePlus);
    f.Choice("YearResult", p.YearResult, ColumnEffect::SinglePlus);
    f.Number("ChartRoll", p.ChartRoll, 0, kLastRoll);
    f.Number("BBSORating", p.BBSORating);
    f.Flag("GreatPlay", p.GreatPlay);
    f.Flag("AutoOutPlay", p.AutoOutPlay);
    f.Flag("FieldingDone", p.FieldingDone);
    f.Flag("NearLine", p.NearLine);
    f.Flag("NarrationDone", p.NarrationDone);
    f.Number("Notes", p.Notes);
    PositionField(f, "FieldedBy", p.FieldedBy);
    PositionField(f, "ErrorBy", p.ErrorBy);
    PositionField(f, "DecisionErrorBy", p.DecisionErrorBy);
    f.Choice("errorKind", p.errorKind, ErrorKind::ED);
    PositionField(f, "ForcePivot", p.ForcePivot);
    f.Choice("playAt", p.playAt, PlayAt::Home);
    f.End();
}

void RunnersOnPlay(SaveFields& f, Play& p) {
    f.Begin("runners on the play");
    RunnerFields(f, p.batterHeld);
    f.Choice("extraBase", p.extraBase, ExtraBaseCase::First);
    f.Choice("MDResult", p.MDResult, ManagerDecisionResult::OutStar);
    f.Number("MDRow", p.MDRow, 0, 6);
    for (std::uint8_t& slot : p.RunsScoredList) f.Number("RunsScoredList", slot, 0, 9);
    f.Number("RunsScoredCount", p.RunsScoredCount, 0, static_cast<std::int64_t>(p.RunsScoredList.size()));
    f.Number("EarnedRunsOnPlay", p.EarnedRunsOnPlay);
    f.Number("RBIOnPlay", p.RBIOnPlay);
    f.End();
}

void BuntAndSteal(SaveFields& f, Play& p) {
    f.Begin("bunt, steal and injury");
    f.Number("BuntRow", p.BuntRow, 0, 4);
    f.Number("StealRow", p.StealRow, 0, 18);
    f.Choice("buntType", p.buntType, BuntType::Squeeze);
    f.Choice("buntTypeOnPlay", p.buntTypeOnPlay, BuntType::Squeeze);
    f.Choice("buntResult", p.buntResult, BuntResult::SHE);
    f.Flag("SecondBuntAttempt", p.SecondBuntAttempt);
    f.Flag("BuntTriedThisAtBat", p.BuntTriedThisAtBat);
    f.Flag("BuntFoulOut", p.BuntFoulOut);
    f.Flag("SqueezeDoubledOff", p.SqueezeDoubledOff);
    f.Letter("StealTarget", p.StealTarget);
    f.Number("StolenBaseSlot", p.StolenBaseSlot, 0, 9);
    f.Flag("StealHomeTried", p.StealHomeTried);
    f.Flag("InjuryPending", p.InjuryPending);
    PositionField(f, "InjuredPosition", p.InjuredPosition);
    f.Flag("InjuredBatter", p.InjuredBatter);
    f.Number("InjuredSlot", p.InjuredSlot, 0, 10);
    f.Number("InjuryDays", p.InjuryDays);
    f.End();
}

void TeamFigures(SaveFields& f, TeamState& t, const std::string& who) {
    f.Begin(who + " team as it stands");
    SaveManRef(f, t.pitcher);
    f.Number("PitcherThrows", t.PitcherThrows);
    f.Number("PitcherStamina", t.PitcherStamina);
    f.Number("PitcherSecondWind", t.PitcherSecondWind);
    f.Flag("PitcherTired", t.PitcherTired);
    f.Flag("PitcherIntermediateTired", t.PitcherIntermediateTired);
    f.Flag("PitcherChangePending", t.PitcherChangePending);
    f.Flag("PitcherHasOutCells", t.PitcherHasOutCells);
    f.Number("PitcherLastBattedInning", t.PitcherLastBattedInning);
    f.Number("DRTotal", t.DRTotal);
    f.Number("AutoOuts", t.AutoOuts);
    f.Flag("CatcherIRated", t.CatcherIRated);
    f.Flag("CatcherORated", t.CatcherORated);
    for (Runner& runner : t.runner) RunnerFields(f, runner);
    for (std::uint64_t& mask : t.battersUsed) f.Word("batters used", mask);
    for (std::uint64_t& mask : t.pitchersUsedMask) f.Word("pitchers used", mask);
    f.End();
}

}  // namespace

void SaveManRef(SaveFields& f, PlayerRef& man) {
    f.Letter("the kind of player", man.type);
    f.Number("the player's place", man.index, -1, kMaxRosterRecords - 1);
    if (man.type != 'B' && man.type != 'P') f.Fail("the kind of a player must be B or P");
}

void SaveControl(SaveFields& f, SideControl& control) {
    f.Flag("MgrLineups", control.lineups);
    f.Flag("MgrSubs", control.subs);
    f.Flag("MgrGame", control.game);
}

void SaveSituation(SaveFields& f, GameState& s) {
    f.Begin("situation");
    f.Flag("ErrorInInning", s.ErrorInInning);
    f.Flag("StaminaCheckPending", s.StaminaCheckPending);
    f.Flag("PlayStarted", s.PlayStarted);
    f.Flag("GameOverFlag", s.GameOverFlag);
    f.Flag("WalkOff", s.WalkOff);
    f.Flag("BottomNotPlayed", s.BottomNotPlayed);
    f.Choice("SheetCode", s.sheet, SheetCode::XI);
    f.Number("steps", s.steps);
    f.Choice("what is awaited", s.awaited.kind, Await::GameOver);
    f.Choice("the decision awaited", s.awaited.decision, DecisionKind::FurtherBunt);
    f.Choice("the cause of the change", s.awaited.cause, LineupCause::Positions);
    SideField(f, "the side awaited", s.awaited.side);
    PositionField(f, "the position awaited", s.awaited.position);
    f.Number("the slot awaited", s.awaited.slot, 0, 10);
    f.End();
}

void SavePlay(SaveFields& f, Play& play) {
    BallInPlay(f, play);
    RunnersOnPlay(f, play);
    BuntAndSteal(f, play);
    Values(f, play.values);
}

void SaveInjuries(SaveFields& f, GameState& state) {
    f.Begin("number of injuries");
    f.Number("injuries", state.injuryCount, 0, static_cast<std::int64_t>(state.injury.size()));
    f.End();
    for (std::size_t i = 0; i < state.injuryCount; ++i) {
        GameInjury& injury = state.injury[i];
        f.Begin("injury");
        SideField(f, "side", injury.side);
        SaveManRef(f, injury.player);
        f.Number("days", injury.days);
        f.End();
    }
}

void SaveTeamState(SaveFields& f, TeamState& team, const std::string& who) {
    TeamFigures(f, team, who);
    for (LineupSlot& slot : team.lineup) {
        f.Begin(who + " slot");
        SaveManRef(f, slot.player);
        PositionField(f, "position", slot.position);
        f.Number("SlotDR", slot.SlotDR);
        f.Letter("SlotErrorRating", slot.SlotErrorRating);
        f.Number("runRating", slot.runRating, 0, 5);
        f.Letter("BuntRating", slot.BuntRating);
        f.Number("bats", slot.bats);
        f.End();
    }
}

void SaveLineMarks(SaveFields& f, BoxLines& box, const std::string& who) {
    for (std::size_t i = 0; i < box.PitchersUsed; ++i) {
        PitchingLine& line = box.pitching[i];
        f.Begin(who + " pitching line, reminders");
        f.Flag("MustBeReplaced", line.MustBeReplaced);
        f.Flag("Reminded", line.Reminded);
        f.Flag("BatReminded", line.BatReminded);
        f.End();
    }
    for (std::size_t i = 0; i < box.FielderLineCount; ++i) {
        f.Begin(who + " fielder line, great plays");
        f.Number("GreatDefensivePlays", box.fielder[i].GreatDefensivePlays);
        f.End();
    }
}

}  // namespace tarvane
