#pragma once

#include <array>
#include <string>
#include <vector>

#include "ui/gamesession.h"

namespace tarvane {

// Everything that the game screen shows, worked out from the game without a widget. The screen only copies it into its
// controls.

struct PlayControls {
    std::string cmdPlay;  // caption of the play command
    std::string chkPlay;  // the same with its ALT key
    std::string banner;
    bool play = false, manualRoll = false, rowClick = false;
    bool intentionalWalk = false, bunt = false, steal = false, lineup = false, previous = false, quickPlay = false;
};
PlayControls MakePlayControls(const GameSession& session);

// A human may change the line-up of a side: his own, or that of a computer manager who shows what he does.
bool MayChangeLineup(const GameSession& session, Side side);

// Caption of chkPlay for one of cmdPlay: the R of Result takes the ALT key.
std::string WithAltKey(const std::string& caption);

inline constexpr int kInningsShown = 10;
struct ScoreBoardView {
    std::array<std::string, kInningsShown> inning;
    PerSide<std::string> name;
    PerSide<std::array<std::string, kInningsShown>> runs;
    PerSide<std::array<int, 3>> totals{};  // R, H, E
    Side batting = Side::Visitor;
    int current = 0;  // the column of the inning being played
    std::string outs, innings, autoOuts, defAdj, ballPark;
};
ScoreBoardView MakeScoreBoard(const GameData& data, const GameState& state);

// A label of the field: empty text hides it, framed marks the man whose chart is up.
struct FieldLabel {
    std::string text;
    bool framed = false;
};
struct FieldLabels {
    std::array<FieldLabel, 9> fielder;  // by scorer's number minus 1
    FieldLabel leftBatter, rightBatter;
    std::array<FieldLabel, 3> runner;
};
FieldLabels MakeFieldLabels(const GameData& data, const GameState& state);

// A panel beside the chart: the batter of the side at bat, the pitcher of the side in the field. Each row is a name,
// the replay season so far, this game, and the real season where it is known.
struct PlayerPanel {
    std::string team, name;
    bool pitching = false;
    bool hasReal = false;
    std::vector<std::array<std::string, 4>> rows;
    std::string picture = {};  // file of the man's photograph; empty if the user has none
};
PlayerPanel MakePlayerPanel(const PreparedGame& game, const GameState& state, Side side);

// One line of the batting order: mark and slot, name, position, defence, run and bunt rating.
using LineupLine = std::array<std::string, 6>;
std::vector<LineupLine> MakeLineup(const GameData& data, const GameState& state, Side side);

}  // namespace tarvane
