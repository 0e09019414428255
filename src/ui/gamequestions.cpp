#include "ui/gamequestions.h"

#include <fmt/format.h>

#include <cmath>

#include "ui/names.h"

namespace tarvane {

namespace {

std::string Chance(const GameOptions& options, double chance) {
    return options.DisplayChances ? fmt::format("\nChance for success: {}%", std::lround(chance * 100)) : std::string();
}

double ChanceOf(const std::vector<GameChartRow>& rows, int row) {  // row counts from 1
    return row >= 1 && row <= static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(row - 1)].SuccessChance : 0;
}

int RunRating(const GameState& state, int base) {
    const int slot = state.Batting().runner[static_cast<std::size_t>(base)].slot;
    return slot == 0 ? 0 : state.Batting().lineup[static_cast<std::size_t>(slot - 1)].runRating;
}

bool On(const GameState& state, int base) {
    return state.Batting().runner[static_cast<std::size_t>(base)].On();
}

// " for computer managed <team>" when a computer's own move is put to the user.
std::string ForComputer(const GameData& data, const GameState& state, Side side) {
    return state.computer[side].game ? " for computer managed " + TeamName(data, side) : std::string();
}

// The runner whose extra base is in question, and the base that he tries for.
struct BaseAsked {
    int from = 1;
    const char* text = "";
};

BaseAsked BaseAskedOf(const Play& play) {
    const bool second = play.extraBase == ExtraBaseCase::Both || play.extraBase == ExtraBaseCase::Second;
    switch (play.PlayResult) {
        case Result::SinglePlusDecision: return {1, "Attempt for 3B with runner from 1B"};
        case Result::DoubleDecision: return {1, "Attempt to score with runner from 1B"};
        case Result::FDecision: return {3, "Attempt to score with runner from 3B"};
        case Result::SFDecision:
            return second ? BaseAsked{2, "Attempt to advance runner from 2B to 3B"}
                          : BaseAsked{1, "Attempt to advance runner from 1B to 2B"};
        default:
            return second ? BaseAsked{2, "Attempt to score with runner from 2B"}
                          : BaseAsked{1, "Attempt for 3B with runner from 1B"};
    }
}

Question ExtraBaseQuestion(const GameData& data, const GameState& state, const GameOptions& options) {
    const BaseAsked base = BaseAskedOf(state.play);
    const int rating = RunRating(state, base.from);
    const char* last = state.play.PlayResult == Result::FDecision
                           ? "Click Yes to try to score, otherwise Click No."
                           : "Click Yes to try for extra base, otherwise Click No.";
    return {"Manager Decision",
            fmt::format("{}{}?\n RR:{}{}\n{}", base.text, ForComputer(data, state, state.BattingSide), rating,
                        Chance(options, ChanceOf(data.charts.MgrDec, rating + 1)), last),
            {},
            {}};
}

Question DefensiveQuestion(const GameState& state) {
    const bool full = On(state, 1) && On(state, 2) && On(state, 3);
    const char* text =
        "Allow runner on 3B to score? Remaining runner will be on 1B.\nClick Yes to allow runner on 3B to score.\n"
        "Click No to hold runner on 3rd. Remaining runners will be on 2B and 3B.";
    if (state.play.PlayResult == Result::DP && full)
        text =
            "Allow runners on 2B and 3B to advance? Remaining runner will be on 3B with 2 outs.\n"
            "Click Yes to allow runners on 2B and 3B to advance.\n"
            "Click No to force 3B runner at Home. Bases remain loaded with 1 out.";
    else if (state.play.PlayResult == Result::DP)
        text =
            "Allow runner on 3B to score? Bases will be empty with 2 outs.\n"
            "Click Yes to allow runner on 3B to score.\n"
            "Click No to throw runner out at Home. Runners will be on 1B and 2B with 1 out.";
    return {"Defensive Manager Decision", text, {}, {}};
}

int BuntRowFor(BuntType type, char rating) {
    return (type == BuntType::Squeeze ? 3 : 1) + (rating == 'A' ? 0 : 1);
}

std::string BuntLines(const GameData& data, const GameState& state, const GameOptions& options, BuntType type) {
    const char rating = state.AtBat().BuntRating;
    return fmt::format("\nBatter Bunt Rating: {}{}", rating,
                       Chance(options, ChanceOf(data.charts.Bunt, BuntRowFor(type, rating))));
}

Question FurtherBuntQuestion(const GameData& data, const GameState& state, const GameOptions& options) {
    return {
        "Bunt Decision",
        fmt::format("There are two strikes on batter. Attempt another bunt{}?{}\n"
                    "Click Yes to attempt another bunt, otherwise Click No.",
                    ForComputer(data, state, state.BattingSide), BuntLines(data, state, options, state.play.buntType)),
        {},
        {}};
}

int StealFrom(char target) {
    return target == 'H' ? 3 : target == '3' ? 2 : 1;
}

int StealRow(char target, int rating) {
    return (target == 'H' ? 13 : target == '3' ? 7 : 1) + rating;
}

// The catcher's arm makes a runner slower or faster by one; a steal of home doesn't feel it.
int StealRating(const GameData& data, const GameState& state, int base) {
    const int rating = RunRating(state, base);
    if (base == 3) return rating;
    if (rating != 0 && state.Fielding().CatcherIRated) return rating - 1;
    if (rating != 5 && data.rules.CatcherORating && state.Fielding().CatcherORated) return rating + 1;
    return rating;
}

constexpr const char* kConfirm = "\nClick Yes to confirm Computer Manager move, otherwise Click No.";

std::string RunGivenUp(const GameData& data, const GameState& state, Side side) {
    const std::string team = "The computer managed " + TeamName(data, side);
    if (state.play.PlayResult == Result::DP && On(state, 1) && On(state, 2) && On(state, 3))
        return team +
               " are allowing the runners on 2B and 3B to advance.\n"
               "Click Yes to to confirm Computer Manager move and allow runners on 2B and 3B to advance. Remaining "
               "runner will be on 3B with 2 outs.\n"
               "Click No to force 3B runner at Home. Bases remain loaded with 1 out.";
    if (state.play.PlayResult == Result::DP)
        return team +
               " are allowing the runner on 3B to score.\n"
               "Click Yes to to confirm Computer Manager move and allow runner on 3B to score.\n"
               "Click No to throw runner out at Home. Runners will be on 1B and 2B with 1 out.";
    return team +
           " are allowing the runner on 3B to score.\n"
           "Click Yes to to confirm Computer Manager move and allow runner on 3B to score.\n"
           "Click No to hold runner on 3rd. Remaining runners will be on 2B and 3B.";
}

const char* HandLetter(std::int32_t hand) {
    return hand == kLeftHand ? "L" : hand == kRightHand ? "R" : "S";
}

// The man who comes in and as what: the pitcher if he is another, else the first slot that changes.
std::string Substitute(const GameData& data, const GameState& state, const LineupInput& lineup) {
    const TeamRoster& roster = data[lineup.side].roster;
    const TeamState& team = state[lineup.side];
    if (!(lineup.pitcher == team.pitcher) && !lineup.pitcher.Nobody()) {
        const Pitcher& man = roster.pitchers[static_cast<std::size_t>(lineup.pitcher.index)];
        return fmt::format("{} ({}) as the new pitcher", man.playerName, HandLetter(man.throws_));
    }
    for (std::size_t i = 0; i < team.lineup.size(); ++i) {
        const PlayerRef man = lineup.player[i];
        if (man == team.lineup[i].player) continue;
        const auto index = static_cast<std::size_t>(man.index);
        const std::int32_t bats = man.type == 'P' ? roster.pitchers[index].bats : roster.batters[index].bats;
        const bool hitter = lineup.side == state.BattingSide && i + 1U == team.BatterSlot;
        return fmt::format("{} ({}) as a pinch {}", PlayerName(data, lineup.side, man), HandLetter(bats),
                           hitter ? "hitter" : "runner");
    }
    return "another order";
}

std::string StrategyText(const GameData& data, const GameState& state, const GameOptions& options, Side side,
                         const Input& input) {
    const std::string team = fmt::format("The computer managed {} are attempting ", TeamName(data, side));
    if (const auto* steal = std::get_if<StealInput>(&input)) {
        const int rating = StealRating(data, state, StealFrom(steal->target));
        return fmt::format("{}a stolen base.\n RR:{}{}", team, rating,
                           Chance(options, ChanceOf(data.charts.StolenBase, StealRow(steal->target, rating))));
    }
    const bool bunt = std::holds_alternative<BuntInput>(input) || state.awaited.decision == DecisionKind::FurtherBunt;
    return team + (bunt ? "a bunt." : "to advance a runner.");
}

}  // namespace

bool FirstAndThird(const GameState& state) {
    return On(state, 1) && On(state, 3) && !On(state, 2);
}

BuntType BuntAsked(const GameState& state) {
    return On(state, 3) ? BuntType::Squeeze : BuntType::Sacrifice;
}

char StealAsked(const GameState& state) {
    if (On(state, 3)) return 'H';
    return On(state, 2) ? '3' : '2';
}

Question DecisionQuestion(const GameData& data, const GameState& state, const GameOptions& options) {
    switch (state.awaited.decision) {
        case DecisionKind::Defensive: return DefensiveQuestion(state);
        case DecisionKind::FurtherBunt: return FurtherBuntQuestion(data, state, options);
        default: return ExtraBaseQuestion(data, state, options);
    }
}

Question BuntQuestion(const GameData& data, const GameState& state, const GameOptions& options) {
    if (FirstAndThird(state))
        return {
            "Choose Bunt Option",
            fmt::format("Base runners on 1B and 3B. Choose sacrifice bunt or suicide squeeze. Batter Bunt Rating: {}\n"
                        "Click either Sacrifice or Squeeze, otherwise Click Cancel.",
                        state.AtBat().BuntRating),
            "Sacrifice", "Squeeze"};
    const BuntType type = BuntAsked(state);
    const char* what = type == BuntType::Squeeze ? "suicide squeeze" : "sacrifice bunt";
    return {"Bunt Decision",
            fmt::format("Attempt {}{}{}?{}\nClick Yes to try for {}, otherwise Click No.", what,
                        type == BuntType::Squeeze ? " bunt" : "", ForComputer(data, state, state.BattingSide),
                        BuntLines(data, state, options, type), what),
            {},
            {}};
}

Question StealQuestion(const GameData& data, const GameState& state, const GameOptions& options) {
    if (FirstAndThird(state))
        return {
            "Choose SB Option",
            fmt::format("Base runners on 1B and 3B. Choose Steal 2B or Steal Home.\n1B Run Rating: {}  3B Run Rating: "
                        "{}\nClick either Steal 2B or Steal Home, otherwise Click Cancel.",
                        StealRating(data, state, 1), RunRating(state, 3)),
            "Steal 2B", "Steal Home"};
    const char target = StealAsked(state);
    const int rating = StealRating(data, state, StealFrom(target));
    const char* where = target == 'H' ? "Home" : target == '3' ? "3B" : "2B";
    const char* attempt = target == 'H' ? "steal home" : target == '3' ? "steal 3B" : "steal 2B";
    return {"Base Steal Decision",
            fmt::format("Attempt to steal {}{}?\nRR:{}{}\nClick Yes for {} attempt, otherwise Click No.", where,
                        ForComputer(data, state, state.BattingSide), rating,
                        Chance(options, ChanceOf(data.charts.StolenBase, StealRow(target, rating))), attempt),
            {},
            {}};
}

Question MoveQuestion(const GameData& data, const GameState& state, const GameOptions& options,
                      const ProposedMove& move) {
    if (const auto* lineup = std::get_if<LineupInput>(&move.input))
        return {"Computer Manager Substitution",
                fmt::format("The computer managed {} are bringing in {}.{}", TeamName(data, move.side),
                            Substitute(data, state, *lineup), kConfirm),
                {},
                {}};
    const bool defence =
        std::holds_alternative<DecisionInput>(move.input) && state.awaited.decision == DecisionKind::Defensive;
    return {"Computer Manager Game Strategy",
            defence ? RunGivenUp(data, state, move.side)
                    : StrategyText(data, state, options, move.side, move.input) + kConfirm,
            {},
            {}};
}

Question WalkQuestion(const GameData& data, const GameState& state, const GameOptions& options) {
    const Side side = state.FieldingSide();
    const bool computer = options.AuxChartsAutoClick && state.computer[side].game;
    const std::string first = computer ? "Issue Intentional Walk for computer managed " + TeamName(data, side) + "?"
                                       : "Issue Intentional Walk?";
    return {"Issue Intentional Walk", first + "\nClick Yes to issue walk, otherwise Click No.", {}, {}};
}

Question QuitQuestion(const PreparedGame& game) {
    const LeagueRules& rules = game.data.rules;
    const char* kind = "";
    if (game.scheduled && rules.TourneyMode)
        kind = rules.TourneyType == "P"
                   ? "Saved game must be completed before advancing to next game date for the post season.\n"
                   : "Saved game must be completed before advancing to next game date for the tournament.\n";
    else if (game.scheduled)
        kind = "Saved game must be completed before advancing to next game date from the schedule.\n";
    return {"Tarvane PC Baseball Game Play",
            fmt::format("Do you want to save the game in progress?\nClick Yes to save game in progress. \n{}"
                        "Click No to quit game and do not save game in progress. All game results will be lost.",
                        kind),
            {},
            {}};
}

std::vector<QuickPlayChoice> QuickPlayChoices(const GameState& state) {
    std::vector<QuickPlayChoice> choices;
    for (int inning = 3; inning <= 8; ++inning)
        if (inning >= state.Inning)
            choices.push_back({fmt::format("Quick Play thru {} Inning", Ordinal(inning)), inning});
    choices.push_back({"Quick Play remainder of game", 0});
    return choices;
}

}  // namespace tarvane
