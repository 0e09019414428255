#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

#include "base/side.h"
#include "engine/boxlines.h"
#include "engine/dice.h"
#include "engine/result.h"

namespace tarvane {

inline constexpr int kMaxInnings = 30;  // per-inning arrays stop recording past this

// One place in the batting order as the game uses it.
struct LineupSlot {
    PlayerRef player;
    Position position = Position::None;
    std::int16_t SlotDR = 0;
    char SlotErrorRating = 'V';
    std::uint8_t runRating = 0;
    char BuntRating = 'B';
    std::int32_t bats = 0;
    friend bool operator==(const LineupSlot&, const LineupSlot&) = default;
};

// A runner: the lineup slot (1 to 9; 0 is an empty base) and whether he reached on an error.
struct Runner {
    std::uint8_t slot = 0;
    bool Unearned = false;
    constexpr bool On() const { return slot != 0; }
    friend bool operator==(const Runner&, const Runner&) = default;
};

struct TeamState {
    std::int16_t Runs = 0, Hits = 0, Errors = 0, LOB = 0;
    std::array<std::int16_t, kMaxInnings> InningRuns{};
    std::uint8_t BatterSlot = 1;
    std::array<Runner, 4> runner{};  // 1, 2, 3: the man on that base; 0 unused
    std::array<LineupSlot, 9> lineup{};
    // The pitcher of the game: with a DH he is in no slot.
    PlayerRef pitcher{'P', -1};
    std::int32_t PitcherThrows = 0;
    std::uint8_t PitcherStamina = 10, PitcherSecondWind = 10;
    bool PitcherTired = false, PitcherIntermediateTired = false, PitcherChangePending = false,
         PitcherHasOutCells = false;
    std::uint8_t PitcherLastBattedInning = 0;
    std::int16_t DRTotal = 0;
    std::uint8_t AutoOuts = 0;  // bit n: this team's defence turns a D cell at roll 10 + n into an out
    bool CatcherIRated = false, CatcherORated = false;
    // Who has been in the game, by roster index: a man used is never used again once replaced.
    std::array<std::uint64_t, 2> battersUsed{}, pitchersUsedMask{};
    BoxLines box;
    friend bool operator==(const TeamState&, const TeamState&) = default;
};

enum class Await : std::uint8_t { Roll, Decision, LineupChange, GameOver };
enum class DecisionKind : std::uint8_t { None, ExtraBase, Defensive, FurtherBunt };
enum class LineupCause : std::uint8_t { None, InjuredFielder, InjuredBatter, RelieverLimit, Positions };

// What the game waits for, and from whom. The side that must answer a decision or change its line-up stands here; the
// side that rolls follows from the sheet.
struct Awaited {
    Await kind = Await::Roll;
    DecisionKind decision = DecisionKind::None;
    LineupCause cause = LineupCause::None;
    Side side = Side::Visitor;
    Position position = Position::None;  // line-up change: the position to be filled
    std::uint8_t slot = 0;               // line-up change: the slot concerned
    friend bool operator==(const Awaited&, const Awaited&) = default;
};

// The play that is under way: everything from a pitcher's roll to the finish of the play that more than one step reads.
struct Play {
    Result PlayResult = Result::None, DisplayResult = Result::None;
    SheetEffect PitcherSheetEffect = SheetEffect::None;
    ColumnEffect ParkResult = ColumnEffect::None, YearResult = ColumnEffect::None;
    std::uint8_t ChartRoll = 0;  // the roll last read; 0 before the first
    std::uint8_t BBSORating = 0;
    bool GreatPlay = false, AutoOutPlay = false, FieldingDone = false, NearLine = false;
    bool NarrationDone = false;  // the pitch and the ball were told before a decision: not a second time after it
    std::uint16_t Notes = 0;     // bits of Note: what changed the result, told when the play is out
    Position FieldedBy = Position::None;
    Position ErrorBy = Position::None;          // charged with the error on the batter's ball
    Position DecisionErrorBy = Position::None;  // charged with an error on a manager decision
    ErrorKind errorKind = ErrorKind::None;
    Position ForcePivot = Position::None;
    PlayAt playAt = PlayAt::None;
    Runner batterHeld;  // the batter while a decision keeps him unplaced; his flag goes with him
    ExtraBaseCase extraBase = ExtraBaseCase::None;
    ManagerDecisionResult MDResult = ManagerDecisionResult::None;
    std::uint8_t MDRow = 0, BuntRow = 0, StealRow = 0;
    BuntType buntType = BuntType::None, buntTypeOnPlay = BuntType::None;
    BuntResult buntResult = BuntResult::None;
    bool SecondBuntAttempt = false, BuntTriedThisAtBat = false, BuntFoulOut = false, SqueezeDoubledOff = false;
    char StealTarget = ' ';  // '2', '3', 'H'
    std::uint8_t StolenBaseSlot = 0;
    bool StealHomeTried = false;
    PlayValues values;  // of the step under way; a suspended play keeps those of its own step
    std::array<std::uint8_t, 4> RunsScoredList{};
    std::uint8_t RunsScoredCount = 0, EarnedRunsOnPlay = 0, RBIOnPlay = 0;
    bool InjuryPending = false;
    Position InjuredPosition = Position::None;
    bool InjuredBatter = false;
    std::uint8_t InjuredSlot = 0, InjuryDays = 0;
    friend bool operator==(const Play&, const Play&) = default;
};

// An injury suffered in this game, for the posting.
struct GameInjury {
    Side side = Side::Visitor;
    PlayerRef player;
    std::uint8_t days = 0;  // InjuredDays of his record: the chart's number and one
    friend bool operator==(const GameInjury&, const GameInjury&) = default;
};

// Which side a computer manages, and what.
struct SideControl {
    bool lineups = false, subs = false, game = false;
    friend bool operator==(const SideControl&, const SideControl&) = default;
};

// All that a saved game or an opponent's copy needs. A plain value: copy it, compare it, hash it.
struct GameState {
    Side BattingSide = Side::Visitor;
    std::uint8_t Inning = 1, Outs = 0;  // Outs is 3 between a third out and the end of the half
    std::int16_t HalfInningRuns = 0;
    bool ErrorInInning = false, StaminaCheckPending = false, PlayStarted = false;
    bool GameOverFlag = false, WalkOff = false, BottomNotPlayed = false;
    SheetCode sheet = SheetCode::P;
    Awaited awaited;
    Play play;
    PerSide<TeamState> team;
    PerSide<SideControl> computer;
    std::array<GameInjury, 20> injury{};
    std::uint8_t injuryCount = 0;
    std::uint32_t steps = 0;  // rolls and answers taken so far

    TeamState& operator[](Side side) { return team[side]; }
    const TeamState& operator[](Side side) const { return team[side]; }
    Side FieldingSide() const { return Other(BattingSide); }
    TeamState& Batting() { return team[BattingSide]; }
    const TeamState& Batting() const { return team[BattingSide]; }
    TeamState& Fielding() { return team[FieldingSide()]; }
    const TeamState& Fielding() const { return team[FieldingSide()]; }
    LineupSlot& AtBat() { return Batting().lineup[static_cast<std::size_t>(Batting().BatterSlot - 1)]; }
    const LineupSlot& AtBat() const { return Batting().lineup[static_cast<std::size_t>(Batting().BatterSlot - 1)]; }

    friend bool operator==(const GameState&, const GameState&) = default;
};

static_assert(std::is_trivially_copyable_v<GameState>);

}  // namespace tarvane
