#pragma once

#include <array>
#include <initializer_list>
#include <vector>

#include "base/random.h"
#include "ui/gamesession.h"

namespace tarvane {

// When in a play a sound belongs: as the ball is struck, as it is caught, when the play is over, or after the half.
enum class SoundMoment { Struck, Caught, After, BetweenInnings };

struct SoundCue {
    std::filesystem::path file;
    SoundMoment moment = SoundMoment::Struck;
    int seconds = 0;  // 0: the whole clip
    int step = 0;     // counts the steps that were watched
    friend bool operator==(const SoundCue&, const SoundCue&) = default;
};

// Chooses the clips for what happens in a game. It plays nothing itself and draws from a generator of its own, so that
// a game with sounds is the same game.
class PlaySounds : public Onlooker {
  public:
    // The session's options are read at every event. For a spectator nothing is played between innings.
    PlaySounds(const GameSession& session, std::uint64_t seed) : session_(session), random_(seed) {}

    void StepBegins(const GameState&) override { ++steps_; }
    void OnEvent(const GameData& data, const GameState& state, const GameEvent& event) override;

    // What has been asked for since the last call, in its order.
    std::vector<SoundCue> TakeCues();

    // The songs between innings that this game has had; a game taken up again goes on with them.
    using Songs = std::array<bool, kMusicClips>;
    const Songs& SongsPlayed() const { return MusicClipPlayed; }
    void SetSongsPlayed(const Songs& played) { MusicClipPlayed = played; }

  private:
    void UserPlay(const GameState& state, const GameEvent& event);
    void BuiltInPlay(const GameState& state, const GameEvent& event);
    void BuiltInDecision(ManagerDecisionResult result);
    void BuiltInSteal(Result result, bool home);
    void CrowdAfterOut(const GameState& state, Result result);
    void RunsScored(const GameState& state, int runs);
    void PlayCrowdSound(Side batting);
    void PlayInningMusic(const GameState& state, Side ended);
    std::size_t NextSong(int inning);

    void OneOf(std::initializer_list<const char*> clips, SoundMoment moment);
    void Crowd(std::initializer_list<const char*> clips);
    void User(Side side, const char* event, SoundMoment moment);
    std::filesystem::path UserFile(const std::string& name) const;

    const SoundOptions& Options() const { return session_.Options().sounds; }

    const GameSession& session_;
    Random random_;
    std::vector<SoundCue> cues_;
    Songs MusicClipPlayed{};
    int steps_ = 0;
    bool crowdHeard_ = false;  // on the play that is being told
};

// The folder of the clips that come with the program.
std::filesystem::path BuiltInSounds();

}  // namespace tarvane
