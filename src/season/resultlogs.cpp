#include "season/resultlogs.h"

namespace tarvane {

namespace {

// The fielding of a man's first position in the game; a blank for one who never stood anywhere.
void FillFielding(LogHead& head, const BoxLines& box, PlayerRef man) {
    for (std::size_t i = 0; i < box.FielderLineCount; ++i) {
        if (!(box.fielder[i].player == man)) continue;
        head.Position = PositionText(box.fielder[i].position);
        AddFielding(head.fielding, box.fielder[i]);
        return;
    }
}

LogHead HeadOf(const TeamPosting& post, std::int32_t playerID, const Injury& injury) {
    LogHead head;
    head.GameID = post.game.GameID;
    head.PlayerID = playerID;
    head.GameDate = post.data.gameDate;
    head.TeamID = post.Roster().team.teamID;
    head.TourneyGame = post.data.rules.TourneyMode;
    head.injury = injury;
    return head;
}

// The row that a man who changed teams keeps for all of them together grows by the game too.
void AddToMoved(PostingStatements& statements, const TeamPosting& post, std::int32_t id, const BatterLogRow& row,
                bool firstLine) {
    if (id == 0 || post.data.rules.TourneyMode) return;
    auto man = statements.ReadBatter(id);
    if (!man) return;
    Adder counts;
    PlayerBattingColumns(row.total, counts);
    SplitColumns(row.vsLeft, "", false, counts);
    SplitColumns(row.vsRight, "", false, counts);
    Adder::Into add = counts.To();
    PlayerBattingColumns(man->total, add);
    SplitColumns(man->vsLeft, "", false, add);
    SplitColumns(man->vsRight, "", false, add);
    if (firstLine) ++man->G;
    RenewRates(*man);
    statements.WriteMoved(*man);
    post.report.movedMen = true;
}

void AddToMoved(PostingStatements& statements, const TeamPosting& post, std::int32_t id, const PitcherLogRow& row) {
    if (id == 0 || post.data.rules.TourneyMode) return;
    auto man = statements.ReadPitcher(id);
    if (!man) return;
    Adder counts;
    PlayerPitchingColumns(row.pitching, counts);
    PlayerBattingColumns(row.batting, counts);
    Adder::Into add = counts.To();
    PlayerPitchingColumns(man->total, add);
    PlayerBattingColumns(man->batting, add);
    man->PitcherAutoOuts = static_cast<std::int16_t>(man->PitcherAutoOuts + row.PitcherAutoOuts);
    RenewRates(*man);
    statements.WriteMoved(*man);
    post.report.movedMen = true;
}

void LogPitching(PostingStatements& statements, const TeamPosting& post, const std::vector<std::uint8_t>& restBefore) {
    const BoxLines& box = post.Box();
    for (std::size_t i = 0; i < box.PitchersUsed; ++i) {
        const PitchingLine& line = box.pitching[i];
        if (line.player.Nobody()) continue;
        const auto index = static_cast<std::size_t>(line.player.index);
        const Pitcher& pitcher = post.Roster().pitchers[index];
        PitcherLogRow row{HeadOf(post, pitcher.playerID, pitcher.injury), {}, line.AutoOuts, 0, 0, {}};
        FillFielding(row.head, box, line.player);
        row.head.Position = PositionText(Position::P);
        AddPitching(row.pitching, line, i, box.PitchersUsed);
        if (pitcher.PitcherRestDays > restBefore[index]) {
            row.PitcherRestDays = pitcher.PitcherRestDays;
            row.PitchedOnDay = pitcher.PitchedOnDay;
        }
        statements.AddLog(row);
        AddToMoved(statements, post, pitcher.CombinedPlayerID, row);
    }
}

// A pitcher's turns at bat stand in a row of their own, which counts no game.
void LogPitchersAtBat(PostingStatements& statements, const TeamPosting& post) {
    const BoxLines& box = post.Box();
    for (std::size_t i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[i];
        if (line.player.Nobody() || line.player.type != 'P') continue;
        const Pitcher& pitcher = post.Roster().pitchers[static_cast<std::size_t>(line.player.index)];
        PitcherLogRow row{HeadOf(post, pitcher.playerID, pitcher.injury), {}, 0, 0, 0, {}};
        row.head.Position = PositionText(Position::P);
        AddBatting(row.batting, line);
        statements.AddLog(row);
        AddToMoved(statements, post, pitcher.CombinedPlayerID, row);
    }
}

}  // namespace

void LogBatters(PostingStatements& statements, const TeamPosting& post) {
    const BoxLines& box = post.Box();
    for (std::size_t i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[i];
        if (line.player.Nobody() || line.player.type != 'B') continue;
        const Batter& batter = post.Roster().batters[static_cast<std::size_t>(line.player.index)];
        BatterLogRow row{HeadOf(post, batter.playerID, batter.injury), {}, {}, {}};
        // A man with several lines has several rows; what he did in the field stands in the first.
        const bool first = FirstBatterLine(box, i);
        if (first) FillFielding(row.head, box, line.player);
        AddBatting(row.total, line);
        AddSplit(row.vsLeft, line.vsLeft);
        AddSplit(row.vsRight, line.vsRight);
        statements.AddLog(row);
        AddToMoved(statements, post, batter.CombinedPlayerID, row, first);
    }
}

void LogPitchers(PostingStatements& statements, const TeamPosting& post, const std::vector<std::uint8_t>& restBefore) {
    LogPitching(statements, post, restBefore);
    LogPitchersAtBat(statements, post);
}

}  // namespace tarvane
