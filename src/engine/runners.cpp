#include "engine/sheets.h"

namespace tarvane {

namespace {

constexpr auto Stays = Goes::Stays, First = Goes::First, Second = Goes::Second, Third = Goes::Third, Home = Goes::Home,
               Asks = Goes::Asks;

// What a result does to everyone, in the order batter, first, second, third.
struct ResultRow {
    Moves moves;
    bool hit = false;
    bool RBI = true;
};

constexpr ResultRow Hit(Goes batter, Goes first, Goes second, Goes third) {
    return {{{batter, first, second, third}}, true, true};
}

constexpr std::array<ResultRow, kResultCount> MakeResultRows() {
    std::array<ResultRow, kResultCount> rows{};
    const auto at = [&](Result result) -> ResultRow& { return rows[static_cast<std::size_t>(result)]; };
    at(Result::Single) = Hit(First, Second, Third, Home);
    at(Result::SingleTwoBases) = Hit(First, Third, Home, Home);
    at(Result::SinglePlus) = Hit(First, Second, Home, Home);
    at(Result::SingleDecision) = Hit(Asks, Asks, Asks, Home);
    at(Result::SinglePlusDecision) = Hit(Asks, Asks, Home, Home);
    at(Result::Double) = Hit(Second, Third, Home, Home);
    at(Result::DoubleAllScore) = Hit(Second, Home, Home, Home);
    at(Result::DoubleDecision) = Hit(Asks, Asks, Home, Home);
    at(Result::Triple) = Hit(Third, Home, Home, Home);
    at(Result::HR) = Hit(Home, Home, Home, Home);
    at(Result::GAdvance) = {{{Stays, Second, Third, Home}}, false, true};
    at(Result::SF) = at(Result::SFDecision) = {{{Stays, Stays, Stays, Home}}, false, true};
    at(Result::WP) = at(Result::PB) = at(Result::BK) = {{{Stays, Second, Third, Home}}, false, false};
    return rows;
}
constexpr std::array<ResultRow, kResultCount> kResultRows = MakeResultRows();

constexpr std::uint8_t From(int base) {
    return static_cast<std::uint8_t>(1U << base);
}

// How far an error lets everyone go. The run of the man for whom the error was the last base is not earned.
struct ErrorRow {
    Moves moves;
    RunRule rule;
};
constexpr ErrorRow kErrorRows[]{
    {{{First, Second, Third, Home}}, {false, From(3)}},  // no kind reads as the plain error
    {{{First, Second, Third, Home}}, {false, From(3)}},  // E
    {{{Second, Third, Home, Home}}, {false, From(2)}},   // E+
    {{{Third, Home, Home, Home}}, {false, From(1)}},     // E++
    {{{Asks, Asks, Asks, Home}}, {false, 0}},            // ED
};

Runner& On(TeamState& team, int base) {
    return team.runner[static_cast<std::size_t>(base)];
}

bool IsEarned(const GameState& state, const Runner& runner) {
    return !(state.Outs == 2 && state.ErrorInInning) && !runner.Unearned;
}

void ScoreRun(Step& step, const Runner& runner, bool RBI, bool canBeEarned) {
    Play& play = step.play();
    ++step.batting().Runs;
    if (play.RunsScoredCount < play.RunsScoredList.size()) play.RunsScoredList[play.RunsScoredCount++] = runner.slot;
    if (RBI) ++play.RBIOnPlay;
    if (canBeEarned && IsEarned(step.state, runner)) ++play.EarnedRunsOnPlay;
    ++step.state.HalfInningRuns;
}

// The case of a decision about the men on first and second, whichever of them are there.
ExtraBaseCase CaseOf(const TeamState& team) {
    if (Occupied(team, 2)) return Occupied(team, 1) ? ExtraBaseCase::Both : ExtraBaseCase::Second;
    return Occupied(team, 1) ? ExtraBaseCase::First : ExtraBaseCase::None;
}

// A free base: each man moves only if the man behind him must.
void WalkBatter(Step& step) {
    TeamState& team = step.batting();
    Moves moves{{First, Stays, Stays, Stays}};
    for (std::size_t base = 1; base <= 3 && team.runner[base].On(); ++base)
        moves.from[base] = static_cast<Goes>(base + 1);
    MoveRunners(step, moves, {}, BatterRunner(team));
}

// A bracketed hit or an ED: everyone who must has moved; the rest waits for the decision, or settles at once when
// nobody is left to decide about.
void AskOrSettle(Step& step, bool anyoneToAsk, Goes batterElse, bool unearned) {
    step.play().batterHeld = BatterRunner(step.batting(), unearned);
    if (anyoneToAsk) {
        OfferExtraBase(step);
        return;
    }
    MoveRunners(step, {{batterElse, Stays, Stays, Stays}}, {}, step.play().batterHeld);
    step.play().batterHeld = {};
}

void ApplyError(Step& step) {
    Play& play = step.play();
    TeamState& team = step.batting();
    ++step.fielding().Errors;
    step.state.ErrorInInning = true;
    if (play.errorKind == ErrorKind::EPlus) {
        // Only the telling of the wild throw reads this: the credits of an error don't hang on it.
        if (BasesFull(team))
            play.playAt = PlayAt::Home;
        else if (Occupied(team, 1) && !Occupied(team, 3))
            play.playAt = PlayAt::Second;
    }
    const bool decision = play.errorKind == ErrorKind::ED;
    if (decision) play.extraBase = CaseOf(team);
    const ErrorRow& row = kErrorRows[static_cast<std::size_t>(play.errorKind)];
    MoveRunners(step, row.moves, row.rule, BatterRunner(team, true));
    if (decision) AskOrSettle(step, play.extraBase != ExtraBaseCase::None, First, true);
}

void SetForcePivot(Play& play) {
    play.ForcePivot = play.values.InfieldRoll < 51 ? Position::B2 : Position::SS;
}

// The force makes the grounder a fielder's choice, unless the first baseman took the ball.
void CallForce(Play& play, PlayAt where) {
    SetForcePivot(play);
    if (play.FieldedBy == Position::B1) return;
    play.PlayResult = Result::FC;
    play.playAt = where;
}

// The third out of a grounder: the bases are about to be cleared, only the credits matter.
void ApplyGroundOutAtThree(Step& step) {
    Play& play = step.play();
    const TeamState& team = step.batting();
    if (!Occupied(team, 1)) return;
    SetForcePivot(play);
    if (Occupied(team, 3) && !Occupied(team, 2)) {
        play.playAt = PlayAt::Second;
        play.PlayResult = Result::FC;
    } else if (play.FieldedBy != Position::B1) {
        play.playAt = PlayAt::Second;
    }
}

// The batter who stands where a man was forced takes over that man's unearned flag: the run it stands for is the same.
void ApplyGroundOut(Step& step) {
    TeamState& team = step.batting();
    if (step.state.Outs >= 3) return ApplyGroundOutAtThree(step);
    if (!Occupied(team, 1)) return;
    if (BasesFull(team)) {
        const Runner batter = BatterRunner(team, On(team, 3).Unearned);
        MoveRunners(step, {{First, Second, Third, Goes::Out}}, {}, batter);
        CallForce(step.play(), PlayAt::Home);
    } else if (Occupied(team, 3)) {
        AwaitDefensiveDecision(step);
    } else {
        const Runner batter = BatterRunner(team, On(team, 1).Unearned);
        MoveRunners(step, {{First, Goes::Out, Third, Stays}}, {}, batter);
        CallForce(step.play(), PlayAt::Second);
    }
}

void ApplyDoublePlay(Step& step) {
    const TeamState& team = step.batting();
    if (!Occupied(team, 1)) {
        step.play().PlayResult = Result::G;
    } else if (step.state.Outs >= 2) {
        ++step.state.Outs;
    } else if (Occupied(team, 3)) {
        AwaitDefensiveDecision(step);
    } else {
        ++step.state.Outs;
        MoveRunners(step, {{Stays, Goes::Out, Third, Stays}}, {}, {});
    }
}

// The fielder of a slow grounder on which everybody moves up.
Position FielderOfAdvance(const TeamState& team, int roll, Position placed) {
    const bool r1 = Occupied(team, 1), r2 = Occupied(team, 2), r3 = Occupied(team, 3);
    if (r1 && r2 && r3) return roll < 51 ? Position::SS : Position::B2;
    if (r1) return r3 ? placed : roll < 75 ? Position::B1 : Position::B3;
    if (!r2 && !r3) return placed;
    return roll < 35 ? Position::B1 : roll <= 70 ? Position::B2 : Position::SS;
}

void ApplySacrificeFly(Step& step) {
    Play& play = step.play();
    const TeamState& team = step.batting();
    const bool decision = play.PlayResult == Result::SFDecision;
    if (decision ? !AnyoneOn(team) : !Occupied(team, 3)) {
        play.PlayResult = Result::F;
        return;
    }
    MoveRunners(step, kResultRows[static_cast<std::size_t>(Result::SF)].moves, {}, {});
    if (!decision) return;
    play.extraBase = CaseOf(team);
    if (play.extraBase != ExtraBaseCase::None) OfferExtraBase(step);
}

void ApplyHit(Step& step, const ResultRow& row) {
    Play& play = step.play();
    TeamState& team = step.batting();
    ++team.Hits;
    if (play.PlayResult == Result::SingleDecision) play.extraBase = CaseOf(team);
    const bool askFirst = Occupied(team, 1);
    MoveRunners(step, row.moves, {}, BatterRunner(team));
    if (play.PlayResult == Result::SingleDecision)
        AskOrSettle(step, play.extraBase != ExtraBaseCase::None, First, false);
    else if (play.PlayResult == Result::SinglePlusDecision)
        AskOrSettle(step, askFirst, First, false);
    else if (play.PlayResult == Result::DoubleDecision)
        AskOrSettle(step, askFirst, Second, false);
}

void MoveUpOnPitch(Step& step, const ResultRow& row) {
    if (step.play().PlayResult == Result::PB && AnyoneOn(step.batting())) step.play().FieldedBy = Position::C;
    MoveRunners(step, row.moves, {false, 0}, {});
}

}  // namespace

void MoveRunners(Step& step, const Moves& moves, RunRule rule, Runner batter) {
    TeamState& team = step.batting();
    for (std::size_t base = 4; base-- > 0;) {
        const Goes goes = moves.from[base];
        const Runner runner = base == 0 ? batter : team.runner[base];
        if (goes == Goes::Stays || goes == Goes::Asks || !runner.On()) continue;
        if (base != 0) team.runner[base] = {};
        if (goes == Goes::Home)
            ScoreRun(step, runner, rule.RBI, (static_cast<unsigned>(rule.unearnedFrom) >> base & 1U) == 0);
        else if (goes != Goes::Out)
            team.runner[static_cast<std::size_t>(goes)] = runner;
    }
}

void AdvanceRunners(Step& step) {
    Play& play = step.play();
    const ResultRow& row = kResultRows[static_cast<std::size_t>(play.PlayResult)];
    if (row.hit) return ApplyHit(step, row);
    switch (play.PlayResult) {
        case Result::BB:
        case Result::HBP: WalkBatter(step); break;
        case Result::WP:
        case Result::PB:
        case Result::BK: MoveUpOnPitch(step, row); break;
        case Result::E: ApplyError(step); break;
        case Result::G: ApplyGroundOut(step); break;
        case Result::GAdvance:
            play.FieldedBy = FielderOfAdvance(step.batting(), play.values.InfieldRoll, play.FieldedBy);
            MoveRunners(step, row.moves, {}, {});
            break;
        case Result::DP: ApplyDoublePlay(step); break;
        case Result::SF:
        case Result::SFDecision: ApplySacrificeFly(step); break;
        case Result::FDecision:
            if (Occupied(step.batting(), 3)) OfferExtraBase(step);
            break;
        default: break;
    }
}

}  // namespace tarvane
