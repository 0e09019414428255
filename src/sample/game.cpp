#include "sample/game.h"

#include <algorithm>
#include <utility>

#include "sample/chance.h"

namespace tarvane::sample {
namespace {

constexpr unsigned kInGame = 1U << Index(Spot::None);

}  // namespace

Game::Game(Random& random, MadeLeague& league, GameSide visitor, GameSide home)
    : random_(random),
      league_(league),
      sides_{std::move(visitor), std::move(home)},
      appeared_(league.players.size(), 0) {}

void Game::Play() {
    for (GameSide& side : sides_) Start(side);
    for (inning_ = 1;; ++inning_) {
        batting_ = 0;
        HalfInning();
        batting_ = 1;
        if (inning_ >= 9 && Lead(1) > 0) break;
        HalfInning();
        if (inning_ >= 9 && Lead(0) != 0) break;
    }
    Finish();
}

void Game::Start(GameSide& side) {
    for (const Spot spot : kFieldSpots) {
        const std::size_t man = side.fielder[Index(spot)];
        Stint& stint = At(man).Now();
        ++stint.field[Index(spot)].GS;
        if (IsOutfield(spot)) ++stint.outfieldGS;
        appeared_[man] |= kInGame | (1U << Index(spot));
    }
    for (const std::size_t man : side.order) appeared_[man] |= kInGame;
    Outing& start = side.outings.front();
    const Player& starter = At(start.man);
    start.limit = starter.pitch.batters + Between(random_, -5, 5);
    ++At(start.man).Now().pitch.GS;
}

void Game::HalfInning() {
    outs_ = 0;
    lostOuts_ = 0;
    bases_ = {};
    TakeField();
    while (outs_ < 3 && !WalkedOff()) {
        TendMound();
        PinchHit();
        TurnAtBat();
    }
}

// Places those who hit for another, and brings a pitcher for one who was hit for.
void Game::TakeField() {
    GameSide& side = Fielding();
    for (std::size_t slot = 0; slot < 9; ++slot) {
        if (!side.pinch[slot]) continue;
        side.pinch[slot] = false;
        const Spot spot = side.spotOf[slot];
        if (spot == Spot::Designated) continue;
        if (spot == Spot::P) {
            std::size_t reliever = 0;
            if (ChooseReliever(reliever)) {
                BringIn(reliever);
                continue;
            }
        }
        if (!At(side.order[slot]).CanPlay(spot)) {
            const auto sub = std::find_if(side.bench.begin(), side.bench.end(),
                                          [&](std::size_t man) { return At(man).CanPlay(spot); });
            if (sub != side.bench.end()) {
                side.order[slot] = *sub;
                side.bench.erase(sub);
            }
        }
        const std::size_t man = side.order[slot];
        side.fielder[Index(spot)] = man;
        appeared_[man] |= kInGame | (1U << Index(spot));
    }
    if (inning_ >= 7) RestRegulars();
}

// Late in a game a man on the bench takes somebody's glove, more often when the game is decided.
void Game::RestRegulars() {
    GameSide& side = Fielding();
    const int lead = Lead(1 - batting_);
    const std::size_t slot = random_.Below(9);
    const Spot spot = side.spotOf[slot];
    if (!Happens(random_, lead >= 5 || lead <= -5 ? 0.5 : lead > 0 ? 0.2 : 0.05)) return;
    if (spot == Spot::P || spot == Spot::Designated) return;
    const auto sub =
        std::find_if(side.bench.begin(), side.bench.end(), [&](std::size_t man) { return At(man).CanPlay(spot); });
    if (sub == side.bench.end() || (At(*sub).spot == Spot::C && spot != Spot::C)) return;
    side.order[slot] = *sub;
    side.fielder[Index(spot)] = *sub;
    appeared_[*sub] |= kInGame | (1U << Index(spot));
    side.bench.erase(sub);
}

void Game::TendMound() {
    GameSide& side = Fielding();
    const Outing& now = OnMound();
    const bool starter = side.outings.size() == 1;
    const int lead = Lead(1 - batting_);
    const bool freshInning = outs_ == 0 && !AnyoneOn();
    bool remove = now.batters >= now.limit;
    if (starter) {
        // A man who allows little is left in to finish; one who is hit hard goes early.
        const int extra = now.R <= 1 ? 7 : now.R <= 3 && inning_ >= 8 ? 3 : 0;
        remove = now.batters >= now.limit + extra;
        if (now.R >= 5 && now.batters >= 9) remove = remove || Happens(random_, now.R >= 7 ? 0.8 : 0.3);
        if (inning_ >= 9 && lead >= 1 && lead <= 3 && freshInning && now.R >= 2)
            remove = remove || Happens(random_, 0.5);
    } else {
        if (now.R >= 3) remove = remove || Happens(random_, 0.5);
        const bool saveDue = inning_ >= 8 && lead >= 1 && lead <= 3 && freshInning;
        if (saveDue && Pitcher().role != Role::Closer) remove = remove || Happens(random_, 0.6);
    }
    if (!remove || (!freshInning && now.batters < 2)) return;
    std::size_t reliever = 0;
    if (ChooseReliever(reliever)) BringIn(reliever);
}

// The man for the moment: the closer and his helpers when the game is close and late, the others when it isn't.
bool Game::ChooseReliever(std::size_t& choice) {
    const GameSide& side = Fielding();
    const int lead = Lead(1 - batting_);
    const bool late = inning_ >= 7;
    const auto rank = [&](const Player& man) {
        if (man.role == Role::Starter) return 6;
        if (late && lead >= 1 && lead <= 3 && inning_ >= 8)
            return man.role == Role::Closer ? 0 : man.role == Role::Setup ? 1 : 3;
        if (late && lead >= -2 && lead <= 3) return man.role == Role::Setup ? 0 : man.role == Role::Closer ? 1 : 2;
        return man.role == Role::Long ? 0 : man.role == Role::Setup ? 1 : 4;
    };
    int best = 1000;
    for (const std::size_t man : side.bullpen) {
        const Player& player = At(man);
        const int score = rank(player) * 10 + player.tired * 2;
        if (player.tired <= 11 && score < best) {
            best = score;
            choice = man;
        }
    }
    if (best < 1000) return true;
    if (side.bullpen.empty()) return false;
    choice = *std::min_element(side.bullpen.begin(), side.bullpen.end(), [&](std::size_t a, std::size_t b) {
        return std::pair(At(a).tired, a) < std::pair(At(b).tired, b);
    });
    return true;
}

void Game::BringIn(std::size_t reliever) {
    GameSide& side = Fielding();
    side.bullpen.erase(std::find(side.bullpen.begin(), side.bullpen.end(), reliever));
    for (std::size_t slot = 0; slot < 9; ++slot) {
        if (side.spotOf[slot] != Spot::P) continue;
        side.order[slot] = reliever;
        side.pinch[slot] = false;
    }
    side.fielder[Index(Spot::P)] = reliever;
    appeared_[reliever] |= kInGame | (1U << Index(Spot::P));
    Outing outing;
    outing.man = reliever;
    outing.limit = At(reliever).pitch.batters + Between(random_, -3, 3);
    outing.leadAtEntry = Lead(1 - batting_);
    side.outings.push_back(outing);
}

bool Game::WantsPinchHitter() const {
    const GameSide& side = Batting();
    const auto slot = static_cast<std::size_t>(side.next);
    const int lead = Lead(batting_);
    const Outing& mound = side.outings.back();
    if (side.pinch[slot] || side.bullpen.empty()) return false;
    if (side.spotOf[slot] == Spot::P) {
        const bool spent = mound.batters >= mound.limit - 3;
        return (inning_ >= 7 && lead < 0) || (inning_ >= 5 && lead <= -3) || (inning_ >= 6 && spent && lead <= 3) ||
               (inning_ >= 9 && lead == 0);
    }
    return inning_ >= 8 && lead < 0 && lead >= -5 && At(side.order[slot]).bat.value < 0.93;
}

void Game::PinchHit() {
    const int slot = Batting().next;
    const bool forPitcher = Batting().spotOf[static_cast<std::size_t>(slot)] == Spot::P;
    if (WantsPinchHitter() && Happens(random_, forPitcher ? 0.92 : 0.4)) SendPinchHitter(slot);
}

// The best bat left, but never the last catcher.
bool Game::SendPinchHitter(int slot) {
    GameSide& side = Batting();
    const auto place = static_cast<std::size_t>(slot);
    std::size_t best = side.bench.size();
    for (std::size_t i = 0; i < side.bench.size(); ++i) {
        const Player& man = At(side.bench[i]);
        if (man.spot == Spot::C) continue;
        if (best == side.bench.size() || man.bat.value > At(side.bench[best]).bat.value) best = i;
    }
    if (best == side.bench.size()) return false;
    if (At(side.bench[best]).bat.value <= At(side.order[place]).bat.value) return false;
    side.order[place] = side.bench[best];
    side.pinch[place] = true;
    appeared_[side.bench[best]] |= kInGame;
    side.bench.erase(side.bench.begin() + static_cast<std::ptrdiff_t>(best));
    return true;
}

// Who won: the man of record when his side went ahead for good; a starter needs five innings, else it goes to the one
// who got the most outs after him.
std::size_t Game::WinningOuting() const {
    const std::vector<Outing>& outings = sides_[record_.side].outings;
    if (record_.winner != 0 || outings.front().outs >= 15 || outings.size() == 1) return record_.winner;
    std::size_t best = 1;
    for (std::size_t i = 2; i < outings.size(); ++i)
        if (outings[i].outs > outings[best].outs) best = i;
    return best;
}

void Game::BookPitching(std::size_t sideIndex) {
    GameSide& side = sides_[sideIndex];
    const bool won = sideIndex == record_.side;
    const std::size_t winner = WinningOuting();
    for (std::size_t i = 0; i < side.outings.size(); ++i) {
        const Outing& outing = side.outings[i];
        MadePitching& line = At(outing.man).Now().pitch;
        ++line.G;
        line.IPouts += outing.outs;
        line.BFP += outing.batters;
        if (won && i == winner) ++line.W;
        if (!won && i == record_.loser) ++line.L;
        At(outing.man).tired += outing.outs + 2;
    }
    const Outing& last = side.outings.back();
    MadePitching& line = At(last.man).Now().pitch;
    if (side.outings.size() == 1) {
        ++line.CG;
        if (sides_[1 - sideIndex].runs == 0) ++line.SHO;
        return;
    }
    ++line.GF;
    const bool saving = (last.leadAtEntry >= 1 && last.leadAtEntry <= 3 && last.outs >= 3) || last.outs >= 9 ||
                        (last.leadAtEntry >= 1 && last.leadAtEntry <= 2 && last.outs >= 1);
    if (won && winner != side.outings.size() - 1 && saving) ++line.SV;
}

void Game::Finish() {
    for (std::size_t s = 0; s < 2; ++s) {
        BookPitching(s);
        Club& club = league_.clubs[sides_[s].club];
        ++(s == record_.side ? club.W : club.L);
        if (sides_[1 - s].runs == 0) ++club.shutouts;
        if (s == 1) ++club.homeGames;
    }
    for (std::size_t man = 0; man < appeared_.size(); ++man) {
        if (appeared_[man] == 0) continue;
        Stint& stint = At(man).Now();
        ++stint.bat.G;
        bool outfield = false;
        for (const Spot spot : kFieldSpots) {
            if (!((appeared_[man] >> Index(spot)) & 1U)) continue;
            ++stint.field[Index(spot)].G;
            outfield = outfield || IsOutfield(spot);
        }
        if (outfield) ++stint.outfieldG;
    }
}

}  // namespace tarvane::sample
