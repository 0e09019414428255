#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarvane {

// Rows as the statistics database gives them, before any of them is chosen, filtered or completed. Columns keep their
// public names; a name that can't be one in C++ is spelled out.

// A count of the source: empty where it was not recorded. 0 to 32767.
using Count = std::optional<int>;

struct TeamLine {
    int yearID = 0;
    std::string lgID, teamID, franchID, divID, name;
    int W = 0, L = 0;
    friend bool operator==(const TeamLine&, const TeamLine&) = default;
};

// Who, when, for whom, and which of his spells that year: what keys the lines below.
struct SpellKey {
    std::string playerID, teamID, lgID;
    int yearID = 0, stint = 0;
    friend bool operator==(const SpellKey&, const SpellKey&) = default;
};

struct LahmanBattingLine : SpellKey {
    Count G, AB, R, H, Doubles, Triples, HR, RBI, SB, CS, BB, SO, IBB, HBP, SH, SF, GIDP;
    friend bool operator==(const LahmanBattingLine&, const LahmanBattingLine&) = default;
};

struct LahmanPitchingLine : SpellKey {
    Count W, L, G, GS, CG, SHO, SV, IPouts, H, ER, HR, BB, SO, IBB, WP, HBP, BK, BFP, GF, R;
    std::optional<double> BAOpp, ERA;
    friend bool operator==(const LahmanPitchingLine&, const LahmanPitchingLine&) = default;
};

struct LahmanFieldingLine : SpellKey {
    std::string POS;
    Count G, PO, A, E, DP, PB;
    friend bool operator==(const LahmanFieldingLine&, const LahmanFieldingLine&) = default;
};

// Games in left, center and right field; the source names no club.
struct OutfieldLine {
    std::string playerID;
    int yearID = 0, stint = 0;
    Count Glf, Gcf, Grf;
    friend bool operator==(const OutfieldLine&, const OutfieldLine&) = default;
};

struct OutfieldSplitLine : SpellKey {
    std::string POS;
    Count G;
    friend bool operator==(const OutfieldSplitLine&, const OutfieldSplitLine&) = default;
};

struct PersonLine {
    std::string playerID, nameFirst, nameLast, bats, throws_;  // column "throws"
    friend bool operator==(const PersonLine&, const PersonLine&) = default;
};

// The rows of some years, each table in its order: by year, club, player and spell; fielding by games downwards within
// the spell, then by position. It is the same whatever the order of the source was.
struct LahmanTables {
    std::vector<LahmanBattingLine> Batting;
    std::vector<LahmanPitchingLine> Pitching;
    std::vector<LahmanFieldingLine> Fielding;
    std::vector<OutfieldLine> FieldingOF;
    std::vector<OutfieldSplitLine> FieldingOFSplit;
    std::vector<PersonLine> Master;  // those who batted or pitched in these years, by playerID
};

}  // namespace tarvane
