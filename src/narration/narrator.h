#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "engine/game.h"
#include "narration/wordings.h"

namespace tarvane {

// The situations that an event tells, in their order; empty when the play-by-play says nothing of it.
std::vector<std::string_view> SituationsOf(const GameData& data, const GameState& state, const GameEvent& event);

// Tells a game as on the radio. It listens to the events, builds the text of the play under way, and gives each play's
// text to the sink when the next begins. Nothing of the game depends on it.
class Narrator : public GameListener {
  public:
    using Sink = std::function<void(const std::string& playText)>;

    // wordings must outlive the narrator.
    Narrator(const Wordings& wordings, Sink sink);

    // The opening; call it with the state at the first pitch.
    void Welcome(const GameData& data, const GameState& state);
    // The opening of a game that is taken up again: inning and score are told too.
    void WelcomeBack(const GameData& data, const GameState& state);
    void OnEvent(const GameData& data, const GameState& state, const GameEvent& event) override;
    // Gives the sink what is left at the end of the game.
    void Finish();

    // The text of the play under way, for the screen.
    const std::string& PlayText() const { return text_; }

  private:
    void Say(std::string_view key, const GameData& data, const GameState& state, const GameEvent& event);
    void BeginText(bool pitch);
    const Sentence& Choose(const std::vector<Sentence>& wordings, int roll) const;

    const Wordings& wordings_;
    Sink sink_;
    std::string text_;
    bool onlyPitch_ = false;  // the text holds nothing but a pitch so far: the next pitch replaces it
    std::deque<const Sentence*> recent_;
};

}  // namespace tarvane
