#include "sample/rosters.h"

#include <algorithm>
#include <array>
#include <utility>

#include "sample/chance.h"
#include "sample/names.h"
#include "sample/sampleleague.h"

namespace tarvane::sample {
namespace {

struct ClubName {
    const char *teamID, *city, *nickname, *park;
};
constexpr std::array<ClubName, 16> kClubNames{{{"ASF", "Ashford Falls", "Millwrights", "Millrace Park"},
                                               {"CCR", "Calder City", "Riveters", "Foundry Field"},
                                               {"HBY", "Harlan Bay", "Herons", "Breakwater Park"},
                                               {"NGT", "Northgate", "Lamplighters", "Northgate Grounds"},
                                               {"CDB", "Cedar Bluff", "Lumberjacks", "Sawdust Field"},
                                               {"FTA", "Fort Avery", "Drovers", "Avery Stockyard Park"},
                                               {"LKM", "Lakemont", "Otters", "Lakemont Stadium"},
                                               {"SLC", "San Lucero", "Kestrels", "Mesa Park"},
                                               {"BWT", "Brightwater", "Ferrymen", "Ferry Landing"},
                                               {"EMR", "Eastmere", "Weavers", "Loom Street Grounds"},
                                               {"GRP", "Granite Point", "Quarrymen", "The Quarry"},
                                               {"PMA", "Port Marlow", "Harbormen", "Harbor Park"},
                                               {"IRV", "Ironvale", "Stonecutters", "Ironvale Stadium"},
                                               {"RDC", "Redcliff", "Surveyors", "Redcliff Park"},
                                               {"STB", "Stonebridge", "Foxes", "Bridge Street Park"},
                                               {"WMR", "Westmoor", "Trappers", "Westmoor Field"}}};

constexpr unsigned Bit(Spot spot) {
    return 1U << Index(spot);
}
constexpr unsigned kOutfield = Bit(Spot::LF) | Bit(Spot::CF) | Bit(Spot::RF);
constexpr unsigned kInfield = Bit(Spot::B2) | Bit(Spot::B3) | Bit(Spot::SS);

// Jobs of the men on a club, the firmest first. Lower numbers of bench make weaker bats.
struct Job {
    Spot spot;
    unsigned also;
    double bat;  // shift of everything at the bat: 0 is a regular
};
constexpr std::array<Job, 20> kJobs{{
    {Spot::C, 0, 0},
    {Spot::B1, Bit(Spot::LF), 0},
    {Spot::B2, Bit(Spot::SS), 0},
    {Spot::B3, Bit(Spot::B1), 0},
    {Spot::SS, Bit(Spot::B2), 0},
    {Spot::LF, Bit(Spot::RF), 0},
    {Spot::CF, kOutfield, 0},
    {Spot::RF, Bit(Spot::LF), 0},
    {Spot::Designated, Bit(Spot::B1) | Bit(Spot::LF), 0.02},
    {Spot::C, Bit(Spot::B1), -0.07},
    {Spot::SS, kInfield, -0.08},
    {Spot::LF, kOutfield, -0.05},
    {Spot::B1, Bit(Spot::B3) | Bit(Spot::LF), -0.04},
    {Spot::B2, kInfield, -0.06},
    {Spot::CF, kOutfield, -0.06},
    {Spot::C, Bit(Spot::B1), -0.12},
    {Spot::B3, kInfield, -0.10},
    {Spot::RF, kOutfield, -0.10},
    {Spot::B1, kOutfield, -0.10},
    {Spot::SS, kInfield, -0.13},
}};

// How the men of a position differ from the average regular, as shifts of the logarithms of their rates.
struct PositionShape {
    double hit, power, speed, strikeout;
};
PositionShape ShapeOf(Spot spot) {
    switch (spot) {
        case Spot::C: return {-0.035, 0.0, -0.24, 0.05};
        case Spot::B1: return {0.02, 0.40, -0.16, 0.08};
        case Spot::B2: return {-0.005, -0.45, 0.06, -0.15};
        case Spot::B3: return {-0.005, 0.15, -0.05, 0.0};
        case Spot::SS: return {-0.045, -0.65, 0.08, -0.12};
        case Spot::LF: return {0.03, 0.25, 0.05, 0.08};
        case Spot::CF: return {0.02, -0.05, 0.20, 0.0};
        case Spot::RF: return {0.02, 0.35, 0.0, 0.08};
        default: return {0.02, 0.40, -0.18, 0.08};
    }
}

void DrawBatter(Random& random, Player& player, const Job& job, double clubBat) {
    const PositionShape shape = ShapeOf(job.spot);
    BatterTalent& bat = player.bat;
    const double quality = job.bat + clubBat + 0.035 * Normal(random);
    const double power = shape.power + 2.2 * quality;
    bat.speed = std::clamp(0.5 + shape.speed + 0.18 * Normal(random), 0.02, 0.98);
    bat.single = std::clamp(Factor(random, 0.075, shape.hit + quality + 0.06 * (bat.speed - 0.5)), 0.83, 1.22);
    bat.twoBase = Factor(random, 0.21, shape.hit + quality + 0.08 * shape.power);
    bat.threeBase = Factor(random, 0.27, 1.5 * (bat.speed - 0.5) + quality - 0.06);
    bat.homer = std::min(Factor(random, 0.55, power - 0.20), 2.35);
    bat.walk = Factor(random, 0.36, 1.2 * quality + 0.12 * shape.power - 0.02);
    bat.strikeout = Factor(random, 0.38, shape.strikeout - quality + 0.12 * (bat.homer - 1));
    bat.hitByPitch = Factor(random, 0.45, -0.1);
    bat.grounder = Factor(random, 0.12, -0.08 * (bat.homer - 1));
    const double runner = std::max(0.0, bat.speed - 0.42);
    bat.stealWill = std::min(0.55, 0.034 + 2.2 * runner * runner * Factor(random, 0.60));
    bat.range = Factor(random, 0.09);
    bat.hands = Factor(random, 0.28);
    bat.arm = Factor(random, 0.16);
    bat.value = 0.52 * bat.single + 0.12 * bat.twoBase + 0.16 * bat.homer + 0.20 * bat.walk;
}

// A pitcher at the bat gets far less of everything than a regular.
void DrawPitcherBat(Random& random, Player& player) {
    BatterTalent& bat = player.bat;
    bat.single = Factor(random, 0.22, -0.62);
    bat.twoBase = Factor(random, 0.35, -0.95);
    bat.threeBase = Factor(random, 0.4, -1.4);
    bat.homer = Factor(random, 0.7, -1.9);
    bat.walk = Factor(random, 0.4, -0.75);
    bat.strikeout = Factor(random, 0.2, 0.85);
    bat.hitByPitch = 0.3;
    bat.speed = 0.3;
    bat.stealWill = 0;
    bat.value = 0.35;
    bat.range = Factor(random, 0.12);
    bat.hands = Factor(random, 0.35);
    bat.arm = 1;
}

// rank is his place among the club's men of his role, 0 the best.
void DrawPitcher(Random& random, Player& player, Role role, int rank, double clubPitch) {
    player.role = role;
    player.spot = Spot::P;
    player.canPlay = Bit(Spot::P);
    const double shift = clubPitch + 0.022 * rank - (role == Role::Closer ? 0.07 : role == Role::Starter ? 0.045 : 0.0);
    PitcherTalent& pitch = player.pitch;
    pitch.strikeout = Factor(random, 0.22, -1.1 * shift + (role == Role::Closer ? 0.12 : 0.0));
    pitch.walk = std::min(1.45, Factor(random, 0.22, 1.2 * shift + 0.02));
    pitch.hit = std::min(1.07, Factor(random, 0.030, 0.5 * shift));
    pitch.homer = Factor(random, 0.20, 1.2 * shift);
    pitch.grounder = Factor(random, 0.12);
    pitch.value = 0.45 * pitch.hit + 0.2 * pitch.walk + 0.15 * pitch.homer + 0.2 / pitch.strikeout;
    switch (role) {
        case Role::Starter: pitch.batters = 36 - rank + Between(random, -2, 3); break;
        case Role::Closer: pitch.batters = 10; break;
        case Role::Setup: pitch.batters = 9; break;
        default: pitch.batters = 14; break;
    }
    DrawPitcherBat(random, player);
}

void DrawPerson(Random& random, Player& player) {
    static constexpr std::array kTowns{"Alder Creek",   "Barrow Junction", "Copperfield",    "Dunmore Heights",
                                       "Elk Prairie",   "Fallow Ridge",    "Gilead Springs", "Hobart Mills",
                                       "Juniper Flats", "Kettle River"};
    player.birthYear = kSampleYear - Between(random, 21, 30) - (Happens(random, 0.3) ? Between(random, 0, 9) : 0);
    player.birthMonth = Between(random, 1, 12);
    player.birthDay = Between(random, 1, 28);
    player.debutYear = std::min(kSampleYear, player.birthYear + Between(random, 20, 24));
    player.city = kTowns[random.Below(kTowns.size())];
    player.height = 73 + static_cast<int>(Normal(random) * 1.9);
    player.weight = 185 + (player.height - 73) * 6 + static_cast<int>(Normal(random) * 9);
    const bool pitcher = player.role != Role::Batter;
    const bool rightOnly =
        player.spot == Spot::C || player.spot == Spot::B2 || player.spot == Spot::B3 || player.spot == Spot::SS;
    player.throws = !rightOnly && Happens(random, pitcher ? 0.30 : 0.22) ? 'L' : 'R';
    const double draw = Uniform(random);
    if (player.throws == 'L')
        player.bats = draw < 0.86 ? 'L' : draw < 0.93 ? 'B' : 'R';
    else
        player.bats = draw < 0.68 ? 'R' : draw < (pitcher ? 0.82 : 0.90) ? (draw < 0.76 && pitcher ? 'R' : 'L') : 'B';
    if (pitcher && player.throws == 'R' && player.bats == 'B') player.bats = 'R';
}

void AddPlayer(MadeLeague& league, std::size_t club, Player player, std::vector<std::size_t>& list) {
    player.stints.emplace_back();
    player.stints.back().club = club;
    list.push_back(league.players.size());
    league.players.push_back(std::move(player));
}

void FillClub(Random& random, NameGiver& names, MadeLeague& league, std::size_t index) {
    // Clubs differ: a good one hits and pitches better throughout;
    // and the National MadeLeague's bats are a little better, which makes up for its pitchers'.
    const double clubBat = 0.022 * Normal(random) + (league.clubs[index].american ? -0.004 : 0.036);
    const double clubPitch = 0.030 * Normal(random);
    const auto add = [&](Player& player, std::vector<std::size_t>& list) {
        DrawPerson(random, player);
        names.Name(player);
        AddPlayer(league, index, player, list);
    };
    for (const Job& job : kJobs) {
        if (job.spot == Spot::Designated && !league.clubs[index].DesignatedHitter()) continue;
        Player player;
        player.spot = job.spot;
        player.canPlay = Bit(job.spot) | job.also;
        DrawBatter(random, player, job, clubBat);
        add(player, league.clubs[index].batters);
    }
    // Ten who open the season, then five call-ups.
    static constexpr std::array<std::pair<Role, int>, 15> kStaff{{{Role::Starter, 0},
                                                                  {Role::Starter, 1},
                                                                  {Role::Starter, 2},
                                                                  {Role::Starter, 3},
                                                                  {Role::Starter, 5},
                                                                  {Role::Closer, 0},
                                                                  {Role::Setup, 1},
                                                                  {Role::Setup, 3},
                                                                  {Role::Long, 3},
                                                                  {Role::Long, 5},
                                                                  {Role::Starter, 6},
                                                                  {Role::Long, 6},
                                                                  {Role::Setup, 6},
                                                                  {Role::Starter, 8},
                                                                  {Role::Long, 8}}};
    for (const auto& [role, rank] : kStaff) {
        Player player;
        DrawPitcher(random, player, role, rank, clubPitch);
        add(player, league.clubs[index].pitchers);
    }
}

}  // namespace

std::string SpotName(Spot spot) {
    static constexpr std::array kNames{"P", "C", "1B", "2B", "3B", "SS", "LF", "CF", "RF", "DH", ""};
    return kNames[Index(spot)];
}

MadeLeague MakeLeague(Random& random) {
    MadeLeague league;
    NameGiver names(random);
    for (std::size_t i = 0; i < kClubNames.size(); ++i) {
        Club club;
        club.teamID = kClubNames[i].teamID;
        club.city = kClubNames[i].city;
        club.nickname = kClubNames[i].nickname;
        club.park = kClubNames[i].park;
        club.american = i < 8;
        club.division = i % 8 < 4 ? 'E' : 'W';
        league.clubs.push_back(club);
    }
    for (std::size_t i = 0; i < league.clubs.size(); ++i) FillClub(random, names, league, i);
    return league;
}

}  // namespace tarvane::sample
