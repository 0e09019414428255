#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarvane::sample {

// Fielding positions in the scorer's order; Designated stands for the designated hitter.
enum class Spot : std::uint8_t { P, C, B1, B2, B3, SS, LF, CF, RF, Designated, None };
inline constexpr std::size_t kSpots = 9;
inline constexpr std::array<Spot, kSpots> kFieldSpots{Spot::P,  Spot::C,  Spot::B1, Spot::B2, Spot::B3,
                                                      Spot::SS, Spot::LF, Spot::CF, Spot::RF};
constexpr std::size_t Index(Spot spot) {
    return static_cast<std::size_t>(spot);
}
constexpr bool IsOutfield(Spot spot) {
    return spot == Spot::LF || spot == Spot::CF || spot == Spot::RF;
}
std::string SpotName(Spot spot);

struct MadeBatting {
    int G = 0, AB = 0, R = 0, H = 0, Doubles = 0, Triples = 0, HR = 0, RBI = 0, SB = 0, CS = 0, BB = 0, SO = 0, IBB = 0,
        HBP = 0, SH = 0, SF = 0, GIDP = 0;
};

struct MadePitching {
    int W = 0, L = 0, G = 0, GS = 0, CG = 0, SHO = 0, SV = 0, IPouts = 0, H = 0, ER = 0, HR = 0, BB = 0, SO = 0,
        IBB = 0, WP = 0, HBP = 0, BK = 0, BFP = 0, GF = 0, R = 0, SH = 0, SF = 0, GIDP = 0;
};

struct MadeFielding {
    int G = 0, GS = 0, InnOuts = 0, PO = 0, A = 0, E = 0, DP = 0, PB = 0, SB = 0, CS = 0;
};

// What a player did for one club without a break. A traded man has two.
struct Stint {
    std::size_t club = 0;
    MadeBatting bat;
    MadePitching pitch;
    std::array<MadeFielding, kSpots> field{};
    int outfieldG = 0, outfieldGS = 0;  // games anywhere in the outfield: a man can play two fields in one game
};

// What a batter truly is: multiples of the league's rates, 1 for the average regular.
struct BatterTalent {
    double walk = 1, strikeout = 1, hitByPitch = 1, single = 1, twoBase = 1, threeBase = 1, homer = 1, grounder = 1;
    double speed = 0.5;      // 0 to 1
    double stealWill = 0.1;  // chance of trying when alone on first
    double range = 1, hands = 1, arm = 1;
    double value = 1;  // one figure for choosing line-ups: 1 is an average regular
};

// What a pitcher truly is, the same way; below 1 is better for all but strikeouts.
struct PitcherTalent {
    double walk = 1, strikeout = 1, hit = 1, homer = 1, grounder = 1;
    int batters = 0;   // how many he faces before he tires
    double value = 1;  // below 1 is better
};

enum class Role : std::uint8_t { Batter, Starter, Closer, Setup, Long };

struct Player {
    std::string id, given, surname, city;
    int birthYear = 0, birthMonth = 0, birthDay = 0, debutYear = 0, height = 72, weight = 185;
    char bats = 'R', throws = 'R';
    Role role = Role::Batter;
    Spot spot = Spot::None;  // where he belongs
    unsigned canPlay = 0;    // one bit a spot
    BatterTalent bat;
    PitcherTalent pitch;
    std::vector<Stint> stints;
    int outUntil = 0;     // injured until this day
    int lastStart = -10;  // day of his last start
    int tired = 0;        // outs pitched lately, less three a day

    bool CanPlay(Spot where) const { return (canPlay >> Index(where)) & 1U; }
    Stint& Now() { return stints.back(); }
};

struct Club {
    std::string teamID, city, nickname, park;
    char division = 'E';
    bool american = true;
    // Into MadeLeague::players, the better man and the one with the firmer job first; the tail are call-ups.
    std::vector<std::size_t> batters, pitchers;
    int W = 0, L = 0, homeGames = 0, shutouts = 0, doublePlays = 0;
    int attendance = 0, rank = 0;
    bool wonDivision = false, wonLeague = false, wonSeries = false;

    bool DesignatedHitter() const { return american; }
};

struct MadeLeague {
    std::vector<Club> clubs;  // the first half in the American MadeLeague
    std::vector<Player> players;
};

}  // namespace tarvane::sample
