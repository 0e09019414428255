#pragma once

#include <memory>
#include <string>

#include "engine/game.h"

namespace tarvane {

class Narrator;

// The running text of a game: what has been told of it, play by play, the play under way at the end. Without its
// wordings it says why it can't speak, and the game goes on.
class PlayByPlay {
  public:
    PlayByPlay();
    ~PlayByPlay();

    // The opening; call it with the state at the first pitch.
    void Welcome(const GameData& data, const GameState& state);
    // The same for a game taken up again, behind what was told of it before.
    void WelcomeBack(const GameData& data, const GameState& state, const std::string& before);
    void OnEvent(const GameData& data, const GameState& state, const GameEvent& event);
    // A line of the program's own, such as what happened while nobody was told.
    void Note(const std::string& text);

    std::string Text() const;

  private:
    std::string told_;
    std::unique_ptr<Narrator> narrator_;
};

}  // namespace tarvane
