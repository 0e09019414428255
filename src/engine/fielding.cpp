#include <algorithm>

#include "engine/sheets.h"

namespace tarvane {

namespace {

// Rows of the fielding chart, by kind of play.
enum FieldingRow : int { kGroundBall, kFlyBall, kDefence, kBunt, kInfieldSingle, kOutfield, kOtherError, kNoRow };

FieldingRow RowOf(Result result, ErrorKind kind, SheetCode sheet) {
    if (sheet == SheetCode::Bt || result == Result::BuntMiss || result == Result::SH) return kBunt;
    switch (result) {
        case Result::G:
        case Result::GAdvance:
        case Result::FC:
        case Result::DP: return kGroundBall;
        case Result::F: return kFlyBall;
        case Result::Defence: return kDefence;
        case Result::Single: return kInfieldSingle;
        case Result::SingleTwoBases:
        case Result::SinglePlus:
        case Result::SingleDecision:
        case Result::SinglePlusDecision:
        case Result::Double:
        case Result::DoubleAllScore:
        case Result::DoubleDecision:
        case Result::Triple:
        case Result::HR:
        case Result::SF:
        case Result::SFDecision:
        case Result::FDecision: return kOutfield;
        case Result::E: {
            const bool far = kind == ErrorKind::EPlusPlus || kind == ErrorKind::ED;
            return sheet == SheetCode::B && far ? kOutfield : kOtherError;
        }
        default: return kNoRow;
    }
}

Position FielderIn(const Cell& cell, bool left) {
    switch (cell.text) {
        case CellText::InsideCorner: return left ? Position::B1 : Position::B3;
        case CellText::InfieldMiddle: return left ? Position::B2 : Position::SS;
        case CellText::OutfieldPull: return left ? Position::RF : Position::LF;
        default: return IsFielder(cell.position) ? cell.position : Position::None;
    }
}

bool MustReachOutfield(Result result) {
    return result == Result::FDecision || result == Result::SingleDecision || result == Result::SinglePlusDecision ||
           result == Result::DoubleDecision || result == Result::SFDecision;
}

Position OutfielderBehind(Position placed, int flyFielderRoll) {
    switch (placed) {
        case Position::None: return placed;
        case Position::B1: return Position::RF;
        case Position::B3: return Position::LF;
        case Position::P:
        case Position::C: return Position::CF;
        default: return flyFielderRoll <= 50 ? Position::CF : flyFielderRoll <= 75 ? Position::LF : Position::RF;
    }
}

struct Telling {
    Tag animation = Tag::None, event = Tag::None, followUp = Tag::None;
};

Telling TellingOfError(ErrorKind kind, bool outfield) {
    if (!outfield) {
        const Tag tag = kind == ErrorKind::EPlus ? Tag::BatterErrorGround2 : Tag::BatterErrorGround;
        return {tag, tag, Tag::None};
    }
    switch (kind) {
        case ErrorKind::EPlus: return {Tag::BatterErrorFly2, Tag::Error2B, Tag::Error2B2};
        case ErrorKind::EPlusPlus: return {Tag::BatterErrorFly3, Tag::Error3B, Tag::Error3B2};
        case ErrorKind::ED: return {Tag::BatterErrorFlyD, Tag::Error, Tag::Error2};
        default: return {Tag::BatterErrorFly, Tag::Error, Tag::Error2};
    }
}

Tag AnimationOfPlayAt(PlayAt where) {
    if (where == PlayAt::Second) return Tag::PlayAtSecond;
    return where == PlayAt::Home ? Tag::PlayAtHome : Tag::GroundOut;
}

Telling TellingOf(const Play& play, SheetCode sheet) {
    const bool bunt = sheet == SheetCode::Bt;
    if (bunt && play.buntResult == BuntResult::SHE) return {Tag::BatterErrorGround, Tag::BuntSingle, Tag::BuntSingle2};
    if (bunt && play.buntResult == BuntResult::SHF) return {Tag::Single, Tag::BuntSingle, Tag::BuntSingle2};
    if (bunt && play.BuntFoulOut) return {Tag::BuntFoul, Tag::BuntFoulOut, Tag::None};
    switch (play.DisplayResult) {
        case Result::SH:
        case Result::G:
        case Result::GAdvance:
        case Result::FC: {
            const Tag animation = AnimationOfPlayAt(play.playAt);
            return bunt ? Telling{animation, Tag::BuntGroundOut, Tag::BuntGroundOut2}
                        : Telling{animation, Tag::GroundOut, Tag::GroundOut2};
        }
        case Result::DP:
            return bunt ? Telling{Tag::DoublePlay, Tag::BuntDoublePlay, Tag::BuntDoublePlay2}
                        : Telling{Tag::DoublePlay, Tag::DoublePlay, Tag::DoublePlay2};
        case Result::F:
        case Result::SF:
        case Result::SFDecision:
        case Result::FDecision:
            return bunt ? Telling{Tag::FlyOut, Tag::BuntFlyOut, Tag::BuntFlyOut2}
                        : Telling{Tag::FlyOut, Tag::FlyOut, Tag::FlyOut2};
        case Result::E: return TellingOfError(play.errorKind, IsOutfielder(play.FieldedBy));
        case Result::Single:
        case Result::SingleTwoBases:
        case Result::SinglePlus:
        case Result::SingleDecision:
        case Result::SinglePlusDecision:
            return bunt ? Telling{Tag::Single, Tag::BuntSingle, Tag::BuntSingle2}
                        : Telling{Tag::Single, Tag::Single, Tag::Single2};
        case Result::Double:
        case Result::DoubleAllScore:
        case Result::DoubleDecision:
        case Result::Triple: return {Tag::ExtraBaseHit, Tag::ExtraBaseHit, Tag::ExtraBaseHit2};
        case Result::HR: return {Tag::HomeRun, Tag::HomeRun, Tag::HomeRun2};
        case Result::BuntMiss: return {Tag::PitcherToCatcher, Tag::BuntMiss, Tag::None};
        default: return {};
    }
}

void TellFielding(Step& step) {
    const Telling telling = TellingOf(step.play(), step.state.sheet);
    if (telling.event != Tag::None) step.Narrate(telling.event);
    if (telling.animation != Tag::None) step.Animate(telling.animation);
    if (telling.followUp != Tag::None) step.Narrate(telling.followUp);
}

}  // namespace

bool BatsLeft(const GameState& state) {
    const std::int32_t bats = state.AtBat().bats;
    if (bats == kSwitchHitter) return state.Fielding().PitcherThrows != kLeftHand;
    return bats == kLeftHand;
}

void PlaceBall(Step& step) {
    Play& play = step.play();
    if (play.ErrorBy != Position::None || play.FieldedBy != Position::None) return;
    const FieldingRow row = RowOf(play.DisplayResult, play.errorKind, step.state.sheet);
    if (row == kNoRow) return;
    const Chart& chart = step.data.compiled.Fielding[static_cast<std::size_t>(row)];
    play.FieldedBy = FielderIn(CellAt(chart, play.values.FieldingRoll), BatsLeft(step.state));
    if (MustReachOutfield(play.DisplayResult))
        play.FieldedBy = OutfielderBehind(play.FieldedBy, play.values.FlyFielderRoll);
}

void ResolveFielding(Step& step) {
    Play& play = step.play();
    PlaceBall(step);
    if (play.FieldingDone) return;
    play.FieldingDone = true;
    if (step.state.sheet == SheetCode::Bt && play.buntResult == BuntResult::SHE) play.ErrorBy = play.FieldedBy;
    const bool toCorner = play.FieldedBy == Position::LF || play.FieldedBy == Position::RF;
    const bool longHit = play.DisplayResult == Result::Triple || play.DisplayResult == Result::HR;
    play.NearLine = longHit && toCorner && play.values.RunnerRoll >= 71 && play.values.RunnerRoll <= 80;
    if (step.listener) TellFielding(step);
}

void DefenceCell(Step& step) {
    Play& play = step.play();
    play.PlayResult = Result::None;
    play.FieldedBy = Position::None;
    const int roll = play.ChartRoll;
    const bool automatic =
        roll <= 15 && (static_cast<unsigned>(step.fielding().AutoOuts) >> (roll - kFirstRoll) & 1U) != 0;
    if (!automatic) return;
    play.DisplayResult = step.data.rules.AutoOutsForOF ? Result::Defence : Result::G;
    if (play.DisplayResult == Result::Defence) PlaceBall(step);
    play.PlayResult = IsOutfielder(play.FieldedBy) ? Result::F : Result::G;
}

ErrorKind PickErrorKind(const Step& step) {
    if (!step.data.rules.SpecialErrorRule) return ErrorKind::E;
    switch (step.state.play.values.ErrorKindRoll) {
        case 24:
        case 34: return ErrorKind::EPlus;
        case 12:
        case 18:
        case 39: return ErrorKind::EPlusPlus;
        case 23:
        case 25:
        case 33:
        case 35: return ErrorKind::ED;
        default: return ErrorKind::E;
    }
}

bool ErrorStands(const Step& step, Position by) {
    if (by == Position::None) return false;
    if (!step.data.rules.UseErrorRatings) return true;
    char letter = 'V';
    // Pitchers and catchers are always tested as average: the error chart was weighed on that.
    if (by != Position::P && by != Position::C) {
        const auto& lineup = step.state.Fielding().lineup;
        const auto slot =
            std::find_if(lineup.begin(), lineup.end(), [&](const LineupSlot& s) { return s.position == by; });
        if (slot != lineup.end()) letter = slot->SlotErrorRating;
    }
    const auto row = static_cast<std::size_t>(ErrorRatingRowOf(letter));
    return step.data.compiled.ErrorStands[row][static_cast<std::size_t>(step.state.play.values.ErrorColumn - 1)];
}

bool ErrorOnOut(Step& step) {
    Play& play = step.play();
    play.ErrorBy = Position::None;
    const LeagueRules& rules = step.data.rules;
    if (!rules.UseErrorRatings || rules.DoNotCauseErrorsFromOuts) return false;
    if (play.values.ErrorRoll != 17 && play.values.ErrorRoll != 19) return false;
    play.errorKind = PickErrorKind(step);
    play.DisplayResult = play.PlayResult;
    PlaceBall(step);
    if (!ErrorStands(step, play.FieldedBy)) return false;
    play.ErrorBy = play.FieldedBy;
    return true;
}

}  // namespace tarvane
