#include "savegame/savestate.h"

#include <fmt/format.h>

#include <algorithm>

#include "engine/availability.h"
#include "engine/step.h"
#include "savegame/saverecords.h"

namespace tarvane {

namespace {

// The stored list by which the nine stand, as a place from 1; 0 if none is like it.
std::uint8_t ListInUse(const TeamData& team, const TeamState& state) {
    const auto same = [&](const LineupList& list) {
        for (std::size_t i = 0; i < list.slot.size(); ++i) {
            const LineupSlot& slot = state.lineup[i];
            const bool known = list.slot[i].PlayerType == slot.player.type && !slot.player.Nobody();
            const int index = slot.player.type == 'P' ? team.PitcherIndex(list.slot[i].playerID)
                                                      : team.BatterIndex(list.slot[i].playerID);
            if (!known || index != slot.player.index || list.slot[i].position != slot.position) return false;
        }
        return list.LineupType == 'L';
    };
    const auto& lists = team.roster.lists;
    const auto found = std::find_if(lists.begin(), lists.end(), same);
    return found == lists.end() ? std::uint8_t{0} : static_cast<std::uint8_t>(found - lists.begin() + 1);
}

// The list by which the game began takes the place of none.
std::uint8_t ListAtStart(const SavedGame& game, Side side) {
    TeamState start;
    const LineupInput& lineup = game.game.lineup[side];
    for (std::size_t i = 0; i < start.lineup.size(); ++i) {
        start.lineup[i].player = lineup.player[i];
        start.lineup[i].position = lineup.position[i];
    }
    return ListInUse(game.game.data[side], start);
}

SaveHeader::Team TeamHeader(const SavedGame& game, Side side) {
    const TeamData& data = game.game.data[side];
    const Team& row = data.roster.team;
    const BoxLines& box = game.state[side].box;
    const LahmanRecordSet& real = game.game.real[side];
    const bool home = side == Side::Home;
    SaveHeader::Team team;
    team.fullName = row.fullName;
    team.shortName = row.shortName;
    team.teamID = row.teamID;
    team.imagePath = row.ImageFile;
    team.TeamIdx = row.TeamIdx;
    team.backClr = home ? row.HmBackClr : row.RdBackClr;
    team.foreClr = home ? row.HmForeClr : row.RdForeClr;
    team.lineupInUse = ListInUse(data, game.state[side]);
    if (team.lineupInUse == 0) team.lineupInUse = ListAtStart(game, side);
    team.divIdx = row.divIdx;
    team.W = row.W;
    team.L = row.L;
    team.batters = static_cast<int>(data.roster.batters.size());
    team.pitchers = static_cast<int>(data.roster.pitchers.size());
    team.lists = static_cast<int>(data.roster.lists.size());
    team.batterLines = box.BatterLineCount;
    team.fielderLines = box.FielderLineCount;
    team.pitchersUsed = box.PitchersUsed;
    team.resting =
        static_cast<int>(std::count_if(data.roster.pitchers.begin(), data.roster.pitchers.end(),
                                       [&](const Pitcher& p) { return IsResting(p, game.game.data.dayNumber); }));
    team.realBatters = static_cast<int>(real.batters.size());
    team.realPitchers = static_cast<int>(real.pitchers.size());
    return team;
}

// The man of each slot by the active lines; with the DH the pitcher is in none.
void TakeLineup(const SaveFields& f, SavedGame& game, Side side) {
    TeamState& team = game.state[side];
    const BoxLines& box = team.box;
    for (std::size_t i = 0; i < box.BatterLineCount; ++i) {
        const BatterLine& line = box.batter[i];
        MarkUsed(team, line.player);
        if (!line.Active || line.Slot > 9) continue;
        LineupSlot& slot = team.lineup[line.Slot - 1U];
        if (!slot.player.Nobody())
            f.Fail(fmt::format("{} slot {} has two active batter lines", SideWord(side), line.Slot));
        slot.player = line.player;
        slot.position = line.position;
    }
    // Where he stands is in the fielder lines: a man who moves gets a new one.
    for (std::size_t i = 0; i < box.FielderLineCount; ++i) {
        const FielderLine& line = box.fielder[i];
        if (!line.Active || line.Slot > 9) continue;
        LineupSlot& slot = team.lineup[line.Slot - 1U];
        if (slot.player == line.player) slot.position = line.position;
    }
    for (std::size_t i = 0; i < team.lineup.size(); ++i)
        if (team.lineup[i].player.Nobody())
            f.Fail(fmt::format("{} slot {} has no active batter line", SideWord(side), i + 1));
    for (std::size_t i = 0; i < box.PitchersUsed; ++i) MarkUsed(team, box.pitching[i].player);
    team.pitcher = box.pitching[box.PitchersUsed - 1U].player;
}

void CheckBases(const SaveFields& f, const GameState& state) {
    if (state.Outs > 2) f.Fail("the head of the game has three outs");
    for (const Side side : kBothSides)
        for (std::size_t base = 1; base <= 3; ++base) {
            const Runner& runner = state[side].runner[base];
            if (!runner.On()) continue;
            if (side != state.BattingSide) f.Fail("the side in the field has men on base");
            for (std::size_t other = base + 1; other <= 3; ++other)
                if (state[side].runner[other].slot == runner.slot) f.Fail("one man is on two bases");
        }
}

}  // namespace

SaveHeader MakeSaveHeader(const SavedGame& game) {
    SaveHeader header;
    const GameData& data = game.game.data;
    for (const Side side : kBothSides) {
        header.team[side] = TeamHeader(game, side);
        header.realAB += game.game.real[side].AB;
        header.realIPOuts += game.game.real[side].IPOuts;
    }
    header.DHUsed = data.DHUsed;
    header.ParkID = data.park.parkID;
    header.gameDate = SavedDate(data.gameDate);
    header.dayNumber = data.dayNumber;
    header.GameID = game.game.scheduled ? game.game.scheduled->GameID : 0;
    header.EraId = data.year.EraID;
    return header;
}

SaveHead HeadOfSave(const SaveHeader& header) {
    SaveHead head;
    for (const Side side : kBothSides) {
        head.teamID[side] = header.team[side].teamID;
        head.fullName[side] = header.team[side].fullName;
        head.teamIdx[side] = header.team[side].TeamIdx;
    }
    head.scheduled = header.GameID != 0;
    head.GameID = header.GameID;
    head.gameDate = DateOfSaved(header.gameDate);
    head.parkID = header.ParkID;
    head.eraID = header.EraId;
    return head;
}

void TakeHeader(const SaveHeader& header, SavedGame& game) {
    GameData& data = game.game.data;
    for (const Side side : kBothSides) {
        const SaveHeader::Team& team = header.team[side];
        Team& row = data.team[side].roster.team;
        row.fullName = team.fullName;
        row.shortName = team.shortName;
        row.teamID = team.teamID;
        row.ImageFile = team.imagePath;
        row.TeamIdx = team.TeamIdx;
        (side == Side::Home ? row.HmBackClr : row.RdBackClr) = team.backClr;
        (side == Side::Home ? row.HmForeClr : row.RdForeClr) = team.foreClr;
        row.divIdx = team.divIdx;
        row.W = team.W;
        row.L = team.L;
    }
    data.DHUsed = header.DHUsed;
    data.park.parkID = header.ParkID;
    data.gameDate = DateOfSaved(header.gameDate);
    data.dayNumber = header.dayNumber;
    const SaveHead head = HeadOfSave(header);
    game.game.scheduled.reset();
    if (head.scheduled) game.game.scheduled = ScheduledGame{head.GameID, head.gameDate, head.teamIdx, {{0, 0}}};
}

void CountLines(const SaveHeader& header, GameState& state) {
    for (const Side side : kBothSides) {
        BoxLines& box = state[side].box;
        box.BatterLineCount = static_cast<std::uint8_t>(header.team[side].batterLines);
        box.FielderLineCount = static_cast<std::uint8_t>(header.team[side].fielderLines);
        box.PitchersUsed = static_cast<std::uint8_t>(header.team[side].pitchersUsed);
    }
}

void StandAtPitcher(const SaveFields& f, SavedGame& game) {
    GameState& state = game.state;
    const GameData& data = game.game.data;
    CheckBases(f, state);
    int faced = 0;
    for (const Side side : kBothSides) {
        TakeLineup(f, game, side);
        RebuildLineupDetails(data, state, side);
        TeamState& team = state[side];
        const auto pitcher = static_cast<std::size_t>(team.pitcher.index);
        team.PitcherThrows = data[side].roster.pitchers[pitcher].throws_;
        team.PitcherHasOutCells = data[side].pitcherCharts[pitcher].HasOutCells;
        for (std::size_t i = 0; i < team.box.PitchersUsed; ++i) faced += team.box.pitching[i].BF;
    }
    state.PlayStarted = faced > 0;
    state.sheet = SheetCode::P;
    state.awaited = {};
    Step step{data, state};
    ValidatePositions(step, state.FieldingSide());  // a change that was due still is
}

void CheckMen(const SaveFields& f, const SavedGame& game) {
    const auto known = [&](Side side, PlayerRef man) {
        if (!man.Nobody() && !KnownPlayer(game.game.data[side], man))
            f.Fail(fmt::format("a {} player stands in the line-up who isn't on the team", SideWord(side)));
    };
    for (const Side side : kBothSides) {
        known(side, game.state[side].pitcher);
        for (const LineupSlot& slot : game.state[side].lineup) known(side, slot.player);
    }
    for (std::size_t i = 0; i < game.state.injuryCount; ++i)
        known(game.state.injury[i].side, game.state.injury[i].player);
}

}  // namespace tarvane
