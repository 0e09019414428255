#include "engine/sheets.h"

namespace tarvane {

namespace {

bool IsDouble(Result result) {
    return result == Result::Double || result == Result::DoubleAllScore || result == Result::DoubleDecision;
}

bool IsSingle(Result result) {
    return result == Result::Single || result == Result::SingleTwoBases || result == Result::SinglePlus ||
           result == Result::SingleDecision || result == Result::SinglePlusDecision;
}

struct NotePair {
    Note park, year;
};
constexpr NotePair kReduced{Note::ParkResultReduced, Note::YearResultReduced};
constexpr NotePair kIncreased{Note::ParkResultIncreased, Note::YearResultIncreased};

// Whether park or year has this effect on the at-bat; each that has is noted.
bool ColumnsHave(Play& play, ColumnEffect effect, NotePair notes) {
    if (play.ParkResult == effect) AddNote(play, notes.park);
    if (play.YearResult == effect) AddNote(play, notes.year);
    return play.ParkResult == effect || play.YearResult == effect;
}

bool PitcherHas(Play& play, SheetEffect effect, Note note) {
    if (play.PitcherSheetEffect != effect) return false;
    AddNote(play, note);
    return true;
}

// What becomes of a hit of the batter's chart under the effects of the pitcher's roll. Less power counts before more.
Result HitUnderEffects(Play& play, Result hit) {
    if (hit == Result::HR) {
        const bool columns = ColumnsHave(play, ColumnEffect::HRReduced, kReduced);
        const bool pitcher = PitcherHas(play, SheetEffect::HRReduced, Note::PitcherResultReduced);
        if (columns || pitcher) return Result::SinglePlus;
    }
    const bool columns = ColumnsHave(play, ColumnEffect::HRIncreased, kIncreased);
    const bool pitcher = PitcherHas(play, SheetEffect::HRIncreased, Note::PitcherResultIncreased);
    if (columns || pitcher) return Result::HR;
    if (IsDouble(hit) && ColumnsHave(play, ColumnEffect::DoubleReduced, kReduced)) return Result::SinglePlus;
    if (IsSingle(hit) && ColumnsHave(play, ColumnEffect::DoubleIncreased, kIncreased)) return Result::Double;
    if (hit == Result::Triple && ColumnsHave(play, ColumnEffect::TripleReduced, kReduced)) return Result::SinglePlus;
    if ((IsSingle(hit) || IsDouble(hit)) && ColumnsHave(play, ColumnEffect::TripleIncreased, kIncreased))
        return Result::Triple;
    return hit;
}

void Strikeout(Step& step) {
    step.play().PlayResult = Result::K;
    ++step.state.Outs;
}

void ReadGreen(Step& step, const Cell& cell) {
    const bool hit =
        IsSingle(cell.result) || IsDouble(cell.result) || cell.result == Result::Triple || cell.result == Result::HR;
    // Green text that is no hit says nothing: nobody moves, and the turn is over.
    step.play().PlayResult = HitUnderEffects(step.play(), hit ? cell.result : Result::None);
    ApplyResult(step);
}

void ReadOther(Step& step, const Cell& cell) {
    Play& play = step.play();
    const bool yellow = cell.color == CellColor::Yellow;
    if (yellow && (cell.text == CellText::Blank || cell.result == Result::BB)) {
        play.PlayResult = Result::BB;
    } else if (yellow && cell.text == CellText::H) {
        play.PlayResult = Result::HBP;
    } else if (cell.result == Result::E) {
        return ReadPossibleError(step);
    } else {
        play.PlayResult = Result::F;
        ++step.state.Outs;
    }
    ApplyResult(step);
}

void ReadBatterCell(Step& step, const Cell& cell) {
    Play& play = step.play();
    const bool green = cell.color == CellColor::Green;
    if (!green && play.PitcherSheetEffect == SheetEffect::SwingK) {
        play.PitcherSheetEffect = SheetEffect::None;
        if (play.YearResult == ColumnEffect::SwingK) AddNote(play, Note::YearResultGreenK);
        return Strikeout(step);
    }
    if (green) return ReadGreen(step, cell);
    if (cell.color == CellColor::Blue) return Strikeout(step);
    if (cell.color == CellColor::Red) return ReadOut(step, cell, false);
    ReadOther(step, cell);
}

bool IsBallInPlay(Result result) {
    return result != Result::K && result != Result::BB && result != Result::HBP && result != Result::None;
}

}  // namespace

const Chart& BatterChart(const GameData& data, const GameState& state) {
    static constexpr Chart kNoBatter{};
    const PlayerRef batter = state.AtBat().player;
    if (batter.Nobody()) return kNoBatter;
    const TeamData& team = data[state.BattingSide];
    const auto index = static_cast<std::size_t>(batter.index);
    if (batter.type == 'P') return team.pitcherCharts[index].Bat;
    const BatterCharts& charts = team.batterCharts[index];
    return state.Fielding().PitcherThrows == kRightHand ? charts.vsR : charts.vsL;
}

void ReadRatingTest(Step& step) {
    Play& play = step.play();
    const bool passed = play.ChartRoll < play.BBSORating;
    const bool walk = play.PitcherSheetEffect == SheetEffect::BB;
    play.PitcherSheetEffect = SheetEffect::None;
    play.BBSORating = 0;
    if (!passed) {
        play.PlayResult = Result::Swing;
        step.state.sheet = SheetCode::B;
        return;
    }
    if (walk) {
        play.PlayResult = Result::BB;
        ApplyResult(step);
    } else {
        play.AutoOutPlay = true;
        Strikeout(step);
    }
    step.Sound();
    step.Animate(Tag::PitcherToCatcher);
    step.Narrate(Tag::PitcherResult);
    FinishPlay(step);
}

void ReadBatterSheet(Step& step) {
    Play& play = step.play();
    play.FieldingDone = play.NearLine = false;
    play.FieldedBy = play.ErrorBy = Position::None;
    ReadBatterCell(step, CellAt(BatterChart(step.data, step.state), play.ChartRoll));
    if (!Suspended(step)) EndBatterSheet(step);
}

void EndBatterSheet(Step& step) {
    Play& play = step.play();
    play.StealHomeTried = false;
    if (!play.NarrationDone) {
        step.Sound();
        if (IsBallInPlay(play.PlayResult)) {
            step.Animate(Tag::PitcherThrow);
            play.DisplayResult = play.PlayResult;
            ResolveFielding(step);
        }
    }
    const Result result = play.PlayResult;
    if (result == Result::K || result == Result::BB) step.Animate(Tag::PitcherToCatcher);
    if (result == Result::HBP) step.Animate(Tag::HBP);
    if (result == Result::K || result == Result::BB || result == Result::HBP) step.Narrate(Tag::PitcherResult);
    TellNotes(step);
    FinishPlay(step);
}

}  // namespace tarvane
