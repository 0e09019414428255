#include "import/teamcolors.h"

#include <array>

namespace tarvane {

namespace {

constexpr std::int32_t Rgb(int red, int green, int blue) {
    return red + green * 256 + blue * 65536;
}

constexpr std::int32_t kWhite = Rgb(255, 255, 255);
constexpr std::int32_t kGray = Rgb(192, 192, 192);
constexpr std::int32_t kCream = Rgb(255, 253, 240);

struct FranchiseColors {
    std::string_view franchID;
    TeamColors colors;
};

// White at home and gray on the road with letters of the club's main colour, but where the club is known for another
// cloth.
constexpr FranchiseColors Classic(std::string_view franchID, std::int32_t letters, std::int32_t roadLetters) {
    return {franchID, {letters, kWhite, roadLetters, kGray}};
}
constexpr FranchiseColors Classic(std::string_view franchID, std::int32_t letters) {
    return Classic(franchID, letters, letters);
}

constexpr std::array kFranchises{
    Classic("ANA", Rgb(186, 0, 33)),
    Classic("BAL", Rgb(223, 70, 1), Rgb(0, 0, 0)),
    Classic("BOS", Rgb(217, 0, 0)),
    Classic("CHW", Rgb(0, 0, 0)),
    Classic("CLE", Rgb(12, 35, 64), Rgb(200, 16, 46)),
    Classic("DET", Rgb(12, 35, 64), Rgb(210, 80, 0)),
    FranchiseColors{"KCR", {Rgb(0, 70, 135), kWhite, kWhite, Rgb(108, 172, 228)}},
    Classic("MIN", Rgb(0, 43, 92), Rgb(190, 15, 45)),
    Classic("NYY", Rgb(12, 35, 64)),
    FranchiseColors{"OAK", {Rgb(0, 56, 49), kWhite, Rgb(0, 56, 49), Rgb(239, 178, 30)}},
    Classic("SEA", Rgb(12, 44, 86), Rgb(0, 92, 92)),
    Classic("TBA", Rgb(9, 44, 92)),
    Classic("TBD", Rgb(9, 44, 92)),
    Classic("TEX", Rgb(0, 50, 120), Rgb(192, 17, 31)),
    Classic("TOR", Rgb(19, 74, 142)),
    FranchiseColors{"ARI", {Rgb(167, 25, 48), kWhite, Rgb(167, 25, 48), Rgb(227, 212, 173)}},
    Classic("ATL", Rgb(19, 39, 79), Rgb(206, 17, 65)),
    Classic("CHC", Rgb(14, 51, 134)),
    Classic("CIN", Rgb(198, 1, 31)),
    FranchiseColors{"COL", {Rgb(51, 51, 102), kWhite, kWhite, Rgb(51, 51, 102)}},
    Classic("FLA", Rgb(0, 130, 140), Rgb(0, 0, 0)),
    Classic("HOU", Rgb(0, 45, 98), Rgb(170, 60, 0)),
    Classic("LAD", Rgb(0, 90, 156)),
    Classic("MIL", Rgb(18, 40, 75)),
    Classic("WSN", Rgb(171, 0, 3), Rgb(20, 34, 90)),
    FranchiseColors{"MON", {Rgb(0, 48, 135), kWhite, kWhite, Rgb(111, 163, 216)}},
    Classic("NYM", Rgb(0, 45, 114), Rgb(252, 89, 16)),
    Classic("PHI", Rgb(232, 24, 40)),
    FranchiseColors{"PIT", {Rgb(39, 37, 31), kWhite, Rgb(253, 184, 39), Rgb(39, 37, 31)}},
    FranchiseColors{"SDP", {Rgb(47, 36, 29), kWhite, Rgb(47, 36, 29), Rgb(255, 196, 37)}},
    FranchiseColors{"SFG", {Rgb(39, 37, 31), kCream, Rgb(39, 37, 31), kGray}},
    Classic("STL", Rgb(196, 30, 58)),
};

}  // namespace

TeamColors ColorsOf(std::string_view franchID) {
    for (const FranchiseColors& franchise : kFranchises)
        if (franchise.franchID == franchID) return franchise.colors;
    return kPlainColors;
}

}  // namespace tarvane
