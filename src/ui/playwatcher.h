#pragma once

#include <array>
#include <vector>

#include "ui/gamesession.h"
#include "ui/gameview.h"

namespace tarvane {

// What moved in one step of a game: where everybody stood, what the ball did, where everybody is now.
struct PlayFacts {
    int step = 0;  // counts the steps that were watched
    static constexpr int kOut = -1, kHome = 4, kAtBat = 0;
    struct Man {
        std::uint8_t slot = 0;  // 0: nobody
        int from = 0;           // base; kAtBat: at the plate
        int to = 0;             // base, kHome, kOut or kAtBat
        friend bool operator==(const Man&, const Man&) = default;
    };
    // The batter, then who stood on first, second and third.
    std::array<Man, 4> man;
    bool batsLeft = false;
    std::vector<Tag> movements;  // in the order of their telling; never empty
    Result result = Result::None;
    Position fieldedBy = Position::None;
    bool nearLine = false;
    int RunnerRoll = 0;      // how far past the fielder the ball goes
    char stealTarget = ' ';  // '2', '3', 'H'
    FieldLabels labels;      // as the play began

    bool Has(Tag tag) const;
    // All that the light form shows.
    bool HitOrRun() const;
};

// Notes the movements of a game as it is played, for the picture of the field.
class PlayWatcher : public Onlooker {
  public:
    explicit PlayWatcher(const GameData& data) : data_(data) {}

    void StepBegins(const GameState& state) override;
    void OnEvent(const GameData& data, const GameState& state, const GameEvent& event) override;
    void StepEnds(const GameState& state) override;

    // What has moved since the last call, in its order.
    std::vector<PlayFacts> TakePlays();

  private:
    void NoteStand(const GameState& state);
    void AmendLast();

    const GameData& data_;
    Side batting_ = Side::Visitor;
    PlayFacts facts_;
    std::vector<PlayFacts> plays_;
    int steps_ = 0;
    bool held_ = false;    // the batter's base hangs on a decision, as the step begins
    bool closed_ = false;  // the play is booked: what changes now belongs to the next one
};

}  // namespace tarvane
