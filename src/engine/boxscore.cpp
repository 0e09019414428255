#include <algorithm>

#include "engine/step.h"

namespace tarvane {

namespace {

template <class T>
void Add(T& counter, int n) {
    counter = static_cast<T>(counter + n);
}

template <class Line, class Counter>
void Credit(Line* line, Counter Line::*counter, int n = 1) {
    if (line) Add(line->*counter, n);
}

// Who gets the credit for what happened in the field.
enum class FieldCredit : std::uint8_t { None, CatcherPutOut, FlyOut, Sacrifice, Ground, DoublePlay, Bunt, Error };

// What one result adds to the batter's line and to the pitcher's, and how the fielders are credited.
struct Booking {
    bool faced = false;  // the batter's turn is over: a batter faced
    bool atBat = false, hit = false, runsBattedIn = false;
    bool reaches = false;  // one more man on base whom the pitcher answers for
    bool autoOut = false;  // may come straight from the pitcher's chart: counted as his automatic out then
    int outs = 0;
    std::uint8_t BattingCounts::*batting = nullptr;
    std::int16_t PitchingLine::*pitching = nullptr;
    FieldCredit field = FieldCredit::None;
};

Booking Hit(std::uint8_t BattingCounts::*kind) {
    return {.faced = true, .atBat = true, .hit = true, .runsBattedIn = true, .reaches = true, .batting = kind};
}

Booking HomeRun() {
    return {.faced = true,
            .atBat = true,
            .hit = true,
            .runsBattedIn = true,
            .batting = &BattingCounts::HR,
            .pitching = &PitchingLine::HR};
}

Booking FreeBase(std::uint8_t BattingCounts::*batting, std::int16_t PitchingLine::*pitching) {
    return {.faced = true, .runsBattedIn = true, .reaches = true, .batting = batting, .pitching = pitching};
}

Booking OutAtBat(int outs, FieldCredit field) {
    return {.faced = true, .atBat = true, .runsBattedIn = true, .autoOut = outs == 1, .outs = outs, .field = field};
}

Booking Strikeout() {
    Booking booking = OutAtBat(1, FieldCredit::CatcherPutOut);
    booking.runsBattedIn = false;
    booking.batting = &BattingCounts::SO;
    booking.pitching = &PitchingLine::SO;
    return booking;
}

Booking DoublePlayBall() {
    Booking booking = OutAtBat(2, FieldCredit::DoublePlay);
    booking.batting = &BattingCounts::GIDP;
    return booking;
}

// A fly is a sacrifice only if it batted a run in; else it has become a plain one before it comes here.
Booking SacrificeFly() {
    return {
        .faced = true, .runsBattedIn = true, .outs = 1, .batting = &BattingCounts::SF, .field = FieldCredit::Sacrifice};
}

Booking SacrificeHit(bool batterSafe) {
    Booking booking{.faced = true, .runsBattedIn = true, .batting = &BattingCounts::SH, .field = FieldCredit::Bunt};
    booking.outs = batterSafe ? 0 : 1;
    booking.reaches = batterSafe;
    return booking;
}

bool SafeOnBunt(const Play& play) {
    return play.buntResult == BuntResult::SHF || play.buntResult == BuntResult::SHE;
}

Booking BookingFor(const Play& play) {
    switch (play.PlayResult) {
        case Result::Single:
        case Result::SingleTwoBases:
        case Result::SinglePlus:
        case Result::SingleDecision:
        case Result::SinglePlusDecision: return Hit(nullptr);
        case Result::Double:
        case Result::DoubleAllScore:
        case Result::DoubleDecision: return Hit(&BattingCounts::Doubles);
        case Result::Triple: return Hit(&BattingCounts::Triples);
        case Result::HR: return HomeRun();
        case Result::BB: return FreeBase(&BattingCounts::BB, &PitchingLine::BB);
        case Result::HBP: return FreeBase(&BattingCounts::HBP, &PitchingLine::HBP);
        case Result::E: return {.faced = true, .atBat = true, .reaches = true, .field = FieldCredit::Error};
        case Result::F:
        case Result::FDecision: return OutAtBat(1, FieldCredit::FlyOut);
        case Result::G:
        case Result::GAdvance:
        case Result::FC: return OutAtBat(1, FieldCredit::Ground);
        case Result::SF:
        case Result::SFDecision: return SacrificeFly();
        case Result::K: return Strikeout();
        case Result::DP: return DoublePlayBall();
        case Result::SH: return SacrificeHit(SafeOnBunt(play));
        default: return {};
    }
}

void AddBatting(BattingCounts& counts, const Booking& booking, int runsBattedIn) {
    Add(counts.AB, booking.atBat ? 1 : 0);
    Add(counts.H, booking.hit ? 1 : 0);
    Add(counts.RBI, booking.runsBattedIn ? runsBattedIn : 0);
    if (booking.batting) Add(counts.*booking.batting, 1);
}

void RecordOuts(PitchingLine& line, int outs) {
    if (outs <= 0) return;
    Add(line.IPOuts, outs);
    line.Reminded = false;
}

void RunnerGone(PitchingLine& line) {
    if (line.RunnersCharged > 0) --line.RunnersCharged;
}

// Outs of the half that no pitching line holds yet. A bunt that doubles a runner off can end as a plain G with two.
int OutsToBook(const GameState& state) {
    const BoxLines& box = state.Fielding().box;
    int booked = 0;
    for (int i = 0; i < box.PitchersUsed; ++i) booked += box.pitching[static_cast<std::size_t>(i)].IPOuts;
    return 3 * (state.Inning - 1) + state.Outs - booked;
}

// --- Fielders ---

FielderLine* Fielder(Step& step, Position position) {
    return FindFielderLine(step.fielding(), position);
}

// One out on a ball on the ground: the man who fielded it throws to the base unless it is his own.
void CreditGroundOut(Step& step, int outs) {
    const Play& play = step.play();
    Position base = Position::B1;
    if (play.playAt == PlayAt::Second) base = Position::B2;
    if (play.playAt == PlayAt::Home) base = Position::C;
    FielderLine* fielder = Fielder(step, play.FieldedBy);
    if (play.FieldedBy != base) Credit(fielder, &FielderLine::Assists);
    if (play.GreatPlay) Credit(fielder, &FielderLine::GreatDefensivePlays);
    Credit(Fielder(step, base), &FielderLine::PutOuts);
    if (outs > 1) {
        const Position second = base == Position::B2 ? Position::B1 : Position::B2;
        Credit(Fielder(step, second), &FielderLine::PutOuts);
    }
}

void CreditDoublePlay(Step& step) {
    const Position by = step.play().FieldedBy;
    FielderLine* fielder = Fielder(step, by);
    FielderLine* second = Fielder(step, Position::B2);
    FielderLine* first = Fielder(step, Position::B1);
    if (by != Position::B2) Credit(fielder, &FielderLine::Assists);
    Credit(fielder, &FielderLine::DoublePlays);
    Credit(second, &FielderLine::PutOuts);
    Credit(second, &FielderLine::DoublePlays);
    Credit(second, &FielderLine::Assists);
    Credit(first, &FielderLine::PutOuts);
    Credit(first, &FielderLine::DoublePlays);
}

// A squeeze bunt in the air: the runner from third is doubled off there.
void CreditDoubledOff(Step& step) {
    const Position by = step.play().FieldedBy;
    FielderLine* fielder = Fielder(step, by);
    FielderLine* third = Fielder(step, Position::B3);
    Credit(fielder, &FielderLine::DoublePlays);
    if (by != Position::B3) Credit(fielder, &FielderLine::Assists);
    Credit(third, &FielderLine::PutOuts);
    Credit(third, &FielderLine::DoublePlays);
    RecordOuts(CurrentPitchingLine(step.fielding()), 1);
    RunnerGone(CurrentPitchingLine(step.fielding()));
}

void CreditBunt(Step& step) {
    const Play& play = step.play();
    if (play.buntResult == BuntResult::SHE) Credit(Fielder(step, play.ErrorBy), &FielderLine::Errors);
    if (SafeOnBunt(play)) return;
    if (play.FieldedBy != Position::B1) Credit(Fielder(step, play.FieldedBy), &FielderLine::Assists);
    Credit(Fielder(step, Position::B1), &FielderLine::PutOuts);
}

void CreditFielders(Step& step, const Booking& booking, int outs) {
    const Play& play = step.play();
    FielderLine* fielder = Fielder(step, play.FieldedBy);
    switch (booking.field) {
        case FieldCredit::None: break;
        case FieldCredit::CatcherPutOut: Credit(Fielder(step, Position::C), &FielderLine::PutOuts); break;
        case FieldCredit::FlyOut:
            Credit(fielder, &FielderLine::PutOuts);
            if (play.GreatPlay) Credit(fielder, &FielderLine::GreatDefensivePlays);
            if (play.SqueezeDoubledOff) CreditDoubledOff(step);
            break;
        case FieldCredit::Sacrifice: Credit(fielder, &FielderLine::PutOuts); break;
        case FieldCredit::Ground: CreditGroundOut(step, outs); break;
        case FieldCredit::DoublePlay: CreditDoublePlay(step); break;
        case FieldCredit::Bunt: CreditBunt(step); break;
        case FieldCredit::Error: Credit(Fielder(step, play.ErrorBy), &FielderLine::Errors); break;
    }
}

// --- The batter's turn ---

void NoteBattingPitcher(Step& step) {
    TeamState& team = step.batting();
    if (step.state.AtBat().player != team.pitcher) return;
    team.PitcherLastBattedInning = step.state.Inning;
    CurrentPitchingLine(team).BatReminded = false;
}

void BookBatter(Step& step, const Booking& booking) {
    TeamState& team = step.batting();
    BatterLine* line = FindBatterLine(team, team.BatterSlot);
    if (!line) return;
    const int runsBattedIn = step.play().RBIOnPlay;
    const bool left = step.fielding().PitcherThrows == kLeftHand;
    AddBatting(line->total, booking, runsBattedIn);
    AddBatting(left ? line->vsLeft : line->vsRight, booking, runsBattedIn);
}

void BookPitcher(Step& step, const Booking& booking, int outs) {
    PitchingLine& line = CurrentPitchingLine(step.fielding());
    ++line.BF;
    if (booking.hit) ++line.H;
    if (booking.pitching) ++(line.*booking.pitching);
    if (booking.reaches) Add(line.RunnersCharged, 1);
    RecordOuts(line, outs);
    for (int extra = 1; extra < outs; ++extra) RunnerGone(line);
    if (step.play().AutoOutPlay && booking.autoOut) ++line.AutoOuts;
}

void BookTurnAtBat(Step& step) {
    Play& play = step.play();
    const bool fly = play.PlayResult == Result::SF || play.PlayResult == Result::SFDecision;
    Booking booking = BookingFor(play);
    if (fly && play.RBIOnPlay == 0) {
        play.PlayResult = Result::F;
        booking.atBat = true;
        booking.batting = nullptr;
    }
    if (!booking.faced) return;
    const int outs = play.PlayResult == Result::G ? std::max(1, OutsToBook(step.state)) : booking.outs;
    BookBatter(step, booking);
    BookPitcher(step, booking, outs);
    CreditFielders(step, booking, outs);
    if (play.PlayResult == Result::SH) play.buntResult = BuntResult::None;
}

// --- Runners on their own ---

void BookSteal(Step& step) {
    const Play& play = step.play();
    const Result result = play.PlayResult;
    BatterLine* runner = FindBatterLine(step.batting(), play.StolenBaseSlot);
    FielderLine* catcher = Fielder(step, Position::C);
    if (result == Result::SB) {
        Credit(runner, &BatterLine::SB);
        Credit(catcher, &FielderLine::OpponentSB);
    } else {
        Credit(runner, &BatterLine::CS);
        Credit(catcher, &FielderLine::OpponentCS);
    }
    if (result == Result::CS) {
        Credit(catcher, &FielderLine::Assists);
    } else {
        Credit(Fielder(step, play.ErrorBy), &FielderLine::Errors);
    }
}

void BookRunnerOut(Step& step) {
    PitchingLine& line = CurrentPitchingLine(step.fielding());
    RecordOuts(line, 1);
    RunnerGone(line);
}

void BookRunners(Step& step) {
    switch (step.play().PlayResult) {
        case Result::CS: BookRunnerOut(step); [[fallthrough]];
        case Result::CSE:
        case Result::SB: BookSteal(step); break;
        case Result::PK: BookRunnerOut(step); break;
        case Result::PB: Credit(Fielder(step, Position::C), &FielderLine::PassBalls); break;
        default: break;
    }
}

// --- Runs ---

GameEvent PlayEvent(const Step& step, EventKind kind, Tag tag, int slot, int number) {
    GameEvent event;
    event.kind = kind;
    event.tag = tag;
    event.side = step.state.BattingSide;
    event.sheet = step.state.sheet;
    event.slot = static_cast<std::uint8_t>(slot);
    event.number = static_cast<std::int16_t>(number);
    return event;
}

void MarkRuns(Step& step) {
    Play& play = step.play();
    TeamState& team = step.batting();
    for (std::size_t i = 0; i < play.RunsScoredCount && i < play.RunsScoredList.size(); ++i) {
        const int slot = play.RunsScoredList[i];
        Credit(FindBatterLine(team, slot), &BatterLine::R);
        step.Tell(PlayEvent(step, EventKind::ScoreSheet, Tag::RunsScored, slot, 1));
    }
    if (play.RunsScoredCount > 0) {
        step.Tell(PlayEvent(step, EventKind::Narration, Tag::RunsScored, 0, play.RunsScoredCount));
    }
}

void ChargeRuns(PitchingLine& line, int runs, int earned) {
    Add(line.R, runs);
    line.ER = static_cast<std::int16_t>(std::max(0, line.ER + earned));
    line.RunnersCharged = static_cast<std::uint8_t>(std::max(0, line.RunnersCharged - runs));
}

// Runs fall to the pitchers in the order in which they pitched, each up to the men he left on base; the man on the
// mound takes what remains. Past a pitcher who is paid off in full, one run counts as earned and the error as
// forgotten.
void ChargePitchers(Step& step) {
    BoxLines& box = step.fielding().box;
    int runs = step.play().RunsScoredCount;
    int earned = step.play().EarnedRunsOnPlay;
    if (runs == 0) return;
    for (int i = 0; i + 1 < box.PitchersUsed; ++i) {
        PitchingLine& line = box.pitching[static_cast<std::size_t>(i)];
        if (line.RunnersCharged == 0) continue;
        if (line.RunnersCharged >= runs) {
            ChargeRuns(line, runs, earned);
            return;
        }
        const int his = line.RunnersCharged;
        ChargeRuns(line, his, std::max(0, earned - 1));
        runs -= his;
        earned = 1;
        step.state.ErrorInInning = false;
    }
    ChargeRuns(CurrentPitchingLine(step.fielding()), runs, earned);
}

void ZeroPlayCounters(Play& play) {
    play.RunsScoredList = {};
    play.RunsScoredCount = play.EarnedRunsOnPlay = play.RBIOnPlay = 0;
}

}  // namespace

BatterLine* FindBatterLine(TeamState& team, int slot) {
    if (slot < 1) return nullptr;
    for (int i = team.box.BatterLineCount - 1; i >= 0; --i) {
        BatterLine& line = team.box.batter[static_cast<std::size_t>(i)];
        if (line.Active && line.Slot == slot) return &line;
    }
    return nullptr;
}

FielderLine* FindFielderLine(TeamState& team, Position position) {
    if (position == Position::None) return nullptr;
    for (int i = 0; i < team.box.FielderLineCount; ++i) {
        FielderLine& line = team.box.fielder[static_cast<std::size_t>(i)];
        if (line.Active && line.position == position) return &line;
    }
    return nullptr;
}

PitchingLine& CurrentPitchingLine(TeamState& team) {
    const int used = std::clamp<int>(team.box.PitchersUsed, 1, kMaxPitchingLines);
    return team.box.pitching[static_cast<std::size_t>(used - 1)];
}

void UpdateBoxScore(Step& step) {
    if (step.state.GameOverFlag) return;
    Play& play = step.play();
    NoteBattingPitcher(step);
    BookTurnAtBat(step);
    BookRunners(step);
    if (play.PlayResult == Result::HR) {
        step.Tell(PlayEvent(step, EventKind::Narration, Tag::HomeRunRBI, step.batting().BatterSlot, play.RBIOnPlay));
    }
    MarkRuns(step);
    ChargePitchers(step);
    const int runs = play.RunsScoredCount;
    if (runs > 0) UpdateDecisions(step, runs);
    ZeroPlayCounters(play);
}

void BookDecisionOut(Step& step, Position base) {
    BookRunnerOut(step);
    const Position by = step.play().FieldedBy;
    if (by != base) Credit(Fielder(step, by), &FielderLine::Assists);
    Credit(Fielder(step, base), &FielderLine::PutOuts);
}

void BookDecisionError(Step& step, Position by) {
    Credit(Fielder(step, by), &FielderLine::Errors);
}

}  // namespace tarvane
