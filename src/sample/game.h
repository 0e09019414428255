#pragma once

#include <array>
#include <vector>

#include "base/random.h"
#include "sample/league.h"

namespace tarvane::sample {

// One man's work on the mound in a game.
struct Outing {
    std::size_t man = 0;
    int outs = 0, batters = 0, R = 0, limit = 0, leadAtEntry = 0;
};

// A club as it takes part in one game. Men are indices of MadeLeague::players, slots are places in the batting order.
struct GameSide {
    std::size_t club = 0;
    std::array<std::size_t, 9> order{};
    std::array<Spot, 9> spotOf{};
    std::array<std::size_t, kSpots> fielder{};
    std::array<bool, 9> pinch{};              // his man hit for another and hasn't been placed in the field yet
    std::vector<std::size_t> bench, bullpen;  // who can still come in
    std::vector<Outing> outings;
    int next = 0;  // slot that bats next
    int runs = 0;
};

// Plays one game and books all of it into the players' current stints and the clubs.
class Game {
  public:
    // Each side stands with its line-up, its starter as the first outing, and all who can come in.
    Game(Random& random, MadeLeague& league, GameSide visitor, GameSide home);
    void Play();

  private:
    struct Runner {
        bool on = false;
        bool unearned = false;
        std::size_t man = 0, outing = 0;  // outing of the fielding side that answers for him
    };
    struct Record {
        std::size_t side = 0, winner = 0, loser = 0;  // outings of the leading side and of the other
        bool set = false;
    };

    // The flow of a game and its substitutions (game.cpp).
    void Start(GameSide& side);
    void HalfInning();
    void TakeField();
    void RestRegulars();
    void TendMound();
    void BringIn(std::size_t reliever);
    bool ChooseReliever(std::size_t& choice);
    void PinchHit();
    bool WantsPinchHitter() const;
    bool SendPinchHitter(int slot);
    void Finish();
    void BookPitching(std::size_t sideIndex);
    std::size_t WinningOuting() const;

    // One turn at bat and what can happen before it (play.cpp; balls in play in fielding.cpp).
    void TurnAtBat();
    bool TrySteal();
    void StealSecond(bool safe);
    void LoosePitch();
    bool TryBunt();
    void Bunt();
    bool WalkOnPurpose() const;
    void Swing();
    void Walk();
    void TakeFirst();
    void Strikeout();
    void Hit(int bases);
    void RunOnSingle(const std::array<Runner, 3>& before);
    void BallInPlay();
    void ReachOnError(Spot where, bool grounder);
    void GroundOut(Spot where);
    void DoublePlay(Spot where);
    void ForceAtSecond(Spot where);
    void OutAtFirst(Spot where);
    void FlyOut(Spot where);

    // Small steps.
    void Score(const Runner& runner, bool rbi);
    void AdvanceAll(bool rbi, bool earned);
    void RecordOut(Spot putOutBy);
    void Assist(Spot spot);
    Spot FielderOf(bool grounder);
    Runner BatterAsRunner() const;
    void CountDoublePlay(std::initializer_list<Spot> spots);

    GameSide& Batting() { return sides_[batting_]; }
    GameSide& Fielding() { return sides_[1 - batting_]; }
    const GameSide& Batting() const { return sides_[batting_]; }
    const GameSide& Fielding() const { return sides_[1 - batting_]; }
    Player& At(std::size_t man) { return league_.players[man]; }
    const Player& At(std::size_t man) const { return league_.players[man]; }
    std::size_t BatterMan() const { return Batting().order[static_cast<std::size_t>(Batting().next)]; }
    Player& Batter() { return At(BatterMan()); }
    const Player& Batter() const { return At(BatterMan()); }
    Player& FieldMan(Spot spot) { return At(Fielding().fielder[Index(spot)]); }
    MadeFielding& Glove(Spot spot) { return FieldMan(spot).Now().field[Index(spot)]; }
    Outing& OnMound() { return Fielding().outings.back(); }
    Player& Pitcher() { return At(OnMound().man); }
    MadePitching& PitchLine() { return Pitcher().Now().pitch; }
    MadeBatting& BatLine() { return Batter().Now().bat; }
    int Lead(std::size_t side) const { return sides_[side].runs - sides_[1 - side].runs; }
    bool WalkedOff() const { return batting_ == 1 && inning_ >= 9 && Lead(1) > 0; }
    bool AnyoneOn() const { return bases_[0].on || bases_[1].on || bases_[2].on; }

    Random& random_;
    MadeLeague& league_;
    std::array<GameSide, 2> sides_;
    std::vector<unsigned> appeared_;  // by player: a bit for each spot he fielded; the bit of None: he was in the game
    std::size_t batting_ = 0;
    int inning_ = 1, outs_ = 0;
    int lostOuts_ = 0;  // outs that errors cost in this half: a run after the third is unearned
    std::array<Runner, 3> bases_{};
    Record record_;
};

}  // namespace tarvane::sample
