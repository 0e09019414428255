#include "manager/pitchersearch.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

#include "engine/availability.h"
#include "manager/rest.h"
#include "manager/roster.h"

namespace tarvane {

namespace {

constexpr int kSeasonGames = 154;   // on which real use is measured
constexpr int kLeastTeamGames = 3;  // use is judged once more than these are played
constexpr int kSixthStarter = 6;

}  // namespace

int RoundedShare(int value, int by) {
    if (by <= 0 || value <= 0) return 0;
    const int whole = value / by, rest = value % by;
    const bool up = 2 * rest > by || (2 * rest == by && whole % 2 != 0);
    return std::min(whole + (up ? 1 : 0), 255);
}

const std::vector<int>& PitcherSearch::Table() {
    if (!table_.empty()) return table_;
    const auto& pitchers = data_[side_].roster.pitchers;
    for (std::size_t i = 0; i < pitchers.size(); ++i) table_.push_back(static_cast<int>(i));
    const auto key = [&pitchers](int index) {
        const Pitcher& p = pitchers[static_cast<std::size_t>(index)];
        return std::make_tuple(-OutShare(p), -Thousandths(p.chance.HRReduce), p.playerID);
    };
    std::sort(table_.begin(), table_.end(), [&key](int a, int b) { return key(a) < key(b); });
    return table_;
}

int PitcherSearch::StartersAvailable() const {
    if (knowledge_.startersAvailable >= 0) return knowledge_.startersAvailable;
    const auto& pitchers = data_[side_].roster.pitchers;
    return static_cast<int>(
        std::count_if(pitchers.begin(), pitchers.end(), [](const Pitcher& p) { return p.pitcherType == 'S'; }));
}

// Used more than he really was, and the draw is against him.
bool PitcherSearch::OverUsed(int index) {
    const TeamRoster& roster = data_[side_].roster;
    const PlayerRef current = state_[side_].pitcher;
    const RealPitching& known = knowledge_.real.PitcherAt(index);
    const RealPitching& now = knowledge_.real.PitcherAt(current.index);
    const int teamGames = roster.team.W + roster.team.L, usage = roster.tendencies.RelieverUsage;
    if (!knowledge_.actualUsage || RoundedShare(now.IPOuts, now.G) == 0 || known.G == 0 || teamGames <= kLeastTeamGames)
        return false;
    if (roster.pitchers[static_cast<std::size_t>(index)].total.Games * kSeasonGames <= known.G * teamGames)
        return false;
    return random_.RandomPercent() <= 40 + 10 * usage;
}

// The rules of the game let him in, and he isn't needed where he stands.
bool PitcherSearch::MayPitch(int index) const {
    const PlayerRef man{'P', static_cast<std::int16_t>(index)};
    return !InGame(data_, state_, side_, man) && CheckEnteringPitcher(data_, state_, side_, man) == Reject::None;
}

bool PitcherSearch::Accepts(int index) {
    const TeamRoster& roster = data_[side_].roster;
    const Pitcher& pitcher = roster.pitchers[static_cast<std::size_t>(index)];
    const int teamGames = roster.team.W + roster.team.L;
    const bool refused = !MayPitch(index) || IsResting(roster, pitcher) ||
                         (teamGames > kLeastTeamGames && pitcher.total.Games * 100 > 65 * teamGames) || OverUsed(index);
    refused_ = refused_ || refused;
    return !refused;
}

PitcherFound PitcherSearch::TryList(char type) {
    const TeamRoster& roster = data_[side_].roster;
    const LineupList* list = FindList(roster, type);
    for (std::size_t i = 0; list && i < 5 && list->slot[i].playerID != 0; ++i) {
        const int index = PitcherIndexOf(roster, list->slot[i].playerID);
        if (index >= 0 && Accepts(index)) return {index, type == 'C'};
    }
    return {};
}

// Walks the table; test says of each pitcher whether he is tried.
template <class Test>
PitcherFound PitcherSearch::TryTable(Test test) {
    for (const int index : Table())
        if (test(data_[side_].roster.pitchers[static_cast<std::size_t>(index)].pitcherType) && Accepts(index))
            return {index, false};
    return {};
}

// Somebody who would otherwise start one day goes long: the sixth of the starters and those behind him.
PitcherFound PitcherSearch::EarlyKnockOut() {
    int starters = 0;
    return TryTable([&starters](char type) { return type == 'S' && ++starters >= kSixthStarter; });
}

// The relievers' list, then the staff but its best reliever, whom the late innings may need.
PitcherFound PitcherSearch::AnyRelief() {
    if (const PitcherFound found = TryList('R'); found.index >= 0) return found;
    int relievers = 0, starters = 0;
    const bool spare = StartersAvailable() > 2;
    return TryTable([&, spare](char type) {
        if (type == 'S') return ++starters >= kSixthStarter && spare;
        return ++relievers > 1;
    });
}

PitcherFound PitcherSearch::Find(bool wantsCloser) {
    const TeamState& team = state_[side_];
    const bool halfOver = side_ == state_.FieldingSide() && state_.Outs >= 3;
    if (halfOver || team.box.PitchersUsed >= kMaxPitchingLines) return {};
    const int apart = std::abs(team.Runs - state_[Other(side_)].Runs);
    const bool one = team.box.PitchersUsed == 1;
    // A visiting team at bat will be in the field in this same inning, so its early innings are one more.
    const int early = side_ == Side::Visitor && state_.BattingSide == Side::Visitor ? 6 : 5;
    const auto relievers = [](char type) { return type == 'R'; };
    refused_ = false;
    PitcherFound found;
    if (wantsCloser || (apart <= 3 && state_.Inning >= 7)) {
        found = TryList(wantsCloser ? 'C' : 'R');
        if (found.index < 0) found = TryTable(relievers);
    } else if (one && StartersAvailable() > 2 && state_.Inning < early) {
        found = EarlyKnockOut();
    } else if (!one || state_.Inning >= 5) {
        found = AnyRelief();
    }
    if (found.index >= 0 || !refused_) return found;
    const bool spare = StartersAvailable() > 2;
    return TryTable([spare](char type) { return type != 'S' || spare; });
}

PitcherFound PitcherSearch::FindForInjury() {
    if (const PitcherFound found = TryList('R'); found.index >= 0) return found;
    for (std::size_t i = 0; i < data_[side_].roster.pitchers.size(); ++i)
        if (Accepts(static_cast<int>(i))) return {static_cast<int>(i), false};
    return {};
}

PitcherFound PitcherSearch::FindAnybody() {
    for (const char type : {'R', 'S'})
        for (const int index : Table()) {
            const Pitcher& pitcher = data_[side_].roster.pitchers[static_cast<std::size_t>(index)];
            if (pitcher.pitcherType == type && MayPitch(index)) return {index, false};
        }
    return {};
}

}  // namespace tarvane
