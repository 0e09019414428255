#include <algorithm>

#include "engine/sheets.h"

namespace tarvane {

namespace {

enum class Attempt : std::uint8_t { Nothing, Safe, SafeError, Balk, ErrorAlone, Out, PickedOff };
constexpr std::size_t kAttempts = 7;

struct StealRow {
    Moves moves;
    std::uint8_t unearnedFrom = 0;
};

constexpr auto kSt = Goes::Stays, kTo2 = Goes::Second, kTo3 = Goes::Third, kToHome = Goes::Home, kGone = Goes::Out;
constexpr std::uint8_t kR2 = 1U << 2, kR3 = 1U << 3;

// By base (second, third, home) and attempt: batter, first, second, third.
constexpr std::array<std::array<StealRow, kAttempts>, 3> kStealRows{{
    {{{},
      {{{kSt, kTo2, kSt, kSt}}, 0},
      {{{kSt, kTo3, kSt, kToHome}}, kR3},
      {{{kSt, kTo2, kSt, kToHome}}, 0},
      {{{kSt, kTo2, kSt, kSt}}, 0},
      {{{kSt, kGone, kSt, kSt}}, 0},
      {{{kSt, kGone, kSt, kSt}}, 0}}},
    {{{},
      {{{kSt, kSt, kTo3, kSt}}, 0},
      {{{kSt, kTo3, kToHome, kSt}}, kR2},
      {{{kSt, kTo2, kTo3, kSt}}, 0},
      {{{kSt, kSt, kTo3, kSt}}, 0},
      {{{kSt, kSt, kGone, kSt}}, 0},
      {{{kSt, kSt, kGone, kSt}}, 0}}},
    {{{},
      {{{kSt, kSt, kSt, kToHome}}, 0},
      {{{kSt, kTo2, kTo3, kToHome}}, 0},
      {{{kSt, kTo2, kTo3, kToHome}}, 0},
      {{{kSt, kSt, kSt, kToHome}}, kR3},
      {{{kSt, kSt, kSt, kGone}}, 0},
      {{{kSt, kSt, kSt, kGone}}, 0}}},
}};

std::size_t BaseIndex(char target) {
    return target == '2' ? 0 : target == '3' ? 1 : 2;
}
std::size_t RunnerBase(char target) {
    return BaseIndex(target) + 1;
}

// Who takes the throw that a possible error is about.
Position ThrowTo(const GameState& state, char target) {
    if (target == '2') return BatsLeft(state) ? Position::SS : Position::B2;
    return target == '3' ? Position::B3 : Position::C;
}

Attempt CallSteal(Step& step, const Cell& cell) {
    Play& play = step.play();
    const bool blank = cell.text == CellText::Blank, error = cell.result == Result::E;
    if (cell.color == CellColor::Green && blank) return Attempt::Safe;
    if (cell.color == CellColor::Green && error) {
        play.ErrorBy = Position::C;
        return Attempt::SafeError;
    }
    if (cell.color == CellColor::Red) return blank ? Attempt::Out : Attempt::PickedOff;
    if (cell.result == Result::BK) return Attempt::Balk;
    if (!error) return Attempt::Nothing;
    const Position by = ThrowTo(step.state, play.StealTarget);
    if (ErrorStands(step, by)) {
        play.ErrorBy = by;
        return Attempt::ErrorAlone;
    }
    AddNote(play, Note::ErrorIsOut);
    return Attempt::Out;
}

constexpr std::array<Result, kAttempts> kAttemptResults{Result::None, Result::SB, Result::SB, Result::BK,
                                                        Result::CSE,  Result::CS, Result::PK};

struct StealTelling {
    Tag event = Tag::None, followUp = Tag::None;
};
constexpr std::array<StealTelling, kAttempts> kStealTelling{{{},
                                                             {Tag::SBSafe, Tag::SBSafe2},
                                                             {Tag::SBSafeError, Tag::SBSafeError2},
                                                             {Tag::PitcherResult, Tag::None},
                                                             {Tag::SBError, Tag::SBError2},
                                                             {Tag::SBOut, Tag::SBOut2},
                                                             {Tag::PickOff, Tag::None}}};

void ApplySteal(Step& step, Attempt attempt) {
    Play& play = step.play();
    TeamState& team = step.batting();
    play.StolenBaseSlot = attempt == Attempt::Balk ? std::uint8_t{0} : team.runner[RunnerBase(play.StealTarget)].slot;
    play.PlayResult = kAttemptResults[static_cast<std::size_t>(attempt)];
    if (attempt == Attempt::Out || attempt == Attempt::PickedOff) ++step.state.Outs;
    if (attempt == Attempt::SafeError || attempt == Attempt::ErrorAlone) {
        ++step.fielding().Errors;
        play.FieldedBy = play.ErrorBy;
        // A wild throw behind a stolen base leaves the half as earned as it was.
        if (attempt == Attempt::ErrorAlone) step.state.ErrorInInning = true;
    }
    const StealRow& row = kStealRows[BaseIndex(play.StealTarget)][static_cast<std::size_t>(attempt)];
    MoveRunners(step, row.moves, {false, row.unearnedFrom}, {});
}

void EndAttempt(Play& play) {
    play.StealTarget = ' ';
    play.StealRow = 0;
    play.StolenBaseSlot = 0;
}

}  // namespace

std::uint8_t StealRowOf(const GameData& data, const GameState& state, char target) {
    const TeamState& team = state.Batting();
    const TeamState& defence = state.Fielding();
    const std::uint8_t slot = team.runner[RunnerBase(target)].slot;
    int rating = slot == 0 ? 0 : std::min<int>(team.lineup[slot - 1U].runRating, 5);
    if (target != 'H') {
        if (rating != 0 && defence.CatcherIRated)
            --rating;
        else if (rating != 5 && data.rules.CatcherORating && defence.CatcherORated)
            ++rating;
    }
    return static_cast<std::uint8_t>(BaseIndex(target) * 6 + static_cast<std::size_t>(rating) + 1);
}

void StartSteal(Step& step, char target) {
    Play& play = step.play();
    play.StealTarget = target;
    play.StealRow = StealRowOf(step.data, step.state, target);
    step.state.sheet = SheetCode::S;
    step.Narrate(Tag::StealTry);
}

void ReadStealSheet(Step& step) {
    Play& play = step.play();
    const bool afterMiss = play.DisplayResult == Result::BuntMiss;
    BeginPlay(play);
    const Attempt attempt = CallSteal(step, CellAt(step.data.compiled.StolenBase[play.StealRow - 1U], play.ChartRoll));
    if (attempt == Attempt::Nothing) {
        EndAttempt(play);
        return NextSheet(step);
    }
    const bool pitched = attempt == Attempt::PickedOff || attempt == Attempt::Balk;
    const StealTelling& telling = kStealTelling[static_cast<std::size_t>(attempt)];
    ApplySteal(step, attempt);
    step.Sound();
    if (pitched || afterMiss) step.Narrate(Tag::PitcherThrow);
    if (pitched) step.Animate(Tag::PitcherToCatcher);
    step.Narrate(afterMiss ? Tag::BuntMiss2 : telling.event);
    if (!pitched) step.Animate(telling.event);
    if (telling.followUp != Tag::None && !afterMiss) step.Narrate(telling.followUp);
    TellNotes(step);
    FinishPlay(step);
    EndAttempt(play);
}

}  // namespace tarvane
