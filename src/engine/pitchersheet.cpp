#include "engine/sheets.h"

namespace tarvane {

namespace {

// What a cell of the pitcher's sheet asks for.
enum class PitcherCall : std::uint8_t {
    ParkFly,
    YearGround,
    Swing,
    Defence,
    PlusSingle,
    GreenK,
    LessPower,
    MorePower,
    Strikeout,
    Out,
    Walk,
    HitBatter,
    WildPitch,
    PassedBall,
    YellowX,
    PossibleError
};

ColumnEffect EffectOf(const Cell& cell) {
    switch (cell.text) {
        case CellText::TripleReduced: return ColumnEffect::TripleReduced;
        case CellText::HRReduced: return ColumnEffect::HRReduced;
        case CellText::Result: break;
        default: return ColumnEffect::None;
    }
    switch (cell.result) {
        case Result::Double: return ColumnEffect::DoubleIncreased;
        case Result::DoubleDecision: return ColumnEffect::DoubleReduced;
        case Result::Triple: return ColumnEffect::TripleIncreased;
        case Result::HR: return ColumnEffect::HRIncreased;
        case Result::SinglePlus: return ColumnEffect::SinglePlus;
        default: return ColumnEffect::None;
    }
}

ColumnEffect ParkEffect(const Cell& cell) {
    return cell.text == CellText::Result && cell.result == Result::F ? ColumnEffect::FlyOut : EffectOf(cell);
}

ColumnEffect YearEffect(const Cell& cell) {
    if (cell.text == CellText::K) return ColumnEffect::SwingK;
    return cell.text == CellText::Result && cell.result == Result::G ? ColumnEffect::GroundOut : EffectOf(cell);
}

PitcherCall CallOfGreen(const Cell& cell, ColumnEffect year) {
    const bool yearK = year == ColumnEffect::SwingK;
    if (cell.text == CellText::Blank && !yearK) return PitcherCall::Swing;
    if (cell.text == CellText::D) return PitcherCall::Defence;
    if (cell.result == Result::SinglePlus) return PitcherCall::PlusSingle;
    if (cell.text == CellText::K || yearK) return PitcherCall::GreenK;
    if (cell.text == CellText::HRReduced) return PitcherCall::LessPower;
    if (cell.result == Result::HR) return PitcherCall::MorePower;
    return PitcherCall::Swing;
}

PitcherCall CallOfYellow(const Cell& cell) {
    if (cell.text == CellText::Blank || cell.result == Result::BB) return PitcherCall::Walk;
    if (cell.text == CellText::H) return PitcherCall::HitBatter;
    if (cell.result == Result::WP) return PitcherCall::WildPitch;
    if (cell.result == Result::PB) return PitcherCall::PassedBall;
    return cell.text == CellText::X ? PitcherCall::YellowX : PitcherCall::Swing;
}

// The outs of park and year come before everything but the pitcher's own outs.
PitcherCall CallOf(const Cell& cell, ColumnEffect park, ColumnEffect year) {
    if (cell.color == CellColor::Blue) return PitcherCall::Strikeout;
    if (cell.color == CellColor::Red) return PitcherCall::Out;
    if (park == ColumnEffect::FlyOut) return PitcherCall::ParkFly;
    if (year == ColumnEffect::GroundOut) return PitcherCall::YearGround;
    if (cell.color == CellColor::Green) return CallOfGreen(cell, year);
    if (cell.color == CellColor::Yellow) return CallOfYellow(cell);
    if (cell.color == CellColor::White && cell.result == Result::E) return PitcherCall::PossibleError;
    return PitcherCall::Swing;
}

void ReadColumns(Step& step) {
    Play& play = step.play();
    if (step.data.rules.UseParkEffects) play.ParkResult = ParkEffect(CellAt(step.data.parkChart, play.ChartRoll));
    if (step.data.rules.UseYearEffects) play.YearResult = YearEffect(CellAt(step.data.yearChart, play.ChartRoll));
}

void OutByColumn(Step& step, Result result, Note note) {
    step.play().PlayResult = result;
    ++step.state.Outs;
    AddNote(step.play(), note);
    ApplyResult(step);
}

void ReadDefence(Step& step) {
    Play& play = step.play();
    DefenceCell(step);
    if (play.PlayResult != Result::None) {
        play.GreatPlay = true;
        ++step.state.Outs;
        ApplyResult(step);
        return;
    }
    const TeamState& defence = step.fielding();
    const bool oddRoll = play.ChartRoll == 13 || play.ChartRoll == 15;
    if (defence.PitcherTired || (defence.PitcherIntermediateTired && oddRoll && !defence.PitcherHasOutCells)) {
        play.PlayResult = Result::SinglePlus;
        ApplyResult(step);
    } else {
        play.PlayResult = Result::Swing;
    }
}

std::uint8_t TestedRating(const Step& step, SheetEffect effect) {
    const PlayerRef batter = step.state.AtBat().player;
    const TeamData& team = step.data[step.state.BattingSide];
    const auto index = static_cast<std::size_t>(batter.index);
    if (batter.Nobody()) return 40;
    const bool walk = effect == SheetEffect::BB;
    if (batter.type == 'P') return walk ? team.pitcherCharts[index].BBRating : team.pitcherCharts[index].SORating;
    return walk ? team.batterCharts[index].BBRating : team.batterCharts[index].SORating;
}

// A walk or a strikeout of the pitcher may have to pass the batter's own rating; true if that roll comes next.
bool RatingTestDue(Step& step, SheetEffect effect) {
    if (!step.data.rules.BatterBBSORating) return false;
    const std::uint8_t rating = TestedRating(step, effect);
    if (rating >= 40) return false;
    step.Narrate(Tag::PitcherThrow);
    step.play().PitcherSheetEffect = effect;
    step.play().BBSORating = rating;
    step.state.sheet = SheetCode::BBSO;
    return true;
}

void SendToBatter(Play& play, SheetEffect effect, Result result) {
    play.PitcherSheetEffect = effect;
    play.PlayResult = result;
}

void ReadStrikeout(Step& step) {
    Play& play = step.play();
    const TeamState& defence = step.fielding();
    if (defence.PitcherTired || defence.PitcherIntermediateTired)
        return SendToBatter(play, SheetEffect::SwingK, Result::SwingK);
    if (RatingTestDue(step, SheetEffect::SO)) return;
    play.AutoOutPlay = true;
    play.PlayResult = Result::K;
    ++step.state.Outs;
}

// A tired pitcher keeps only the outs that his fielders make for him, those of the first six rolls.
void ReadPitcherOut(Step& step, const Cell& cell) {
    Play& play = step.play();
    const TeamState& defence = step.fielding();
    play.GreatPlay = play.ChartRoll <= 15;
    if ((defence.PitcherTired || defence.PitcherIntermediateTired) && !play.GreatPlay)
        play.PlayResult = Result::Swing;
    else
        ReadOut(step, cell, true);
}

void ReadFreeBase(Step& step, Result result) {
    if (result == Result::BB && RatingTestDue(step, SheetEffect::BB)) return;
    step.play().PlayResult = result;
    ApplyResult(step);
}

void ReadYellowCellX(Step& step) {
    const bool injuries = step.data.rules.UseYellowXInjuryChart;
    step.play().PlayResult = injuries ? Result::YellowXInj : Result::YellowX;
    step.state.sheet = injuries ? SheetCode::XI : SheetCode::X;
}

void Obey(Step& step, PitcherCall call, const Cell& cell) {
    Play& play = step.play();
    switch (call) {
        case PitcherCall::ParkFly: OutByColumn(step, Result::F, Note::ParkResultOut); break;
        case PitcherCall::YearGround: OutByColumn(step, Result::G, Note::YearResultOut); break;
        case PitcherCall::Swing: play.PlayResult = Result::Swing; break;
        case PitcherCall::Defence: ReadDefence(step); break;
        case PitcherCall::PlusSingle:
            play.PlayResult = Result::SinglePlus;
            ApplyResult(step);
            break;
        case PitcherCall::GreenK: SendToBatter(play, SheetEffect::SwingK, Result::SwingK); break;
        case PitcherCall::LessPower: SendToBatter(play, SheetEffect::HRReduced, Result::SwingHR); break;
        case PitcherCall::MorePower: SendToBatter(play, SheetEffect::HRIncreased, Result::SwingHR); break;
        case PitcherCall::Strikeout: ReadStrikeout(step); break;
        case PitcherCall::Out: ReadPitcherOut(step, cell); break;
        case PitcherCall::Walk: ReadFreeBase(step, Result::BB); break;
        case PitcherCall::HitBatter: ReadFreeBase(step, Result::HBP); break;
        case PitcherCall::WildPitch: ReadFreeBase(step, Result::WP); break;
        case PitcherCall::PassedBall: ReadFreeBase(step, Result::PB); break;
        case PitcherCall::YellowX: ReadYellowCellX(step); break;
        case PitcherCall::PossibleError: ReadPossibleError(step); break;
    }
}

// A "1+" beside the pitcher's chart turns a plain swing into that single.
void ColumnHit(Step& step) {
    Play& play = step.play();
    if (play.PlayResult != Result::Swing) return;
    const bool year = play.YearResult == ColumnEffect::SinglePlus;
    const bool park = play.ParkResult == ColumnEffect::SinglePlus;
    if (!year && !park) return;
    if (year) AddNote(play, Note::YearResultHit);
    if (park) AddNote(play, Note::ParkResultHit);
    play.PlayResult = Result::SinglePlus;
    ApplyResult(step);
}

bool BuntedFoulWithTwoStrikes(Step& step) {
    Play& play = step.play();
    const bool twoStrikes = play.buntResult == BuntResult::TwoK;
    play.buntResult = BuntResult::None;
    if (!twoStrikes || (play.ChartRoll != 35 && play.ChartRoll != 36)) return false;
    play.PlayResult = Result::K;
    ++step.state.Outs;
    return true;
}

bool IsFreePitch(Result result) {
    return result == Result::BB || result == Result::HBP || result == Result::WP || result == Result::PB;
}

void TellPitch(Step& step) {
    const Result result = step.play().PlayResult;
    if (result == Result::K || result == Result::BB) step.Animate(Tag::PitcherToCatcher);
    if (result == Result::HBP) step.Animate(Tag::HBP);
    if (result == Result::WP || result == Result::PB) step.Animate(Tag::WPOrPB);
    if (result == Result::K || IsFreePitch(result)) step.Narrate(Tag::PitcherResult);
}

}  // namespace

const Cell& PitcherCell(const GameData& data, const GameState& state, int chartRoll) {
    const TeamState& defence = state.Fielding();
    if (chartRoll <= 15 && data.rules.DefensiveErasInForce()) {
        const int total = defence.DRTotal < 0 ? 0 : defence.DRTotal;
        for (std::size_t i = 0; i < data.eraCells.size(); ++i) {
            const DefensiveEraRange& range = data.defensiveEra.range[i];
            if (total < range.StartRange || total > range.EndRange) continue;
            return data.eraCells[i][static_cast<std::size_t>(chartRoll - kFirstRoll)];
        }
    }
    static constexpr Cell kNoPitcher{};  // an empty sheet reads as a swing everywhere
    if (defence.pitcher.Nobody()) return kNoPitcher;
    return CellAt(data[state.FieldingSide()].pitcherCharts[static_cast<std::size_t>(defence.pitcher.index)].pitch,
                  chartRoll);
}

void ReadPitcherSheet(Step& step) {
    Play& play = step.play();
    step.state.PlayStarted = true;
    BeginPlay(play);
    if (BuntedFoulWithTwoStrikes(step)) return EndPitcherSheet(step);
    ReadColumns(step);
    const Cell& cell = PitcherCell(step.data, step.state, play.ChartRoll);
    Obey(step, CallOf(cell, play.ParkResult, play.YearResult), cell);
    if (step.state.sheet != SheetCode::P) return;
    ColumnHit(step);
    if (Suspended(step)) return;
    if (play.PlayResult == Result::Swing || play.PlayResult == Result::SwingK || play.PlayResult == Result::SwingHR) {
        step.Narrate(Tag::PitcherThrow);
        step.state.sheet = SheetCode::B;
        return;
    }
    EndPitcherSheet(step);
}

void EndPitcherSheet(Step& step) {
    Play& play = step.play();
    play.StealHomeTried = false;
    if (!play.NarrationDone) {
        if (play.ChartRoll != 0) step.Narrate(Tag::PitcherThrow);
        step.Sound();
        // Every ball in play is placed: the put-outs and assists of the box score hang on it.
        if (play.PlayResult != Result::K && !IsFreePitch(play.PlayResult)) {
            play.DisplayResult = play.PlayResult;
            ResolveFielding(step);
        }
    }
    if (step.listener) TellPitch(step);
    TellNotes(step);
    FinishPlay(step);
}

}  // namespace tarvane
