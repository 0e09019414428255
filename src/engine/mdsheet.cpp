#include "engine/sheets.h"

namespace tarvane {

namespace {

constexpr auto kStays = Goes::Stays, k1B = Goes::First, k2B = Goes::Second, k3B = Goes::Third, kScores = Goes::Home,
               kOut = Goes::Out;

// What is being tried: the result that offers the extra base, with the men whom it is about.
enum class Trial : std::uint8_t {
    PlusSingle,
    SingleBoth,
    SingleSecond,
    SingleFirst,
    ErrorBoth,
    ErrorSecond,
    ErrorFirst,
    Double,
    SFBoth,
    SFSecond,
    SFFirst,
    Fly
};
constexpr std::size_t kTrials = 12;

enum class Earns : std::uint8_t { No, Yes, VisitorOnly };
enum class Becomes : std::uint8_t { Same, F, FUnlessRunScored, SF };

// One cell of the table of outcomes: where everybody goes (batter, first, second, third), how a run counts, what the
// play becomes, and whether the second man is asked about next.
struct Outcome {
    Moves moves;
    bool RBI = false;
    Earns earns = Earns::No;
    Becomes becomes = Becomes::Same;
    bool askAgain = false;
};

constexpr Outcome Go(Goes batter, Goes first, Goes second, Goes third) {
    return {{{batter, first, second, third}}};
}
constexpr Outcome Run(Outcome outcome, Earns earns = Earns::Yes) {
    outcome.RBI = true;
    outcome.earns = earns;
    return outcome;
}
constexpr Outcome Earned(Outcome outcome, Earns earns) {
    outcome.earns = earns;
    return outcome;
}
constexpr Outcome As(Outcome outcome, Becomes becomes) {
    outcome.becomes = becomes;
    return outcome;
}
constexpr Outcome Again(Outcome outcome) {
    outcome.askAgain = true;
    return outcome;
}

// Columns: Safe, Safe*, SafeErr, Err, Out, Out*. On a double and on an advance after a fly only the Visitors' run of
// two of the columns can be earned.
using OutcomeRow = std::array<Outcome, 6>;
constexpr std::array<OutcomeRow, kTrials> kOutcomes{{
    {Go(k1B, k3B, kStays, kStays), Go(k2B, k3B, kStays, kStays), Go(k2B, kScores, kStays, kStays),
     Go(k1B, k3B, kStays, kStays), Go(k1B, kOut, kStays, kStays), Go(k2B, kOut, kStays, kStays)},  // (1+)
    {Again(Run(Go(kStays, kStays, kScores, kStays))), Run(Go(k2B, k3B, kScores, kStays)),
     Run(Go(k2B, k3B, kScores, kStays)), Go(k1B, k2B, kScores, kStays), Go(k1B, k2B, kOut, kStays),
     Go(k2B, k3B, kOut, kStays)},  // (1), first and second
    {Run(Go(k1B, kStays, kScores, kStays)), Run(Go(k2B, kStays, kScores, kStays)),
     Run(Go(k2B, kStays, kScores, kStays)), Go(k1B, kStays, kScores, kStays), Go(k1B, kStays, kOut, kStays),
     Go(k2B, kStays, kOut, kStays)},  // (1), second
    {Go(k1B, k3B, kStays, kStays), Go(k2B, k3B, kStays, kStays), Go(k2B, kScores, kStays, kStays),
     Go(k1B, k3B, kStays, kStays), Go(k1B, kOut, kStays, kStays), Go(k2B, kOut, kStays, kStays)},  // (1), first
    {Again(Go(kStays, kStays, kScores, kStays)), Go(k2B, k3B, kScores, kStays), Go(k2B, k3B, kScores, kStays),
     Go(k1B, k2B, kScores, kStays), Go(k1B, k2B, kOut, kStays), Go(k2B, k3B, kOut, kStays)},  // ED, first and second
    {Go(k1B, kStays, kScores, kStays), Go(k2B, kStays, kScores, kStays), Go(k2B, kStays, kScores, kStays),
     Go(k1B, kStays, kScores, kStays), Go(k1B, kStays, kOut, kStays), Go(k2B, kStays, kOut, kStays)},  // ED, second
    {Go(k1B, k3B, kStays, kStays), Go(k2B, k3B, kStays, kStays), Go(k2B, k3B, kStays, kStays),
     Go(k1B, k3B, kStays, kStays), Go(k1B, kOut, kStays, kStays), Go(k2B, kOut, kStays, kStays)},  // ED, first
    {Run(Go(k2B, kScores, kStays, kStays)), Run(Go(k3B, kScores, kStays, kStays), Earns::VisitorOnly),
     Run(Go(k3B, kScores, kStays, kStays), Earns::VisitorOnly), Go(k2B, kScores, kStays, kStays),
     Go(k2B, kOut, kStays, kStays), Go(k3B, kOut, kStays, kStays)},  // (2)
    {Again(Go(kStays, kStays, k3B, kStays)), Go(kStays, k2B, k3B, kStays),
     Earned(Go(kStays, k3B, kScores, kStays), Earns::VisitorOnly), As(Go(kStays, kStays, k3B, kStays), Becomes::F),
     As(Go(kStays, kStays, kOut, kStays), Becomes::FUnlessRunScored),
     As(Go(kStays, k2B, kOut, kStays), Becomes::F)},  // (SF), first and second
    {Go(kStays, kStays, k3B, kStays), Go(kStays, kStays, k3B, kStays),
     Earned(Go(kStays, kStays, kScores, kStays), Earns::VisitorOnly), As(Go(kStays, kStays, k3B, kStays), Becomes::F),
     As(Go(kStays, kStays, kOut, kStays), Becomes::FUnlessRunScored),
     As(Go(kStays, kStays, kOut, kStays), Becomes::F)},  // (SF), second
    // The man who went to third first goes home on the wild throw behind him, as he would have from second.
    {Go(kStays, k2B, kStays, kStays), Go(kStays, k2B, kStays, kStays),
     Earned(Go(kStays, k3B, kStays, kScores), Earns::VisitorOnly), As(Go(kStays, k2B, kStays, kStays), Becomes::F),
     As(Go(kStays, kOut, kStays, kStays), Becomes::FUnlessRunScored),
     As(Go(kStays, kOut, kStays, kStays), Becomes::F)},  // (SF), first
    {As(Run(Go(kStays, kStays, kStays, kScores)), Becomes::SF), As(Run(Go(kStays, k2B, k3B, kScores)), Becomes::SF),
     As(Run(Go(kStays, k2B, k3B, kScores)), Becomes::SF), Go(kStays, kStays, kStays, kScores),
     Go(kStays, kStays, kStays, kOut), Go(kStays, k2B, k3B, kOut)},  // (F)
}};

// Where everybody stands when the extra base isn't tried.
constexpr Moves kHoldSingle{{k1B, k2B, k3B, kStays}};
constexpr Moves kHoldNobody{};
constexpr std::array<Moves, kTrials> kHeld{{kHoldSingle,
                                            kHoldSingle,
                                            kHoldSingle,
                                            kHoldSingle,
                                            kHoldSingle,
                                            kHoldSingle,
                                            kHoldSingle,
                                            {{k2B, k3B, kStays, kStays}},
                                            kHoldNobody,
                                            kHoldNobody,
                                            kHoldNobody,
                                            kHoldNobody}};

struct TrialRunner {
    int from;         // the base of the man who is sent
    Position target;  // who takes the throw
};
constexpr std::array<TrialRunner, kTrials> kTrialRunner{{{1, Position::B3},
                                                         {2, Position::C},
                                                         {2, Position::C},
                                                         {1, Position::B3},
                                                         {2, Position::C},
                                                         {2, Position::C},
                                                         {1, Position::B3},
                                                         {1, Position::C},
                                                         {2, Position::B3},
                                                         {2, Position::B3},
                                                         {1, Position::B2},
                                                         {3, Position::C}}};

Trial TrialAmong(Trial both, ExtraBaseCase which) {
    const int offset = which == ExtraBaseCase::Both ? 0 : which == ExtraBaseCase::Second ? 1 : 2;
    return static_cast<Trial>(static_cast<int>(both) + offset);
}

Trial TrialOf(const Play& play) {
    switch (play.PlayResult) {
        case Result::SinglePlusDecision: return Trial::PlusSingle;
        case Result::DoubleDecision: return Trial::Double;
        case Result::FDecision: return Trial::Fly;
        case Result::SFDecision: return TrialAmong(Trial::SFBoth, play.extraBase);
        case Result::E: return TrialAmong(Trial::ErrorBoth, play.extraBase);
        default: return TrialAmong(Trial::SingleBoth, play.extraBase);
    }
}

// Home ahead in its last turn has won, whoever else might still advance.
bool WonAlready(const GameState& state, Result result) {
    return state.BattingSide == Side::Home && state.Inning >= 9 && result != Result::FDecision &&
           state[Side::Home].Runs > state[Side::Visitor].Runs;
}

void EndDecision(Play& play) {
    play.extraBase = ExtraBaseCase::None;
    play.batterHeld = {};
}

void Decline(Step& step) {
    Play& play = step.play();
    const auto trial = static_cast<std::size_t>(TrialOf(play));
    MoveRunners(step, kHeld[trial], {}, play.batterHeld);
    if (play.PlayResult == Result::SFDecision && play.RunsScoredCount == 0) play.PlayResult = Result::F;
    EndDecision(play);
}

void PlaceSpot(Play& play, Position target) {
    play.DecisionErrorBy = play.values.ErrorSpotRoll > 50 ? target : play.FieldedBy;
}

ManagerDecisionResult OutOnChart(Step& step, ManagerDecisionResult result) {
    ++step.state.Outs;
    return result;
}

// A cell that says nothing gives None: the runner holds.
ManagerDecisionResult ReadCell(Step& step, const Cell& cell, Position target) {
    Play& play = step.play();
    const bool green = cell.color == CellColor::Green, red = cell.color == CellColor::Red;
    const bool blank = cell.text == CellText::Blank, star = cell.text == CellText::Star;
    if (green && blank) return ManagerDecisionResult::Safe;
    if (green && star) return ManagerDecisionResult::SafeStar;
    if (cell.result == Result::E) {
        PlaceSpot(play, target);
        if (green) return ManagerDecisionResult::SafeErr;
        if (ErrorStands(step, play.DecisionErrorBy)) return ManagerDecisionResult::Err;
        play.DecisionErrorBy = Position::None;
        AddNote(play, Note::ErrorIsOut);
        return OutOnChart(step, ManagerDecisionResult::Out);
    }
    if (red && blank) return OutOnChart(step, ManagerDecisionResult::Out);
    if (red && star) return OutOnChart(step, ManagerDecisionResult::OutStar);
    return ManagerDecisionResult::None;
}

constexpr std::array<Tag, 7> kDecisionTags{Tag::MDSafe, Tag::MDSafe, Tag::MDSafeStar, Tag::MDSafeErr,
                                           Tag::MDErr,  Tag::MDOut,  Tag::MDOutStar};

void BookDecision(Step& step, Position target) {
    Play& play = step.play();
    if (play.MDResult == ManagerDecisionResult::Out || play.MDResult == ManagerDecisionResult::OutStar)
        BookDecisionOut(step, target);
    if (play.MDResult == ManagerDecisionResult::SafeErr || play.MDResult == ManagerDecisionResult::Err) {
        ++step.fielding().Errors;
        step.state.ErrorInInning = true;
        BookDecisionError(step, play.DecisionErrorBy);
    }
}

void Become(Play& play, Becomes becomes) {
    if (becomes == Becomes::F || (becomes == Becomes::FUnlessRunScored && play.RunsScoredCount == 0))
        play.PlayResult = Result::F;
    if (becomes == Becomes::SF) play.PlayResult = Result::SF;
}

void ApplyManagerDecision(Step& step, const Outcome& outcome) {
    const bool earned =
        outcome.earns == Earns::Yes || (outcome.earns == Earns::VisitorOnly && step.state.BattingSide == Side::Visitor);
    const RunRule rule{outcome.RBI, earned ? std::uint8_t{0} : kNoneEarned};
    MoveRunners(step, outcome.moves, rule, step.play().batterHeld);
    Become(step.play(), outcome.becomes);
}

}  // namespace

void OfferExtraBase(Step& step) {
    Play& play = step.play();
    const bool second = step.state.sheet == SheetCode::M;
    if (!second) {
        if (step.state.sheet == SheetCode::P) step.Narrate(Tag::PitcherThrow);  // the batter's swing was told before
        step.Animate(Tag::PitcherThrow);
        step.Sound();
        play.DisplayResult = play.PlayResult;
        ResolveFielding(step);
        play.NarrationDone = true;
    }
    if (WonAlready(step.state, play.PlayResult)) return EndDecision(play);
    const TrialRunner& runner = kTrialRunner[static_cast<std::size_t>(TrialOf(play))];
    const TeamState& team = step.batting();
    const std::uint8_t slot = team.runner[static_cast<std::size_t>(runner.from)].slot;
    const int rating = slot == 0 ? 0 : team.lineup[slot - 1U].runRating;
    play.MDRow = static_cast<std::uint8_t>(rating > 5 ? 6 : rating + 1);
    step.state.awaited = {Await::Decision,        DecisionKind::ExtraBase, LineupCause::None,
                          step.state.BattingSide, Position::None,          0};
}

void AnswerExtraBase(Step& step, bool yes) {
    if (yes) {
        step.state.sheet = SheetCode::M;
        return;
    }
    Decline(step);
    if (step.state.sheet == SheetCode::P) return EndPitcherSheet(step);
    if (step.state.sheet == SheetCode::B) return EndBatterSheet(step);
    FinishPlay(step);
}

void ReadDecisionSheet(Step& step) {
    Play& play = step.play();
    const auto trial = static_cast<std::size_t>(TrialOf(play));
    const Position target = kTrialRunner[trial].target;
    play.DecisionErrorBy = Position::None;
    play.MDResult = ReadCell(step, CellAt(step.data.compiled.MgrDec[play.MDRow - 1U], play.ChartRoll), target);
    step.Sound();
    step.Animate(Tag::MDPlay);
    step.Narrate(Tag::MDPlay);
    if (play.MDResult == ManagerDecisionResult::None) {
        Decline(step);
        return FinishPlay(step);
    }
    step.Narrate(kDecisionTags[static_cast<std::size_t>(play.MDResult)]);
    BookDecision(step, target);
    const Outcome& outcome = kOutcomes[trial][static_cast<std::size_t>(play.MDResult) - 1];
    ApplyManagerDecision(step, outcome);
    if (outcome.askAgain) {
        play.extraBase = ExtraBaseCase::First;
        OfferExtraBase(step);
        if (Suspended(step)) return;
    }
    EndDecision(play);
    TellNotes(step);
    FinishPlay(step);
}

}  // namespace tarvane
