#pragma once

#include <cstdint>

#include "base/side.h"
#include "engine/result.h"
#include "records/position.h"

namespace tarvane {

// What a game tells those who watch it. The engine works the same with no listener; events are given after the state
// has changed, in the order of the effects.
enum class EventKind : std::uint8_t {
    Narration,   // tag says which text
    Animation,   // tag says which movement
    Sound,       // result says which family
    RollRead,    // a chart was read: sheet, roll
    ScoreSheet,  // a mark on the batter's line: slot, result
    Substitution,
    HalfEnded,
    GameEnded,
    Message  // tag says which box a user would see
};

// The names that narration, animation and messages go by, in the order of the play's telling.
enum class Tag : std::uint8_t {
    None,
    PitcherThrow,
    PitcherResult,
    GroundOut,
    GroundOut2,
    FlyOut,
    FlyOut2,
    DoublePlay,
    DoublePlay2,
    Single,
    Single2,
    ExtraBaseHit,
    ExtraBaseHit2,
    HomeRun,
    HomeRun2,
    HomeRunRBI,
    Error,
    Error2,
    Error2B,
    Error2B2,
    Error3B,
    Error3B2,
    BatterErrorGround,
    BatterErrorGround2,
    BatterErrorFly,
    BatterErrorFly2,
    BatterErrorFly3,
    BatterErrorFlyD,
    BuntGroundOut,
    BuntGroundOut2,
    BuntDoublePlay,
    BuntDoublePlay2,
    BuntFlyOut,
    BuntFlyOut2,
    BuntSingle,
    BuntSingle2,
    BuntMiss,
    BuntMiss2,
    BuntFoul,
    BuntFoulOut,
    BuntTry,
    StealTry,
    SBSafe,
    SBSafe2,
    SBSafeError,
    SBSafeError2,
    SBError,
    SBError2,
    SBOut,
    SBOut2,
    StolenBase,
    CaughtStealing,
    PickOff,
    MDPlay,
    MDSafe,
    MDSafeStar,
    MDSafeErr,
    MDErr,
    MDOut,
    MDOutStar,
    PlayAtSecond,
    PlayAtHome,
    PitcherToCatcher,
    HBP,
    WPOrPB,
    OutIsError,
    ErrorIsOut,
    ParkResultOut,
    ParkResultHit,
    ParkResultReduced,
    ParkResultIncreased,
    YearResultHit,
    YearResultOut,
    YearResultIncreased,
    YearResultReduced,
    YearResultGreenK,
    PitcherResultReduced,
    PitcherResultIncreased,
    PitcherTired,
    PitcherIntermediateTired,
    Pitcher2ndWind,
    PossibleInjury,
    PossibleInjury2,
    InjuryResult,
    RunsScored,
    EndOfInningMiddle,
    EndOfInning,
    WalkOff,
    GameOver,
    NewPitcher,
    PinchHitter,
    PinchRunner,
    DefensiveChange,
    PitcherRestReminder,
    PitcherBatterReminder,
    PitcherFatigue,
    NoRestedPitchers
};

struct GameEvent {
    EventKind kind = EventKind::Narration;
    Tag tag = Tag::None;
    Side side = Side::Visitor;  // the side at bat, or the side concerned
    SheetCode sheet = SheetCode::None;
    std::uint8_t roll = 0;
    Result result = Result::None;
    Position position = Position::None;
    std::uint8_t slot = 0;
    std::int16_t number = 0;
};

struct GameData;
struct GameState;

class GameListener {
  public:
    virtual ~GameListener() = default;
    virtual void OnEvent(const GameData& data, const GameState& state, const GameEvent& event) = 0;
};

}  // namespace tarvane
