#include <algorithm>

#include "narration/naming.h"
#include "narration/narrator.h"

namespace tarvane {

namespace {

using Keys = std::vector<std::string_view>;

bool Outfield(const GameState& state) {
    return IsOutfielder(state.play.FieldedBy);
}

bool AnyoneOnBase(const GameState& state) {
    const auto& runner = state.Batting().runner;
    return runner[1].On() || runner[2].On() || runner[3].On();
}

// Somebody stood on base when the ball got away: he has moved up or scored by now.
bool RunnersMoved(const GameState& state) {
    return AnyoneOnBase(state) || state.play.RunsScoredCount > 0;
}

Keys GroundOutEnd(const GameState& state) {
    const Play& play = state.play;
    Keys keys;
    if (play.GreatPlay) keys.push_back("GroundOut2.nice");
    if (play.playAt == PlayAt::Second)
        keys.push_back(state.Outs == 3 ? "GroundOut2.secondEnds" : "GroundOut2.second");
    else if (play.playAt == PlayAt::Home)
        keys.push_back("GroundOut2.home");
    else if (play.FieldedBy == Position::B1)
        keys.push_back("GroundOut2.unassisted");
    else
        keys.push_back("GroundOut2.first");
    const auto& runner = state.Batting().runner;
    const bool moved = play.RunsScoredCount > 0 || runner[2].On() || runner[3].On();
    if (play.PlayResult == Result::GAdvance && state.Outs < 3 && moved) keys.push_back("GroundOut2.moved");
    return keys;
}

Keys PitcherResult(const GameState& state) {
    switch (state.play.PlayResult) {
        case Result::K: return {"PitcherResult.K"};
        case Result::BB: return {state.play.ChartRoll == 0 ? "PitcherResult.IBB" : "PitcherResult.BB"};
        case Result::HBP: return {"PitcherResult.HBP"};
        case Result::WP: return {RunnersMoved(state) ? "PitcherResult.WP" : "PitcherResult.WP.empty"};
        case Result::PB: return {RunnersMoved(state) ? "PitcherResult.PB" : "PitcherResult.PB.empty"};
        case Result::BK: return {RunnersMoved(state) ? "PitcherResult.BK" : "PitcherResult.BK.empty"};
        default: return {};
    }
}

Keys InfieldError(const GameState& state) {
    const Play& play = state.play;
    if (play.errorKind != ErrorKind::EPlus) return {"Error.infield", "Error2.infield"};
    if (play.playAt == PlayAt::Second) return {"Error.infield", "Error2B2.second"};
    if (play.playAt == PlayAt::Home) return {"Error.infield", "Error2B2.home"};
    return {"Error.infield", "Error2B2.infield"};
}

Keys BuntGroundOutEnd(const GameState& state) {
    const Play& play = state.play;
    if (play.playAt == PlayAt::Second) return {"BuntGroundOut2.second"};
    if (play.playAt == PlayAt::Home) return {"BuntGroundOut2.home"};
    return {play.PlayResult == Result::SH ? "BuntGroundOut2" : "BuntGroundOut2.ground"};
}

Keys BuntSingleEnd(const GameState& state) {
    if (state.play.buntResult == BuntResult::SHE) return {"BuntSingle2.error"};
    return {state.play.buntResult == BuntResult::SHF ? "BuntSingle2.choice" : "BuntSingle2"};
}

bool HomeIsTheBase(const GameState& state) {
    return ExtraBaseOf(state).base == 4;
}

// After a throw that let others move: the batter on a hit, the men behind the runner on a fly.
Keys MovedOnTheThrow(const GameState& state, std::string_view outcome) {
    const Play& play = state.play;
    const auto& runner = state.Batting().runner;
    if (play.PlayResult == Result::SFDecision)
        return play.extraBase == ExtraBaseCase::Both ? Keys{outcome, "MDStar.runners"} : Keys{outcome};
    if (play.PlayResult == Result::FDecision)
        return runner[1].On() || runner[2].On() ? Keys{outcome, "MDStar.runners"} : Keys{outcome};
    return {outcome, "MDStar"};
}

Keys InningEnd(const GameState& state, std::string_view tied, std::string_view lead) {
    return {state[Side::Visitor].Runs == state[Side::Home].Runs ? tied : lead};
}

Keys RunsScored(const GameState& state, const GameEvent& event) {
    Keys keys;
    const Play& play = state.play;
    if (play.PlayResult != Result::HR) keys.push_back("RunsScored.count");
    const int ours = state.Batting().Runs;
    const int theirs = state.Fielding().Runs;
    if (ours == theirs)
        keys.push_back("RunsScored.tied");
    else if (ours > theirs && ours - event.number <= theirs)
        keys.push_back("RunsScored.lead");
    else
        keys.push_back("RunsScored.other");
    if (play.PlayResult == Result::SF || (play.PlayResult == Result::SFDecision))
        keys.push_back("RunsScored.sacrifice");
    return keys;
}

Keys HomeRunWorth(int runsBattedIn) {
    constexpr std::string_view kWorth[]{"HomeRunRBI.1", "HomeRunRBI.2", "HomeRunRBI.3", "HomeRunRBI.4"};
    if (runsBattedIn < 1 || runsBattedIn > 4) return {};
    return {kWorth[runsBattedIn - 1]};
}

Keys WalkOff(const GameState& state) {
    switch (state.play.PlayResult) {
        case Result::HR: return {"WalkOff.homer"};
        case Result::Double:
        case Result::DoubleAllScore:
        case Result::DoubleDecision:
        case Result::Triple: return {"WalkOff.extra"};
        case Result::Single:
        case Result::SingleTwoBases:
        case Result::SinglePlus:
        case Result::SingleDecision:
        case Result::SinglePlusDecision: return {"WalkOff.single"};
        default: return {"WalkOff.other"};
    }
}

Keys PossibleInjury(const Play& play) {
    const bool known = play.InjuredBatter || play.InjuredPosition != Position::None;
    return {known ? "PossibleInjury" : "PossibleInjury.unknown"};
}

Keys Extra(const GameState& state, std::string_view home, std::string_view elsewhere) {
    return {HomeIsTheBase(state) ? home : elsewhere};
}

// The small charts: bunts, steals and extra bases.
Keys SmallChartSituations(const GameState& state, const GameEvent& event) {
    const Play& play = state.play;
    switch (event.tag) {
        case Tag::BuntGroundOut: return {"BuntGroundOut"};
        case Tag::BuntGroundOut2: return BuntGroundOutEnd(state);
        case Tag::BuntDoublePlay: return {"BuntDoublePlay"};
        case Tag::BuntDoublePlay2: return {"BuntDoublePlay2"};
        case Tag::BuntFlyOut: return {"BuntFlyOut"};
        case Tag::BuntFlyOut2: return {play.SqueezeDoubledOff ? "BuntFlyOut2.doubled" : "BuntFlyOut2"};
        case Tag::BuntSingle: return {"BuntSingle"};
        case Tag::BuntSingle2: return BuntSingleEnd(state);
        case Tag::BuntMiss: return {"BuntMiss"};
        case Tag::BuntMiss2: return {play.PlayResult == Result::SB ? "BuntMiss2.safe" : "BuntMiss2.out"};
        case Tag::BuntFoul: return {play.buntType == BuntType::Squeeze ? "BuntFoul.squeeze" : "BuntFoul"};
        case Tag::BuntFoulOut: return {"BuntFoul", "BuntFoulOut"};
        case Tag::SBSafe:
        case Tag::SBSafeError:
        case Tag::SBError:
        case Tag::SBOut: return {"Steal"};
        case Tag::SBSafe2: return {"Steal2.safe"};
        case Tag::SBSafeError2: return {"Steal2.error"};
        case Tag::SBError2: return {"Steal2.saved"};
        case Tag::SBOut2: return {"Steal2.out"};
        case Tag::PickOff: return {"PickOff"};
        case Tag::MDPlay: return Extra(state, "MDPlay.home", "MDPlay");
        case Tag::MDSafe: return Extra(state, "MDSafe.home", "MDSafe");
        case Tag::MDSafeStar: return MovedOnTheThrow(state, HomeIsTheBase(state) ? "MDSafe.home" : "MDSafe");
        case Tag::MDSafeErr: return {"MDSafeErr"};
        case Tag::MDErr: return {"MDErr"};
        case Tag::MDOut: return Extra(state, "MDOut.home", "MDOut");
        case Tag::MDOutStar: return MovedOnTheThrow(state, HomeIsTheBase(state) ? "MDOut.home" : "MDOut");
        default: return {};
    }
}

Keys BattedBallSituations(const GameState& state, const GameEvent& event) {
    const Play& play = state.play;
    switch (event.tag) {
        case Tag::GroundOut: return {"GroundOut"};
        case Tag::GroundOut2: return GroundOutEnd(state);
        case Tag::DoublePlay: return {"DoublePlay"};
        case Tag::DoublePlay2: return {"DoublePlay2"};
        case Tag::FlyOut: return {Outfield(state) ? "FlyOut" : "FlyOut.infield"};
        case Tag::FlyOut2: return {play.GreatPlay ? "FlyOut2.nice" : "FlyOut2"};
        case Tag::Single: return {Outfield(state) ? "Single" : "Single.infield"};
        case Tag::Single2: return {Outfield(state) ? "Single2" : "Single2.infield"};
        case Tag::ExtraBaseHit: return {play.NearLine ? "ExtraBaseHit.line" : "ExtraBaseHit"};
        case Tag::ExtraBaseHit2:
            return {play.DisplayResult == Result::Triple ? "ExtraBaseHit2.triple" : "ExtraBaseHit2.double"};
        case Tag::HomeRun: return {play.NearLine ? "HomeRun.line" : "HomeRun"};
        case Tag::HomeRun2: return {"HomeRun2"};
        case Tag::HomeRunRBI: return HomeRunWorth(event.number);
        case Tag::Error:
        case Tag::Error2B:
        case Tag::Error3B: return {Outfield(state) ? "Error.outfield" : "Error.infield"};
        case Tag::Error2: return {Outfield(state) ? "Error2.outfield" : "Error2.infield"};
        case Tag::Error2B2: return {Outfield(state) ? "Error2B2.outfield" : "Error2B2.infield"};
        case Tag::Error3B2: return {"Error3B2"};
        case Tag::BatterErrorGround:
        case Tag::BatterErrorGround2: return InfieldError(state);
        default: return {};
    }
}

// Remarks on what changed a result.
Keys RemarkSituations(const GameEvent& event) {
    switch (event.tag) {
        case Tag::OutIsError: return {"OutIsError"};
        case Tag::ErrorIsOut: return {"ErrorIsOut"};
        case Tag::ParkResultOut: return {"ParkResultOut"};
        case Tag::ParkResultHit: return {"ParkResultHit"};
        case Tag::ParkResultReduced: return {"ParkResultReduced"};
        case Tag::ParkResultIncreased: return {"ParkResultIncreased"};
        case Tag::YearResultHit: return {"YearResultHit"};
        case Tag::YearResultOut: return {"YearResultOut"};
        case Tag::YearResultIncreased: return {"YearResultIncreased"};
        case Tag::YearResultReduced: return {"YearResultReduced"};
        case Tag::YearResultGreenK: return {"YearResultGreenK"};
        case Tag::PitcherResultReduced: return {"PitcherResultReduced"};
        case Tag::PitcherResultIncreased: return {"PitcherResultIncreased"};
        default: return {};
    }
}

Keys GameSituations(const GameState& state, const GameEvent& event) {
    switch (event.tag) {
        case Tag::PitcherThrow: return {"PitcherThrow"};
        case Tag::PitcherResult: return PitcherResult(state);
        case Tag::PitcherTired: return {"PitcherTired"};
        case Tag::PitcherIntermediateTired: return {"PitcherIntermediateTired"};
        case Tag::Pitcher2ndWind: return {"Pitcher2ndWind"};
        case Tag::PossibleInjury: return PossibleInjury(state.play);
        case Tag::PossibleInjury2: return {"PossibleInjury2"};
        case Tag::InjuryResult: return {"InjuryResult"};
        case Tag::RunsScored: return RunsScored(state, event);
        case Tag::EndOfInningMiddle: return InningEnd(state, "EndOfInningMiddle.tied", "EndOfInningMiddle.lead");
        case Tag::EndOfInning: return InningEnd(state, "EndOfInning.tied", "EndOfInning.lead");
        case Tag::WalkOff: return WalkOff(state);
        case Tag::GameOver: return {"GameOver"};
        case Tag::NewPitcher: return {"NewPitcher"};
        case Tag::PinchHitter: return {"PinchHitter"};
        case Tag::PinchRunner: return {"PinchRunner"};
        case Tag::DefensiveChange: return {"DefensiveChange"};
        default: return {};
    }
}

}  // namespace

std::vector<std::string_view> SituationsOf(const GameData&, const GameState& state, const GameEvent& event) {
    for (Keys keys : {BattedBallSituations(state, event), GameSituations(state, event),
                      SmallChartSituations(state, event), RemarkSituations(event)})
        if (!keys.empty()) return keys;
    return {};
}

}  // namespace tarvane
