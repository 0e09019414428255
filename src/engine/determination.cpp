#include "engine/sheets.h"

namespace tarvane {

namespace {

// The notes in the order of their telling: bit n of Play.Notes is the n-th.
constexpr std::array<Tag, 13> kNoteTags{Tag::OutIsError,
                                        Tag::ParkResultOut,
                                        Tag::ParkResultHit,
                                        Tag::YearResultHit,
                                        Tag::YearResultOut,
                                        Tag::ErrorIsOut,
                                        Tag::YearResultIncreased,
                                        Tag::YearResultReduced,
                                        Tag::YearResultGreenK,
                                        Tag::ParkResultReduced,
                                        Tag::ParkResultIncreased,
                                        Tag::PitcherResultReduced,
                                        Tag::PitcherResultIncreased};

// A red cell whose text names no out is an ordinary fly: the colour says that somebody is out.
Result OutNamedBy(const Cell& cell) {
    switch (cell.result) {
        case Result::G:
        case Result::GAdvance:
        case Result::FC:
        case Result::DP:
        case Result::F:
        case Result::FDecision:
        case Result::SF:
        case Result::SFDecision:
        case Result::K: return cell.result;
        default: return Result::F;
    }
}

// With three out a play can gain nothing more: what would move runners becomes the plain out.
void PlainOutAtThree(Play& play) {
    if (play.PlayResult == Result::DP || play.PlayResult == Result::GAdvance) play.PlayResult = Result::G;
    if (play.PlayResult == Result::SF || play.PlayResult == Result::SFDecision) play.PlayResult = Result::F;
}

}  // namespace

void Step::Narrate(Tag tag) {
    if (!listener) return;
    Tell({EventKind::Narration, tag, state.BattingSide, state.sheet, play().ChartRoll, play().PlayResult,
          play().FieldedBy, batting().BatterSlot, play().RunsScoredCount});
}

void Step::Animate(Tag tag) {
    if (!listener) return;
    Tell({EventKind::Animation, tag, state.BattingSide, state.sheet, play().ChartRoll, play().DisplayResult,
          play().FieldedBy, batting().BatterSlot, play().RunsScoredCount});
}

void Step::Sound() {
    if (!listener) return;
    Tell({EventKind::Sound, Tag::None, state.BattingSide, state.sheet, play().ChartRoll, play().PlayResult,
          play().FieldedBy, batting().BatterSlot, 0});
}

void TellNotes(Step& step) {
    if (!step.listener) return;
    for (std::size_t bit = 0; bit < kNoteTags.size(); ++bit)
        if ((static_cast<unsigned>(step.play().Notes) >> bit & 1U) != 0) step.Narrate(kNoteTags[bit]);
}

void BeginPlay(Play& play) {
    play.PlayResult = play.DisplayResult = Result::None;
    play.PitcherSheetEffect = SheetEffect::None;
    play.ParkResult = play.YearResult = ColumnEffect::None;
    play.BBSORating = 0;
    play.GreatPlay = play.AutoOutPlay = play.FieldingDone = play.NearLine = false;
    play.NarrationDone = false;
    play.FieldedBy = play.ErrorBy = play.DecisionErrorBy = play.ForcePivot = Position::None;
    play.errorKind = ErrorKind::None;
    play.playAt = PlayAt::None;
    play.batterHeld = {};
    play.extraBase = ExtraBaseCase::None;
    play.MDResult = ManagerDecisionResult::None;
    play.BuntFoulOut = play.SqueezeDoubledOff = false;
}

void ReadOut(Step& step, const Cell& cell, bool pitcherSheet) {
    Play& play = step.play();
    play.PlayResult = OutNamedBy(cell);
    if (ErrorOnOut(step)) {
        play.PlayResult = Result::E;
        AddNote(play, Note::OutIsError);
    } else {
        play.AutoOutPlay = pitcherSheet;
        ++step.state.Outs;
    }
    ApplyResult(step);
}

void ReadPossibleError(Step& step) {
    Play& play = step.play();
    play.PlayResult = play.DisplayResult = Result::E;
    play.errorKind = PickErrorKind(step);
    PlaceBall(step);
    if (ErrorStands(step, play.FieldedBy)) {
        play.ErrorBy = play.FieldedBy;
    } else {
        play.PlayResult = IsOutfielder(play.FieldedBy) ? Result::F : Result::G;
        ++step.state.Outs;
        if (step.state.sheet == SheetCode::B) AddNote(play, Note::ErrorIsOut);
    }
    ApplyResult(step);
}

void ApplyResult(Step& step) {
    Play& play = step.play();
    if (step.state.Outs >= 3) {
        PlainOutAtThree(play);
        if (play.PlayResult != Result::G || play.values.InfieldRoll >= 75) return;
        play.DisplayResult = Result::G;
        PlaceBall(step);
    }
    AdvanceRunners(step);
}

void WalkIntentionally(Step& step) {
    step.play().buntResult = BuntResult::None;
    BeginPlay(step.play());
    step.play().PlayResult = Result::BB;
    ApplyResult(step);
    EndPitcherSheet(step);
}

}  // namespace tarvane
