#pragma once

#include <fmt/format.h>
#include <algorithm>
#include <string>
#include <vector>

#include "engine/game.h"

// Two invented clubs with charts of the spread of a real league, and the game charts to play them on: enough for whole
// games without a database. Everything is a function of its arguments, so that a test that fails fails again.
namespace tarvane::fixture {

struct Weighted {
    std::string text;
    std::int32_t color = kGreenWord;
    int weight = 0;  // of 216
};

// Lays texts into thirty cells so that each has about its weight: the heaviest first, each into the largest cells that
// still fit. What remains takes the filler.
inline ChartCells Pack(std::vector<Weighted> entries, const ChartCell& filler) {
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Weighted& a, const Weighted& b) { return a.weight > b.weight; });
    ChartCells cells;
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < kChartRows; ++i) open.push_back(i);
    std::stable_sort(open.begin(), open.end(),
                     [](std::size_t a, std::size_t b) { return kCellWeight[a] > kCellWeight[b]; });
    for (const Weighted& entry : entries) {
        int left = entry.weight;
        for (std::size_t i = 0; i < open.size() && left > 0;) {
            if (kCellWeight[open[i]] > left) {
                ++i;
                continue;
            }
            left -= kCellWeight[open[i]];
            cells[open[i]] = {entry.text, entry.color};
            open.erase(open.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
    for (const std::size_t i : open) cells[i] = filler;
    return cells;
}

// The same cell everywhere: a chart that always gives the same result.
inline ChartCells Everywhere(const std::string& text, std::int32_t color) {
    ChartCells cells;
    cells.fill({text, color});
    return cells;
}

// A hitter's chart; skill moves his hits (0 is the league).
inline ChartCells BattingChart(int skill) {
    return Pack({{"1", kGreenWord, 6},         {"1*", kGreenWord, 18 + skill},
                 {"1+", kGreenWord, 8},        {"(1)", kGreenWord, 8},
                 {"(1+)", kGreenWord, 4},      {"2", kGreenWord, 5},
                 {"2*", kGreenWord, 3},        {"(2)", kGreenWord, 4},
                 {"3", kGreenWord, 2},         {"HR", kGreenWord, 5 + skill / 2},
                 {"K", kBlueWord, 24 - skill}, {" ", kStoredYellowWord, 16},
                 {"H", kStoredYellowWord, 2},  {"E", kWhiteWord, 3},
                 {"G", kRedWord, 40},          {"G*", kRedWord, 10},
                 {"DP", kRedWord, 14},         {"(F)", kRedWord, 4},
                 {"SF", kRedWord, 6},          {"(SF)", kRedWord, 4}},
                {"F", kRedWord});
}

inline ChartCells PitchingChart(int skill) {
    ChartCells cells = Pack({{" ", kBlueWord, 12 + skill},
                             {"G", kRedWord, 6},
                             {"F", kRedWord, 4},
                             {"(SF)", kRedWord, 2},
                             {" ", kStoredYellowWord, 9 - skill / 2},
                             {"1+", kGreenWord, 4},
                             {"K", kGreenWord, 6},
                             {"(HR)", kGreenWord, 4},
                             {"HR", kGreenWord, 3}},
                            {" ", kGreenWord});
    for (std::size_t i = 0; i < 6; ++i) cells[i] = {"D", kGreenWord};
    cells[28] = {"X", kStoredYellowWord};
    return cells;
}

inline GameChartRow Row(const std::string& key, const std::string& rating, const ChartCells& cells) {
    GameChartRow row;
    row.key = key;
    row.rating = rating;
    row.cell = cells;
    return row;
}

inline std::vector<GameChartRow> DecisionRows() {
    std::vector<GameChartRow> rows;
    for (int rr = 0; rr < 6; ++rr)
        rows.push_back(Row(std::to_string(rr), "",
                           Pack({{" ", kGreenWord, 60 + 19 * rr},
                                 {"*", kGreenWord, 16 + 5 * rr},
                                 {"E", kGreenWord, 4},
                                 {"E", kWhiteWord, 6},
                                 {"*", kRedWord, 22 - 4 * rr}},
                                {" ", kRedWord})));
    return rows;
}

inline std::vector<GameChartRow> StealRows() {
    std::vector<GameChartRow> rows;
    for (const char* base : {"2", "3", "H"})
        for (int rr = 0; rr < 6; ++rr) {
            const int safe = *base == 'H' ? 16 + 12 * rr : 65 + 18 * rr;
            rows.push_back(Row(base, std::to_string(rr),
                               Pack({{" ", kGreenWord, safe},
                                     {"E", kGreenWord, 6},
                                     {"E", kWhiteWord, 4},
                                     {"PK", kRedWord, 12},
                                     {"BK", kWhiteWord, 6}},
                                    {" ", kRedWord})));
        }
    return rows;
}

inline std::vector<GameChartRow> BuntRows() {
    std::vector<GameChartRow> rows;
    for (const char* type : {"S", "Z"})
        for (const char* rating : {"A", "B"}) {
            const bool squeeze = *type == 'Z';
            std::vector<Weighted> cells{{"1", kGreenWord, 14}, {"FC", kWhiteWord, 5}, {"E", kWhiteWord, 5},
                                        {"G", kRedWord, 24},   {"F", kRedWord, 12},   {"2K", kWhiteWord, 28}};
            if (squeeze)
                cells.push_back({" ", kBlueWord, 18});
            else
                cells.push_back({"DP", kRedWord, 6});
            rows.push_back(Row(type, rating, Pack(cells, {"SH", kRedWord})));
        }
    return rows;
}

inline std::vector<GameChartRow> FieldingRows() {
    const auto row = [](const char* key, const std::vector<std::pair<const char*, int>>& shares, const char* filler) {
        std::vector<Weighted> cells;
        for (const auto& [text, weight] : shares) cells.push_back({text, kWhiteWord, weight});
        return Row(key, "", Pack(cells, {filler, kWhiteWord}));
    };
    return {
        row("ground", {{"P", 19}, {"C", 3}, {"1B", 25}, {"2B", 43}, {"3B", 25}, {"IC", 27}, {"IM", 31}}, "SS"),
        row("fly", {{"C", 7}, {"2B", 12}, {"SS", 15}, {"LF", 38}, {"RF", 40}, {"OF", 13}}, "CF"),
        row("D", {{"P", 11}, {"C", 11}, {"1B", 16}, {"2B", 37}, {"3B", 27}, {"LF", 22}, {"CF", 32}, {"RF", 21}}, "SS"),
        row("bunt", {{"C", 26}, {"1B", 42}, {"2B", 8}, {"3B", 50}}, "P"),
        row("single", {{"P", 26}, {"C", 8}, {"1B", 14}, {"2B", 32}, {"3B", 40}, {"IC", 18}, {"IM", 24}}, "SS"),
        row("outfield", {{"LF", 56}, {"RF", 56}, {"OF", 30}}, "CF"),
        row("error", {{"P", 24}, {"C", 26}, {"1B", 17}, {"2B", 24}, {"3B", 50}, {"LF", 11}, {"RF", 12}}, "SS")};
}

// Letters from A, whose errors nearly never stand, to Z, whose always do.
inline std::vector<ErrorRatingRow> ErrorRows() {
    constexpr const char* kStand[]{"5",  "4",   "45", "3",   "35",   "2",   "1",    "15",  "24",   "14",   "145",  "23",
                                   "13", "135", "12", "125", "1345", "124", "1245", "123", "1235", "1234", "12345"};
    std::vector<ErrorRatingRow> rows;
    for (std::size_t i = 0; i < 23; ++i) {
        ErrorRatingRow row;
        row.ErrorRating = std::string(1, "ABCDEFGHJKLMNPRSTUVWXYZ"[i]);
        for (const char* column = kStand[i]; *column != '\0'; ++column)
            row.cell[static_cast<std::size_t>(*column - '1')].color = kWhiteWord;
        rows.push_back(row);
    }
    return rows;
}

inline std::vector<GameChartRow> InjuryRows() {
    return {Row("Result", "",
                Pack({{"H", kWhiteWord, 44}, {"PB", kWhiteWord, 18}, {"BK", kWhiteWord, 12}, {"I", kWhiteWord, 36}},
                     {"WP", kWhiteWord})),
            Row("Position", "",
                Pack({{"C", kWhiteWord, 28},
                      {"1B", kWhiteWord, 16},
                      {"2B", kWhiteWord, 20},
                      {"3B", kWhiteWord, 18},
                      {"SS", kWhiteWord, 22},
                      {"LF", kWhiteWord, 18},
                      {"CF", kWhiteWord, 18},
                      {"RF", kWhiteWord, 16}},
                     {"P", kWhiteWord})),
            Row("Days", "",
                Pack({{"2", kWhiteWord, 12}, {"4", kWhiteWord, 10}, {"15", kWhiteWord, 8}, {"60", kWhiteWord, 3}},
                     {" ", kBlueWord}))};
}

inline GameCharts Charts() {
    GameCharts charts;
    charts.MgrDec = DecisionRows();
    charts.StolenBase = StealRows();
    charts.Bunt = BuntRows();
    charts.ErrorRating = ErrorRows();
    charts.Fielding = FieldingRows();
    charts.YellowXBasic = {
        Row("", "", Pack({{"H", kWhiteWord, 44}, {"PB", kWhiteWord, 20}, {"BK", kWhiteWord, 16}}, {"WP", kWhiteWord}))};
    charts.YellowXInjuries = InjuryRows();
    return charts;
}

inline constexpr std::array<Position, 8> kFieldOrder{Position::C,  Position::B1, Position::B2, Position::B3,
                                                     Position::SS, Position::LF, Position::CF, Position::RF};

// Batters 0 to 7 play C, 1B, 2B, 3B, SS, LF, CF, RF; 8 to 15 are their deputies; 16 and 17 only hit.
inline Batter MakeBatter(Side side, int index) {
    Batter batter;
    batter.playerID = (side == Side::Visitor ? 1000 : 2000) + index;
    batter.LahmanPlayerID = fmt::format("{}bat{:02}", SideLetter(side), index);
    batter.playerName = fmt::format("{} Batter {}", SideLetter(side), index);
    batter.bats = index % 3 == 0 ? kLeftHand : index % 7 == 1 ? kSwitchHitter : kRightHand;
    batter.BuntRating = index % 2 == 0 ? "A" : "B";
    batter.runRating = static_cast<std::uint8_t>(index % 6);
    batter.BBRating = static_cast<std::uint8_t>(index % 4 == 0 ? 40 : 24 + index % 10);
    batter.SORating = static_cast<std::uint8_t>(index % 5 == 0 ? 40 : 28 + index % 8);
    if (index < 16)
        batter.Pos[0] = {kFieldOrder[static_cast<std::size_t>(index % 8)], static_cast<std::int16_t>(2 + index % 7),
                         "ABCDEFGHJKLMNPRSTUVWXYZ"[static_cast<std::size_t>(index % 23)]};
    batter.vsL = BattingChart(index % 5 - 2);
    batter.vsR = BattingChart(index % 4 - 1);
    return batter;
}

// Pitchers 0 to 4 start, 5 to 12 relieve.
inline Pitcher MakePitcher(Side side, int index) {
    Pitcher pitcher;
    pitcher.playerID = (side == Side::Visitor ? 3000 : 4000) + index;
    pitcher.LahmanPlayerID = fmt::format("{}pit{:02}", SideLetter(side), index);
    pitcher.playerName = fmt::format("{} Pitcher {}", SideLetter(side), index);
    pitcher.throws_ = index % 3 == 0 ? kLeftHand : kRightHand;
    pitcher.pitcherType = index < 5 ? 'S' : 'R';
    pitcher.tiredRating = static_cast<std::uint8_t>(index < 5 ? 18 + index : 24);
    pitcher.secondWindRating = static_cast<std::uint8_t>(12 + index);
    pitcher.Pos[0] = {Position::P, 3, 'V'};
    pitcher.pitch = PitchingChart(index % 5 - 2);
    pitcher.Bat = BattingChart(-2);
    return pitcher;
}

// Everything that the rules can turn on is on, but the DH.
inline LeagueRules FullRules() {
    LeagueRules rules;
    rules.SpecialErrorRule = true;
    rules.PitcherStaminaSecondary = true;
    rules.AutoOutsForOF = true;
    return rules;
}

inline GameData MakeGameData(const LeagueRules& rules = FullRules(), bool dh = false) {
    GameData data;
    data.rules = rules;
    data.DHUsed = dh;
    for (const Side side : kBothSides) {
        TeamRoster& roster = data.team[side].roster;
        for (int i = 0; i < 18; ++i) roster.batters.push_back(MakeBatter(side, i));
        for (int i = 0; i < 13; ++i) roster.pitchers.push_back(MakePitcher(side, i));
    }
    data.park.Roll = Pack({{"(2)", kGreenWord, 3}, {"HR", kGreenWord, 2}, {"F", kGreenWord, 1}}, {" ", kGreenWord});
    data.year.Roll = Pack({{"K", kGreenWord, 4}, {"1+", kGreenWord, 2}, {"G", kGreenWord, 1}}, {" ", kGreenWord});
    data.year.EraName = "Test";
    data.charts = Charts();
    CompileGameData(data);
    return data;
}

// Batters 0 to 7 at their positions in slots 1 to 8, the pitcher or (batter 16) the DH ninth.
inline LineupInput StartingLineup(const GameData& data, Side side, int starter = 0) {
    LineupInput lineup;
    lineup.side = side;
    lineup.pitcher = {'P', static_cast<std::int16_t>(starter)};
    for (std::size_t i = 0; i < 8; ++i) {
        lineup.player[i] = {'B', static_cast<std::int16_t>(i)};
        lineup.position[i] = kFieldOrder[i];
    }
    lineup.player[8] = data.DHUsed ? PlayerRef{'B', 16} : lineup.pitcher;
    lineup.position[8] = data.DHUsed ? Position::DH : Position::P;
    return lineup;
}

// A game at its first pitch.
inline GameState FirstPitch(const GameData& data, int visitorStarter = 0, int homeStarter = 1) {
    GameState state;
    StartGame(data, StartingLineup(data, Side::Visitor, visitorStarter), StartingLineup(data, Side::Home, homeStarter),
              state);
    return state;
}

}  // namespace tarvane::fixture
