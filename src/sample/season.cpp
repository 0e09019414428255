#include "sample/season.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

#include "sample/chance.h"
#include "sample/game.h"

namespace tarvane::sample {
namespace {

constexpr int kRosterGrows = 138;  // day from which call-ups join the active roster
constexpr int kTradeDay = 70;
constexpr int kTrades = 6;
constexpr std::size_t kLeagueClubs = 8;

// A pairing within a league of eight, clubs 0 to 7 (0 to 3 one division); the second is at home.
struct Pairing {
    std::size_t visitor, home;
};
using Round = std::array<Pairing, kLeagueClubs / 2>;

// The seven rounds in which each of the eight meets each other once, by the circle method.
Round CircleRound(std::size_t round) {
    constexpr std::size_t turning = kLeagueClubs - 1;
    Round pairs{};
    pairs[0] = {kLeagueClubs - 1, round % turning};
    for (std::size_t i = 1; i < kLeagueClubs / 2; ++i)
        pairs[i] = {(round + i) % turning, (round + turning - i) % turning};
    return pairs;
}

// The three rounds in which each meets his three division rivals once.
Round DivisionRound(std::size_t round) {
    static constexpr std::array<std::array<std::size_t, 4>, 3> kOrder{{{0, 1, 2, 3}, {0, 2, 1, 3}, {0, 3, 1, 2}}};
    const auto& o = kOrder[round % 3];
    return {{{o[0], o[1]}, {o[2], o[3]}, {o[0] + 4, o[1] + 4}, {o[2] + 4, o[3] + 4}}};
}

// 162 rounds: 21 full circles make 147 days, five division circles the other 15, so that division rivals meet 26 times
// and the other four clubs 21 times. Who is at home alternates from meeting to meeting; of an odd number of meetings
// the extra one is spread so that each club is at home 81 times.
std::vector<Round> Schedule() {
    std::vector<Round> days;
    std::array<std::array<int, kLeagueClubs>, kLeagueClubs> met{};
    std::size_t circles = 0, divisions = 0;
    for (std::size_t day = 0; day < kSeasonDays; ++day) {
        // Now and then three days belong to the division.
        const bool division = day % 32 >= 29 && day < 160;
        days.push_back(division ? DivisionRound(divisions++) : CircleRound(circles++));
    }
    for (Round& round : days) {
        for (Pairing& pair : round) {
            const std::size_t a = std::min(pair.visitor, pair.home);
            const std::size_t b = std::max(pair.visitor, pair.home);
            const bool aHome = (met[a][b]++ + static_cast<int>(a + b)) % 2 == 0;
            pair = aHome ? Pairing{b, a} : Pairing{a, b};
        }
    }
    return days;
}

class Season {
  public:
    Season(Random& random, MadeLeague& league) : random_(random), league_(league) {}

    void Play() {
        const std::vector<Round> schedule = Schedule();
        for (day_ = 0; day_ < kSeasonDays; ++day_) {
            if (day_ == kTradeDay) Trade();
            StartDay();
            for (const std::size_t base : {std::size_t{0}, kLeagueClubs})
                for (const Pairing& pair : schedule[static_cast<std::size_t>(day_)])
                    PlayGame(base + pair.visitor, base + pair.home);
        }
        Standings();
    }

  private:
    Player& At(std::size_t man) { return league_.players[man]; }

    // Overnight everybody rests, and now and then somebody is hurt.
    void StartDay() {
        for (Player& player : league_.players) {
            player.tired = std::max(0, player.tired - 3);
            if (day_ < player.outUntil || !Happens(random_, player.role == Role::Batter ? 0.0038 : 0.0030)) continue;
            int days = Between(random_, 3, 14);
            if (Happens(random_, 0.4)) days += Between(random_, 7, 45);
            player.outUntil = day_ + days;
        }
    }

    void PlayGame(std::size_t visitor, std::size_t home) {
        Game(random_, league_, MakeSide(visitor), MakeSide(home)).Play();
    }

    // The healthy men at the head of the list, as many as the roster holds.
    std::vector<std::size_t> Active(const std::vector<std::size_t>& list, std::size_t count) {
        if (day_ >= kRosterGrows) count += 4;
        std::vector<std::size_t> active;
        for (const std::size_t man : list)
            if (active.size() < count && At(man).outUntil <= day_) active.push_back(man);
        return active;
    }

    GameSide MakeSide(std::size_t index) {
        const Club& club = league_.clubs[index];
        GameSide side;
        side.club = index;
        ChooseStarter(side, Active(club.pitchers, 10));
        ChooseNine(side, Active(club.batters, 15), club.DesignatedHitter());
        OrderBats(side, club.DesignatedHitter());
        return side;
    }

    // The two best start on the fourth day as often as on the fifth, the others on the fifth; whoever is first in line
    // and rested goes.
    void ChooseStarter(GameSide& side, const std::vector<std::size_t>& staff) {
        std::size_t chosen = staff.front();
        bool found = false;
        int place = 0;
        for (const std::size_t man : staff) {
            Player& player = At(man);
            if (player.role != Role::Starter) continue;
            const int rest = place < 2 && Happens(random_, 0.6) ? 4 : 5;
            ++place;
            if (found || day_ - player.lastStart < rest) continue;
            chosen = man;
            found = true;
        }
        if (!found) {
            // Nobody is rested: a long man, or whoever threw least lately.
            chosen = *std::min_element(staff.begin(), staff.end(), [&](std::size_t a, std::size_t b) {
                return std::tuple(At(a).role == Role::Closer, At(a).tired, a) <
                       std::tuple(At(b).role == Role::Closer, At(b).tired, b);
            });
        }
        At(chosen).lastStart = day_;
        Outing start;
        start.man = chosen;
        side.outings.push_back(start);
        side.fielder[Index(Spot::P)] = chosen;
        for (const std::size_t man : staff)
            if (man != chosen && (At(man).role != Role::Starter || day_ - At(man).lastStart >= 3))
                side.bullpen.push_back(man);
    }

    // Each position takes its regular, unless he has a day off, else the best of those who can play it.
    void ChooseNine(GameSide& side, std::vector<std::size_t> men, bool withDH) {
        static constexpr std::array kOrder{Spot::C,  Spot::SS, Spot::CF, Spot::B2,        Spot::B3,
                                           Spot::RF, Spot::LF, Spot::B1, Spot::Designated};
        std::vector<std::size_t> resting;
        for (std::size_t i = 0; i < men.size() && i < 9; ++i)
            if (Happens(random_, At(men[i]).spot == Spot::C ? 0.22 : 0.09)) resting.push_back(men[i]);
        std::size_t slot = 0;
        for (const Spot spot : kOrder) {
            if (spot == Spot::Designated && !withDH) continue;
            const std::size_t man = BestFor(spot, men, resting);
            men.erase(std::find(men.begin(), men.end(), man));
            side.order[slot] = man;
            side.spotOf[slot] = spot;
            ++slot;
            if (spot != Spot::Designated) side.fielder[Index(spot)] = man;
        }
        if (!withDH) {
            side.order[8] = side.outings.front().man;
            side.spotOf[8] = Spot::P;
        }
        side.bench = men;
    }

    // Lists run from the firmest job down, so the first who belongs there is the regular.
    std::size_t BestFor(Spot spot, const std::vector<std::size_t>& men, const std::vector<std::size_t>& resting) {
        std::size_t best = men.front();
        double bestScore = -100;
        for (std::size_t i = 0; i < men.size(); ++i) {
            const Player& player = At(men[i]);
            const bool belongs = player.spot == spot;
            const bool can = belongs || player.CanPlay(spot) || spot == Spot::Designated;
            double score = (can ? 10 : 0) + (belongs ? 0.5 : 0) + player.bat.value - 0.015 * static_cast<double>(i);
            // A regular of another position stays there unless nobody else can do it.
            if (i < 9 && !belongs && spot != Spot::Designated) score -= 0.8;
            if (std::find(resting.begin(), resting.end(), men[i]) != resting.end()) score -= 3;
            if (score > bestScore) {
                bestScore = score;
                best = men[i];
            }
        }
        return best;
    }

    // Speed and patience first, power in the middle, the pitcher last.
    void OrderBats(GameSide& side, bool withDH) {
        const std::size_t bats = withDH ? 9 : 8;
        std::vector<std::pair<std::size_t, Spot>> left;
        for (std::size_t i = 0; i < bats; ++i) left.emplace_back(side.order[i], side.spotOf[i]);
        std::vector<std::pair<std::size_t, Spot>> order(bats);
        const auto take = [&](std::size_t place, auto&& score) {
            const auto best = std::max_element(left.begin(), left.end(), [&](const auto& a, const auto& b) {
                return std::pair(score(At(a.first).bat), b.first) < std::pair(score(At(b.first).bat), a.first);
            });
            order[place] = *best;
            left.erase(best);
        };
        take(0, [](const BatterTalent& b) { return 0.5 * b.single + 0.3 * b.walk + 0.9 * b.speed; });
        take(3, [](const BatterTalent& b) { return b.homer + b.value; });
        take(2, [](const BatterTalent& b) { return b.value; });
        take(1,
             [](const BatterTalent& b) { return 0.5 * b.single + 0.2 * b.walk + 0.5 * b.speed - 0.2 * b.strikeout; });
        take(4, [](const BatterTalent& b) { return b.homer + b.value; });
        for (std::size_t place = 5; place < bats; ++place) take(place, [](const BatterTalent& b) { return b.value; });
        for (std::size_t i = 0; i < bats; ++i) std::tie(side.order[i], side.spotOf[i]) = order[i];
    }

    // A few men of about the same job change clubs within their league.
    void Trade() {
        for (int i = 0; i < kTrades; ++i) {
            const std::size_t a = random_.Below(2 * kLeagueClubs);
            const std::size_t b =
                a / kLeagueClubs * kLeagueClubs + (a + 1 + random_.Below(kLeagueClubs - 1)) % kLeagueClubs;
            const bool pitchers = i % 2 == 0;
            auto& listA = pitchers ? league_.clubs[a].pitchers : league_.clubs[a].batters;
            auto& listB = pitchers ? league_.clubs[b].pitchers : league_.clubs[b].batters;
            const auto place = static_cast<std::size_t>(pitchers ? Between(random_, 2, 9) : Between(random_, 1, 13));
            std::swap(listA[place], listB[place]);
            Join(listA[place], a);
            Join(listB[place], b);
        }
    }

    void Join(std::size_t man, std::size_t club) {
        Player& player = At(man);
        if (player.Now().bat.G > 0) player.stints.emplace_back();
        player.Now().club = club;
    }

    void Standings() {
        const auto better = [&](std::size_t a, std::size_t b) {
            return std::pair(-league_.clubs[a].W, a) < std::pair(-league_.clubs[b].W, b);
        };
        std::array<std::size_t, 2> pennant{};
        for (std::size_t lg = 0; lg < 2; ++lg) {
            std::array<std::size_t, 2> first{};
            for (std::size_t division = 0; division < 2; ++division) {
                std::array<std::size_t, 4> clubs{};
                for (std::size_t i = 0; i < 4; ++i) clubs[i] = lg * kLeagueClubs + division * 4 + i;
                std::sort(clubs.begin(), clubs.end(), better);
                for (std::size_t i = 0; i < 4; ++i) league_.clubs[clubs[i]].rank = static_cast<int>(i) + 1;
                league_.clubs[clubs[0]].wonDivision = true;
                first[division] = clubs[0];
            }
            pennant[lg] = first[random_.Below(2)];
            league_.clubs[pennant[lg]].wonLeague = true;
        }
        league_.clubs[pennant[random_.Below(2)]].wonSeries = true;
        for (Club& club : league_.clubs) club.attendance = 500000 + 14000 * club.W + Between(random_, -250000, 350000);
    }

    Random& random_;
    MadeLeague& league_;
    int day_ = 0;
};

}  // namespace

void PlaySeason(Random& random, MadeLeague& league) {
    Season(random, league).Play();
}

}  // namespace tarvane::sample
