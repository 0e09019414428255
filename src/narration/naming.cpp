#include "narration/naming.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace tarvane {

namespace {

constexpr std::array<std::string_view, kPositionCount> kPlaces{
    "nobody", "the pitcher", "the catcher", "first",  "second", "third",  "short",
    "left",   "center",      "right",       "nobody", "nobody", "nobody", "nobody"};
constexpr std::array<std::string_view, kPositionCount> kOffices{
    "nobody",     "pitcher",      "catcher",     "first base",        "second base",  "third base",   "shortstop",
    "left field", "center field", "right field", "designated hitter", "pinch hitter", "pinch runner", "nobody"};
constexpr std::array<std::string_view, 5> kBases{"", "first", "second", "third", "home"};

PlayerRef InSlot(const GameState& state, Side side, int slot) {
    if (slot < 1 || slot > 9) return {};
    return state[side].lineup[static_cast<std::size_t>(slot - 1)].player;
}

std::string LastNameOf(const GameData& data, Side side, PlayerRef player) {
    return LastName(PlayerName(data, side, player));
}

std::string FielderName(const GameData& data, const GameState& state, Position position) {
    const Side side = state.FieldingSide();
    return LastNameOf(data, side, FielderAt(state, side, position));
}

int BaseBefore(const Play& play) {
    return play.StealTarget == 'H' ? 3 : play.StealTarget == '3' ? 2 : 1;
}

int TargetBase(const GameState& state) {
    if (state.sheet == SheetCode::S) return BaseBefore(state.play) + 1;
    return ExtraBaseOf(state).base;
}

std::string RunnerName(const GameData& data, const GameState& state) {
    const int slot = state.sheet == SheetCode::S ? state.play.StolenBaseSlot : ExtraBaseOf(state).runner;
    return LastNameOf(data, state.BattingSide, InSlot(state, state.BattingSide, slot));
}

std::string HurtName(const GameData& data, const GameState& state, const GameEvent& event) {
    if (event.tag == Tag::InjuryResult && state.injuryCount > 0) {
        const GameInjury& injury = state.injury[state.injuryCount - 1U];
        return LastNameOf(data, injury.side, injury.player);
    }
    const Play& play = state.play;
    if (play.InjuredBatter)
        return LastNameOf(data, state.BattingSide, InSlot(state, state.BattingSide, play.InjuredSlot));
    return FielderName(data, state, play.InjuredPosition);
}

// The side that a hurt man plays for.
Side HurtSide(const GameState& state, const GameEvent& event) {
    if (event.tag == Tag::InjuryResult && state.injuryCount > 0) return state.injury[state.injuryCount - 1U].side;
    return state.play.InjuredBatter ? state.BattingSide : state.FieldingSide();
}

Side TeamOf(const GameState& state, const GameEvent& event) {
    const bool injury =
        event.tag == Tag::PossibleInjury || event.tag == Tag::PossibleInjury2 || event.tag == Tag::InjuryResult;
    return injury ? HurtSide(state, event) : state.BattingSide;
}

Side LeaderOf(const GameState& state) {
    return state[Side::Home].Runs > state[Side::Visitor].Runs ? Side::Home : Side::Visitor;
}

// The man who has just come in: the new pitcher, or the man now in the slot.
std::string IncomingName(const GameData& data, const GameState& state, const GameEvent& event) {
    if (event.tag == Tag::NewPitcher) return LastNameOf(data, event.side, state[event.side].pitcher);
    return LastNameOf(data, event.side, InSlot(state, event.side, event.slot));
}

std::string Ordinal(int number) {
    const int tens = number % 100;
    const int units = number % 10;
    const bool teen = tens >= 11 && tens <= 13;
    return fmt::format("{}{}", number, teen ? "th" : units == 1 ? "st" : units == 2 ? "nd" : units == 3 ? "rd" : "th");
}

std::string TeamName(const GameData& data, Side side) {
    return ShortTeamName(data[side].roster.team);
}

}  // namespace

std::string LastName(const std::string& playerName) {
    const auto blank = playerName.find(' ');
    return blank == std::string::npos ? playerName : playerName.substr(blank + 1);
}

std::string ShortTeamName(const Team& team) {
    const auto bracket = team.shortName.find('(');
    if (bracket == std::string::npos || bracket == 0) return team.shortName;
    return team.shortName.substr(0, bracket - 1);
}

std::string PlayerName(const GameData& data, Side side, PlayerRef player) {
    if (player.Nobody()) return "nobody";
    const TeamRoster& roster = data[side].roster;
    const auto index = static_cast<std::size_t>(player.index);
    return player.type == 'P' ? roster.pitchers[index].playerName : roster.batters[index].playerName;
}

PlayerRef FielderAt(const GameState& state, Side side, Position position) {
    const auto& lineup = state[side].lineup;
    const auto found =
        std::find_if(lineup.begin(), lineup.end(), [&](const LineupSlot& s) { return s.position == position; });
    if (found != lineup.end()) return found->player;
    return position == Position::P ? state[side].pitcher : PlayerRef{};
}

ExtraBase ExtraBaseOf(const GameState& state) {
    const Play& play = state.play;
    const auto& runner = state.Batting().runner;
    const bool second = play.extraBase == ExtraBaseCase::Both || play.extraBase == ExtraBaseCase::Second;
    switch (play.PlayResult) {
        case Result::SinglePlusDecision: return {3, runner[1].slot};
        case Result::DoubleDecision: return {4, runner[1].slot};
        case Result::FDecision: return {4, runner[3].slot};
        case Result::SFDecision: return second ? ExtraBase{3, runner[2].slot} : ExtraBase{2, runner[1].slot};
        default: return second ? ExtraBase{4, runner[2].slot} : ExtraBase{3, runner[1].slot};
    }
}

std::string NameText(Name name, const GameData& data, const GameState& state, const GameEvent& event) {
    const Play& play = state.play;
    const Side leader = LeaderOf(state);
    switch (name) {
        case Name::Batter: return LastNameOf(data, state.BattingSide, state.AtBat().player);
        case Name::Pitcher: return LastNameOf(data, state.FieldingSide(), state.Fielding().pitcher);
        case Name::Catcher: return FielderName(data, state, Position::C);
        case Name::Fielder:
            return FielderName(data, state, play.FieldedBy == Position::None ? Position::P : play.FieldedBy);
        case Name::Runner: return RunnerName(data, state);
        case Name::ErrorBy: return FielderName(data, state, play.DecisionErrorBy);
        case Name::Hurt: return HurtName(data, state, event);
        case Name::Player: return IncomingName(data, state, event);
        case Name::Position: return std::string(kPlaces[static_cast<std::size_t>(play.FieldedBy)]);
        case Name::PositionName: return std::string(kOffices[static_cast<std::size_t>(event.position)]);
        case Name::Line: return play.FieldedBy == Position::LF ? "left field" : "right field";
        case Name::From: return std::string(kBases[static_cast<std::size_t>(BaseBefore(play))]);
        case Name::Base: return std::string(kBases[static_cast<std::size_t>(TargetBase(state))]);
        case Name::Team: return TeamName(data, TeamOf(state, event));
        case Name::Opponents: return TeamName(data, state.FieldingSide());
        case Name::SideTeam: return TeamName(data, event.side);
        case Name::Visitors: return TeamName(data, Side::Visitor);
        case Name::Home: return TeamName(data, Side::Home);
        case Name::VisitingPitcher: return LastNameOf(data, Side::Visitor, state[Side::Visitor].pitcher);
        case Name::HomePitcher: return LastNameOf(data, Side::Home, state[Side::Home].pitcher);
        case Name::Park: return data.park.Stadium;
        case Name::Year: return fmt::format("{}", data.year.yearID);
        case Name::Runs: return fmt::format("{}", state[leader].Runs);
        case Name::OtherRuns: return fmt::format("{}", state[Other(leader)].Runs);
        case Name::Leader: return TeamName(data, leader);
        case Name::Trailer: return TeamName(data, Other(leader));
        case Name::Scored: return event.number == 1 ? "1 run scores" : fmt::format("{} runs score", event.number);
        case Name::ScoredShort: return event.number == 1 ? "a run" : fmt::format("{} runs", event.number);
        case Name::Inning: return Ordinal(state.Inning);
        case Name::Innings: return fmt::format("{} {}", state.Inning, state.Inning == 1 ? "Inning" : "Innings");
    }
    return {};
}

}  // namespace tarvane
