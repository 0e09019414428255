#pragma once

#include <vector>

#include "base/random.h"
#include "engine/game.h"
#include "manager/realuse.h"

namespace tarvane {

// What a computer manager knows besides the game: real statistics and the league's best. All of it may be empty.
struct ManagerKnowledge {
    RealUse real;
    bool actualUsage = false;     // real statistics are there and the league's rule goes by them
    std::vector<bool> topBatter;  // by roster index: among the league's best tenth by average, slugging or home runs
    int startersAvailable = -1;   // free to pitch today, a second game of the day provided for; -1: all of the roster
};

// value / by, a half to the even number; 0 where nothing is known. Kept to a byte, as the counts of a game are.
int RoundedShare(int value, int by);

struct PitcherFound {
    int index = -1;       // in the roster; -1: nobody
    bool closer = false;  // from the closers' list
};

// Looks for the man to bring in. One search serves one moment of a game.
class PitcherSearch {
  public:
    PitcherSearch(const GameData& data, const GameState& state, Side side, const ManagerKnowledge& knowledge,
                  Random& random)
        : data_(data), state_(state), side_(side), knowledge_(knowledge), random_(random) {}

    // By the manager's order: closers if wanted; the relievers' list when it is close and late; the long men after an
    // early knock-out; else the relievers and the staff. Nobody if the ten pitchers of a game are used.
    PitcherFound Find(bool wantsCloser);

    // For a hurt man: the relievers' list, then the roster in its order.
    PitcherFound FindForInjury();

    // Whoever the rules of the game let in, relievers first: for a game that can't go on without a change.
    PitcherFound FindAnybody();

  private:
    bool MayPitch(int index) const;
    bool Accepts(int index);
    bool OverUsed(int index);
    PitcherFound TryList(char type);
    template <class Test>
    PitcherFound TryTable(Test test);
    PitcherFound EarlyKnockOut();
    PitcherFound AnyRelief();
    int StartersAvailable() const;
    const std::vector<int>& Table();

    const GameData& data_;
    const GameState& state_;
    Side side_;
    const ManagerKnowledge& knowledge_;
    Random& random_;
    std::vector<int> table_;  // all pitchers, the best chart first
    bool refused_ = false;
};

}  // namespace tarvane
