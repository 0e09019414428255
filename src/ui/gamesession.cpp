#include "ui/gamesession.h"

#include "manager/computermanager.h"
#include "ui/names.h"
#include "ui/playbyplay.h"

#include <fmt/format.h>
#include <algorithm>
#include <utility>

namespace tarvane {

namespace {
// More changes than this before one pitch are a manager who can't make up his mind: the pitch is thrown.
constexpr int kMaxOrdersBeforePitch = 24;
// Sets the faces of the dice apart from the dice.
constexpr std::uint64_t kDecoration = 0x9E3779B97F4A7C15ULL;
}  // namespace

GameSession::GameSession(GamePtr setup, const GameOptions& options, std::uint64_t seed)
    : setup_(std::move(setup)), options_(options), random_(seed), decoration_(seed ^ kDecoration) {
    MakeManagers(seed);
}

GameSession::GameSession(SavedGame saved, const GameOptions& options, std::uint64_t seed)
    : setup_(std::make_shared<const PreparedGame>(std::move(saved.game))),
      options_(options),
      state_(saved.state),
      random_(seed),
      decoration_(seed ^ kDecoration),
      sheet_(std::move(saved.sheet)),
      resumed_(true) {
    options_.computer = state_.computer;
    MakeManagers(seed);
    arrived_ = CanRoll() && state_.sheet == SheetCode::P;
    if (saved.session) Remember(*saved.session);
}

void GameSession::MakeManagers(std::uint64_t seed) {
    for (const Side side : kBothSides)
        manager_[side] = std::make_unique<ComputerManager>(side, ManagerRandom(seed, side), setup_->knowledge[side]);
}

void GameSession::Remember(const SessionMemory& memory) {
    random_ = memory.random;
    decoration_ = memory.decoration;
    for (const Side side : kBothSides) manager_[side]->Remember(memory.manager[side]);
    arrived_ = memory.arrived;
    orders_ = memory.orders;
    declined_ = memory.declined;
    if (memory.proposer) proposed_ = ProposedMove{*memory.proposer, memory.proposed};
    toldBefore_ = memory.told;
}

SavedGame GameSession::Saved() const {
    SavedGame saved;
    saved.game = *setup_;
    saved.state = state_;
    saved.sheet = sheet_;
    SessionMemory& memory = saved.session.emplace();
    memory.random = random_;
    memory.decoration = decoration_;
    for (const Side side : kBothSides) memory.manager[side] = manager_[side]->Remembered();
    memory.arrived = arrived_;
    memory.orders = orders_;
    memory.declined = declined_;
    memory.told = text_.Text();
    if (watched_) saved.state.computer = watched_->state;
    if (proposed_) {
        memory.proposer = proposed_->side;
        memory.proposed = proposed_->input;
    }
    return saved;
}

Random GameSession::ManagerRandom(std::uint64_t seed, Side side) {
    return Random(seed + (side == Side::Visitor ? 0x5851F42D4C957F2DULL : 0x14057B7EF767814FULL));
}

GameSession::~GameSession() = default;

Reject GameSession::Start() {
    if (resumed_) {
        if (options_.Narrated())
            text_.WelcomeBack(Data(), state_, toldBefore_);
        else
            text_.Note(toldBefore_);
        Settle();
        return Reject::None;
    }
    state_.computer = options_.computer;
    const Reject reject = StartGame(Data(), setup_->lineup[Side::Visitor], setup_->lineup[Side::Home], state_);
    if (reject != Reject::None) return reject;
    if (options_.Narrated()) text_.Welcome(Data(), state_);
    arrived_ = state_.sheet == SheetCode::P;
    Settle();
    return Reject::None;
}

void GameSession::OnEvent(const GameData& data, const GameState& state, const GameEvent& event) {
    sheet_.OnEvent(data, state, event);
    if (quiet_) return;
    if (options_.Narrated()) text_.OnEvent(data, state, event);
    for (Onlooker* onlooker : onlookers_) onlooker->OnEvent(data, state, event);
    if (event.kind == EventKind::Message && !SpectatorMode) Remember(data, state, event);
}

void GameSession::Remember(const GameData& data, const GameState& state, const GameEvent& event) {
    const std::string name = PlayerName(data, event.side, state[event.side].pitcher);
    const bool computer = state_.computer[event.side].subs;
    if (event.tag == Tag::PitcherRestReminder && options_.PitcherRestWarning)
        reminders_.push_back(
            {"Pitcher Rest Reminder",
             "Reminder to manager: " + name + " is one out away from requiring an additional day of pitcher rest."});
    if (event.tag == Tag::PitcherBatterReminder && options_.PitcherBatterWarning &&
        (!computer || options_.DisplayCompMgrChanges))
        reminders_.push_back({"Pitcher Batting Reminder",
                              (computer ? "Computer Manager - pitcher  " : "Reminder to manager: Your pitcher, ") +
                                  name + ", is due to bat next."});
    if (event.tag == Tag::NoRestedPitchers && !computer)
        reminders_.push_back(
            {"No Available Pitchers",
             "There are no available rested pitchers for the " + TeamName(data, event.side) +
                 ".\nPitchers who are resting will be made available for the remainder of this game but "
                 "will have an ineffective pitching chart.\nClick OK to continue with the game. "});
}

bool GameSession::Take(const Input& input) {
    if (proposed_) return false;
    if (!quiet_)
        for (Onlooker* onlooker : onlookers_) onlooker->StepBegins(state_);
    const bool taken = Advance(Data(), state_, input, this) == Reject::None;
    if (!quiet_)
        for (Onlooker* onlooker : onlookers_) onlooker->StepEnds(state_);
    if (!taken) return false;
    if (state_.sheet == SheetCode::P && state_.awaited.kind == Await::Roll) arrived_ = true;
    return true;
}

std::vector<Reminder> GameSession::TakeReminders() {
    return std::exchange(reminders_, {});
}

bool GameSession::Roll() {
    return CanRoll() && RollWith(ChartRollFromRaw(random_.RandomRoll216()));
}

bool GameSession::RollByHand(int chartRoll) {
    return CanRoll() && chartRoll >= kFirstRoll && chartRoll <= kLastRoll && RollWith(chartRoll);
}

bool GameSession::RollWith(int chartRoll) {
    Remember(chartRoll);
    orders_ = 0;
    declined_ = {{false, false}};
    const RollInput input{static_cast<std::uint8_t>(chartRoll), DrawPlayValues(random_)};
    if (!Take(input)) return false;
    Settle();
    return true;
}

void GameSession::Remember(int chartRoll) {
    ChartShown shown{MakeSheetView(Data(), state_), state_.sheet, chartRoll, chartRoll / 10, {}, false, text_.Text()};
    shown.secondDiceSound = decoration_.RandomHalf() > 25;
    shown.dice = ShowDice(chartRoll, decoration_.RandomRoll216());
    last_ = std::move(shown);
}

bool GameSession::IntentionalWalk() {
    if (!Take(IntentionalWalkInput{DrawPlayValues(random_)})) return false;
    Settle();
    return true;
}

bool GameSession::Bunt(BuntType type) {
    if (!Take(BuntInput{type})) return false;
    Settle();
    return true;
}

bool GameSession::Steal(char target) {
    if (!Take(StealInput{target})) return false;
    Settle();
    return true;
}

bool GameSession::Answer(bool yes) {
    if (state_.awaited.kind != Await::Decision) return false;
    if (!Take(DecisionInput{state_.awaited.side, yes})) return false;
    Settle();
    return true;
}

Reject GameSession::ChangeLineups(std::vector<LineupInput> lineups) {
    if (proposed_) return Reject::NotAwaited;
    for (const LineupInput& lineup : lineups)
        if (const Reject reject = Check(Data(), state_, lineup); reject != Reject::None) return reject;
    // The side at bat first: a new pitcher can bring up a chart on which nothing can be changed any more.
    std::stable_sort(lineups.begin(), lineups.end(), [this](const LineupInput& a, const LineupInput& b) {
        return a.side == state_.BattingSide && b.side != state_.BattingSide;
    });
    for (const LineupInput& lineup : lineups)
        if (!Take(lineup)) return Reject::NotAwaited;
    Settle();
    return Reject::None;
}

bool GameSession::AwaitsHuman() const {
    if (proposed_) return true;
    const SideControl& control = state_.computer[state_.awaited.side];
    if (state_.awaited.kind == Await::Decision) return !control.game;
    return state_.awaited.kind == Await::LineupChange && !control.subs;
}

bool GameSession::Confirms(const Input& input) const {
    if (quiet_ || SpectatorMode || options_.QuickPlayMode) return false;
    return std::holds_alternative<LineupInput>(input) ? options_.DisplayCompMgrChanges : options_.AuxChartsAutoClick;
}

bool GameSession::Confirm(bool yes) {
    if (!proposed_) return false;
    const ProposedMove move = *std::exchange(proposed_, std::nullopt);
    if (yes) {
        if (!Take(move.input)) return false;
        ++orders_;
    } else if (std::holds_alternative<DecisionInput>(move.input)) {
        if (!Take(DecisionInput{move.side, false})) return false;
    } else {
        declined_[move.side] = true;
    }
    Settle();
    return true;
}

bool GameSession::AnswerDecision(Side side) {
    const DecisionInput answer{side, manager_[side]->Decide(Data(), state_, side)};
    if (!answer.yes || !Confirms(answer)) return Take(answer);
    proposed_ = ProposedMove{side, answer};
    return false;
}

bool GameSession::AnswerForComputer() {
    const Side side = state_.awaited.side;
    Manager& manager = *manager_[side];
    if (state_.awaited.kind == Await::Decision && state_.computer[side].game) return AnswerDecision(side);
    if (state_.awaited.kind == Await::LineupChange && state_.computer[side].subs) {
        LineupInput lineup;
        if (manager.ForcedLineup(Data(), state_, side, lineup) && Take(lineup)) return true;
        Manager plain;  // the first man who will do, where his own choice may not enter
        return plain.ForcedLineup(Data(), state_, side, lineup) && Take(lineup);
    }
    return false;
}

// The computer managers look at the field once before each pitch: the side in the field, then the side at bat. True if
// one of them did something.
bool GameSession::BeforePitch() {
    if (!arrived_ || orders_ >= kMaxOrdersBeforePitch || state_.awaited.kind != Await::Roll ||
        state_.sheet != SheetCode::P)
        return false;
    for (const Side side : {state_.FieldingSide(), state_.BattingSide}) {
        const SideControl& control = state_.computer[side];
        Input input;
        if ((!control.subs && !control.game) || declined_[side] ||
            !manager_[side]->BeforePitch(Data(), state_, side, input))
            continue;
        if (Confirms(input)) {
            proposed_ = ProposedMove{side, input};
            return false;
        }
        if (Take(input)) {
            ++orders_;
            return true;
        }
    }
    arrived_ = false;
    return false;
}

void GameSession::Settle() {
    while (!Over() && !proposed_ && (AnswerForComputer() || BeforePitch())) {
    }
    EndWatching();
}

void GameSession::Watch(int throughInning) {
    if (Over()) return;
    watched_ = Watched{state_.computer, options_.computer, throughInning};
    SpectatorMode = true;
    state_.computer = options_.computer = {{SideControl{true, true, true}, SideControl{true, true, true}}};
    arrived_ = arrived_ || state_.sheet == SheetCode::P;
    Settle();
}

void GameSession::EndWatching() {
    if (!watched_ || (!Over() && (watched_->throughInning == 0 || state_.Inning <= watched_->throughInning))) return;
    state_.computer = watched_->state;
    options_.computer = watched_->options;
    watched_.reset();
    SpectatorMode = false;
}

bool GameSession::RollsByItself() const {
    if (!CanRoll()) return false;
    if (SpectatorMode && options_.ComputerPlaysBoth()) return true;
    return options_.ComputerMgrAutoClick && state_.sheet != SheetCode::P;
}

void GameSession::QuickPlay(int throughInning) {
    const PerSide<SideControl> before = state_.computer;
    proposed_.reset();
    quiet_ = true;
    state_.computer = {{SideControl{true, true, true}, SideControl{true, true, true}}};
    arrived_ = arrived_ || state_.sheet == SheetCode::P;
    Settle();
    while (!Over() && (throughInning == 0 || state_.Inning <= throughInning))
        if (!Roll()) break;
    state_.computer = before;
    quiet_ = false;
    const std::string score = fmt::format("{} {}, {} {}.", TeamName(Data(), Side::Visitor), state_[Side::Visitor].Runs,
                                          TeamName(Data(), Side::Home), state_[Side::Home].Runs);
    text_.Note((Over() ? "Quick play to the end of the game: " : "Quick play to here: ") + score);
}

}  // namespace tarvane
