#pragma once

#include <optional>
#include <string>

#include "ui/gamesession.h"

namespace tarvane {

// A question put to a manager, ready for a box.
struct Question {
    std::string title, text;
    std::string first, second;  // two named ways instead of Yes and No, where filled
};

// The decision that the game awaits of a human.
Question DecisionQuestion(const GameData& data, const GameState& state, const GameOptions& options);

// Whether to bunt or steal as asked, for the runners now on. On first and third it has two ways.
Question BuntQuestion(const GameData& data, const GameState& state, const GameOptions& options);
Question StealQuestion(const GameData& data, const GameState& state, const GameOptions& options);

// What a Yes to those means: the squeeze with a man on third, else the sacrifice; the base of the leading runner.
BuntType BuntAsked(const GameState& state);
char StealAsked(const GameState& state);
bool FirstAndThird(const GameState& state);

// A computer manager's move before it is made.
Question MoveQuestion(const GameData& data, const GameState& state, const GameOptions& options,
                      const ProposedMove& move);

Question WalkQuestion(const GameData& data, const GameState& state, const GameOptions& options);
// Whether to save a game that is left, with what that means for its kind: one of the schedule, of a tournament, of the
// post season, or an exhibition.
Question QuitQuestion(const PreparedGame& game);

// The intervals that quick play offers now, in order; the inning of the last one is 0, the rest of the game.
struct QuickPlayChoice {
    std::string text;
    int throughInning = 0;
};
std::vector<QuickPlayChoice> QuickPlayChoices(const GameState& state);

}  // namespace tarvane
