#include "ui/playbyplay.h"

#include <fmt/format.h>

#include <array>

#include "ui/names.h"

namespace tarvane {

namespace {

constexpr std::array<const char*, kPositionCount> kPlaces{
    "", "the pitcher", "the catcher", "first", "second", "third", "short", "left", "center", "right", "", "", "", ""};

std::string PlaceName(Position position) {
    const std::string place = kPlaces[static_cast<std::size_t>(position)];
    return place.empty() ? "the designated hitter's place" : place;
}

std::string To(Position position) {
    const char* place = kPlaces[static_cast<std::size_t>(position)];
    return *place == '\0' ? std::string() : fmt::format(" to {}", place);
}

std::string FielderAt(const GameData& data, const GameState& state, Side side, Position position) {
    if (position == Position::P) return LastNameOf(data, side, state[side].pitcher);
    for (const LineupSlot& slot : state[side].lineup)
        if (slot.position == position) return LastNameOf(data, side, slot.player);
    return {};
}

std::string OnError(const GameData& data, const GameState& before, const std::string& batter, Position by) {
    const std::string fielder = FielderAt(data, before, before.FieldingSide(), by);
    if (fielder.empty()) return fmt::format("{} reaches on an error.", batter);
    return fmt::format("{} reaches on an error by {}.", batter, fielder);
}

std::string Hit(const std::string& batter, const Play& play) {
    switch (play.PlayResult) {
        case Result::Double:
        case Result::DoubleAllScore:
        case Result::DoubleDecision: return fmt::format("{} doubles{}.", batter, To(play.FieldedBy));
        case Result::Triple: return fmt::format("{} triples{}.", batter, To(play.FieldedBy));
        case Result::HR: return fmt::format("{} hits a home run{}!", batter, To(play.FieldedBy));
        default: return fmt::format("{} singles{}.", batter, To(play.FieldedBy));
    }
}

std::string OnTheBases(const GameData& data, const GameState& before, const Play& play) {
    const std::string runner = SlotLastName(data, before, before.BattingSide, play.StolenBaseSlot);
    const std::string who = runner.empty() ? "The runner" : runner;
    const std::string base = play.StealTarget == 'H' ? "home" : play.StealTarget == '3' ? "third" : "second";
    switch (play.PlayResult) {
        case Result::SB: return fmt::format("{} steals {}.", who, base);
        case Result::CS: return fmt::format("{} is caught stealing {}.", who, base);
        case Result::CSE: return fmt::format("{} would be out stealing {}, but the ball gets away.", who, base);
        default: return fmt::format("{} is picked off.", who);
    }
}

std::string MainSentence(const GameData& data, const GameState& before, const GameState& after, bool intentional) {
    const Play& play = after.play;
    const std::string batter = LastNameOf(data, before.BattingSide, before.AtBat().player);
    switch (play.PlayResult) {
        case Result::Single:
        case Result::SingleTwoBases:
        case Result::SinglePlus:
        case Result::SingleDecision:
        case Result::SinglePlusDecision:
        case Result::Double:
        case Result::DoubleAllScore:
        case Result::DoubleDecision:
        case Result::Triple:
        case Result::HR: return Hit(batter, play);
        case Result::G:
        case Result::GAdvance: return fmt::format("{} grounds out{}.", batter, To(play.FieldedBy));
        case Result::FC: return fmt::format("{} grounds{}, and a runner is forced.", batter, To(play.FieldedBy));
        case Result::DP: return fmt::format("{} grounds into a double play.", batter);
        case Result::F:
        case Result::FDecision: return fmt::format("{} flies out{}.", batter, To(play.FieldedBy));
        case Result::SF:
        case Result::SFDecision: return fmt::format("{} hits a sacrifice fly{}.", batter, To(play.FieldedBy));
        case Result::K: return fmt::format("{} strikes out.", batter);
        case Result::BB: return batter + (intentional ? " is walked intentionally." : " walks.");
        case Result::HBP: return fmt::format("{} is hit by a pitch.", batter);
        case Result::WP: return "Wild pitch.";
        case Result::PB: return "Passed ball.";
        case Result::BK: return "Balk.";
        case Result::E: return OnError(data, before, batter, play.ErrorBy);
        case Result::SH: return fmt::format("{} sacrifices.", batter);
        case Result::SB:
        case Result::CS:
        case Result::CSE:
        case Result::PK: return OnTheBases(data, before, play);
        default: return {};
    }
}

std::string Score(const GameData& data, const GameState& state) {
    return fmt::format("{} {}, {} {}", TeamName(data, Side::Visitor), state[Side::Visitor].Runs,
                       TeamName(data, Side::Home), state[Side::Home].Runs);
}

std::string Runs(const GameData& data, const GameState& before, const GameState& after,
                 const std::vector<int>& scorers) {
    const Side side = before.BattingSide;
    const int runs = after[side].Runs - before[side].Runs;
    if (runs <= 0) return {};
    std::string names;
    for (std::size_t i = 0; i < scorers.size(); ++i) {
        if (i > 0) names += i + 1 == scorers.size() ? " and " : ", ";
        names += SlotLastName(data, before, side, scorers[i]);
    }
    const std::string who = names.empty() ? fmt::format("{} score {}", TeamName(data, side), runs)
                                          : fmt::format("{} {}", names, scorers.size() == 1 ? "scores" : "score");
    return fmt::format(" {}: {}.", who, Score(data, after));
}

std::string Fatigue(const GameData& data, const GameState& before, const GameState& after) {
    const Side side = before.FieldingSide();
    const TeamState& was = before[side];
    const TeamState& is = after[side];
    const std::string pitcher = LastNameOf(data, side, is.pitcher);
    if (is.PitcherTired && !was.PitcherTired) return pitcher + " is tiring.";
    if (is.PitcherIntermediateTired && !was.PitcherIntermediateTired) return pitcher + " is beginning to tire.";
    const bool better =
        (was.PitcherTired || was.PitcherIntermediateTired) && !is.PitcherTired && !is.PitcherIntermediateTired;
    return better ? pitcher + " has found a second wind." : std::string();
}

std::string EndOfHalf(const GameData& data, const GameState& before, const GameState& after) {
    if (after.GameOverFlag) return fmt::format("\n\nThe game is over: {}.", Score(data, after));
    if (before.BattingSide == after.BattingSide && before.Inning == after.Inning) return {};
    const bool middle = before.BattingSide == Side::Visitor;
    return fmt::format("\n\n{} of the {}: {}.", middle ? "Middle" : "End", Ordinal(before.Inning), Score(data, after));
}

bool PlayIsOver(const GameState& after) {
    if (after.awaited.kind == Await::Decision) return false;
    if (after.awaited.kind == Await::GameOver || after.awaited.kind == Await::LineupChange) return true;
    return after.sheet == SheetCode::P || after.sheet == SheetCode::PS || after.sheet == SheetCode::XI;
}

}  // namespace

std::string TellOpening(const GameData& data, const GameState& state) {
    const auto starter = [&](Side side) { return PlayerName(data, side, state[side].pitcher); };
    const std::string where = data.park.Stadium.empty() ? "the ball park" : data.park.Stadium;
    return fmt::format(
        "Welcome to {} for a ballgame between the {} and the {}. {} starts for the {} against {} for the {}. ", where,
        TeamName(data, Side::Visitor), TeamName(data, Side::Home), starter(Side::Visitor),
        TeamName(data, Side::Visitor), starter(Side::Home), TeamName(data, Side::Home));
}

std::string TellChange(const GameData& data, const GameState& state, const GameEvent& event) {
    const std::string team = TeamName(data, event.side);
    const std::string man = event.slot == 0
                                ? PlayerName(data, event.side, state[event.side].pitcher)
                                : PlayerName(data, event.side, state[event.side].lineup[event.slot - 1U].player);
    switch (event.tag) {
        case Tag::NewPitcher: return fmt::format("{} comes in to pitch for the {}.", man, team);
        case Tag::PinchHitter: return fmt::format("{} bats for the {}.", man, team);
        case Tag::PinchRunner: return fmt::format("{} runs for the {}.", man, team);
        default: return fmt::format("{} takes {} for the {}.", man, PlaceName(event.position), team);
    }
}

std::string TellStep(const GameData& data, const GameState& before, const GameState& after,
                     const std::vector<int>& scorers, bool intentional) {
    if (before.sheet == SheetCode::PS) return Fatigue(data, before, after);
    if (!PlayIsOver(after)) return {};
    std::string text = MainSentence(data, before, after, intentional);
    if (after.play.GreatPlay && !text.empty()) text += " A fine play.";
    text += Runs(data, before, after, scorers);
    text += EndOfHalf(data, before, after);
    return text;
}

}  // namespace tarvane
