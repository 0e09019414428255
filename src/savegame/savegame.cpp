#include "savegame/savegame.h"

#include <fmt/format.h>

#include <algorithm>

#include "engine/availability.h"
#include "savegame/saveblock.h"
#include "savegame/saverecords.h"
#include "savegame/savestate.h"
#include "savegame/sheetgrids.h"
#include "savegame/statefields.h"

namespace tarvane {

namespace {

// What goes over a file besides the game itself.
struct SaveWork {
    SavedGame& game;
    SaveHeader header;
    SheetGrids grids;
    PerSide<std::vector<ScoreSheetRow>> sheetMen;

    TeamData& Team(Side side) { return game.game.data.team[side]; }
    SaveHeader::Team& Counts(Side side) { return header.team[side]; }
};

void Managers(SaveFields& f, SaveWork& work) {
    f.Begin("managers");
    for (const Side side : kBothSides) SaveControl(f, work.game.state.computer[side]);
    f.End();
}

// Of a man whom the season still has: what the file doesn't hold of him.
void Complete(Batter& man, const Batter& known) {
    man.CombinedPlayerID = known.CombinedPlayerID;
    man.lgIdx = known.lgIdx;
    man.positionsShown = known.positionsShown;
    man.vsLPowerRating = known.vsLPowerRating;
    man.vsRPowerRating = known.vsRPowerRating;
    man.SBRating = known.SBRating;
    man.total.IBB = known.total.IBB;
    man.imagePath = known.imagePath;
}
void Complete(Pitcher& man, const Pitcher& known) {
    man.CombinedPlayerID = known.CombinedPlayerID;
    man.lgIdx = known.lgIdx;
    man.positionsShown = known.positionsShown;
    man.PowerRating = known.PowerRating;
    man.SBRating = known.SBRating;
    man.PitchLessRest = known.PitchLessRest;
    man.PitchLessRest2 = known.PitchLessRest2;
    man.IPOutsToday = known.IPOutsToday;
    man.imagePath = known.imagePath;
}

template <class Man, class Record>
void Players(SaveFields& f, std::vector<Man>& men, int count, const std::string& who, Record record) {
    std::vector<Man> known;
    if (f.Reading()) known = std::exchange(men, std::vector<Man>(static_cast<std::size_t>(count)));
    int number = 0;
    for (Man& man : men) {
        record(f, man, fmt::format("{} {}", who, ++number));
        if (!f.Reading()) continue;
        man.positionsShown = static_cast<std::uint8_t>(std::count_if(
            man.Pos.begin(), man.Pos.end(), [](const auto& entry) { return entry.position != Position::None; }));
        const auto found =
            std::find_if(known.begin(), known.end(), [&](const Man& one) { return one.playerID == man.playerID; });
        if (found != known.end()) Complete(man, *found);
    }
}

// The pitchers who rest, for whoever reads the file; the days themselves stand in the pitchers' records.
void RestList(SaveFields& f, SaveWork& work, Side side) {
    const GameData& data = work.game.game.data;
    std::vector<const Pitcher*> resting;
    for (const Pitcher& pitcher : data[side].roster.pitchers)
        if (IsResting(pitcher, data.dayNumber)) resting.push_back(&pitcher);
    for (int i = 0; i < work.Counts(side).resting; ++i) {
        const Pitcher* man = f.Reading() ? nullptr : resting[static_cast<std::size_t>(i)];
        f.Begin(SideWord(side) + " rest list");
        f.SkipText("name", man ? man->playerName : std::string());
        f.SkipNumber("playerID", man ? man->playerID : 0);
        f.SkipNumber("days", man ? man->PitchedOnDay + man->PitcherRestDays - data.dayNumber + 1 : 0);
        f.End();
    }
}

void Lists(SaveFields& f, SaveWork& work, Side side) {
    TeamRoster& roster = work.Team(side).roster;
    if (f.Reading()) {
        roster.lists.assign(static_cast<std::size_t>(work.Counts(side).lists), {});
        for (LineupList& list : roster.lists) list.teamID = roster.team.teamID;
    }
    for (LineupList& list : roster.lists) SaveList(f, list, SideWord(side) + " list");
}

// Runs one set of the box score's lines; the file has the men by their keys.
template <class Lines, class Record>
void BoxScoreLines(SaveFields& f, const TeamData& team, Lines& lines, int count, Record record) {
    for (int i = 0; i < count; ++i) {
        auto& line = lines[static_cast<std::size_t>(i)];
        SavedMan man;
        if (!f.Reading() && !line.player.Nobody()) {
            const auto at = static_cast<std::size_t>(line.player.index);
            man.type = line.player.type;
            man.playerID = man.type == 'P' ? team.roster.pitchers[at].playerID : team.roster.batters[at].playerID;
            man.name = PlayerName(team, line.player);
        }
        record(line, man);
        if (!f.Reading()) continue;
        if (man.type != 'B' && man.type != 'P') f.Fail("the player type must be B or P");
        const int index = man.type == 'P' ? team.PitcherIndex(man.playerID) : team.BatterIndex(man.playerID);
        line.player = {man.type, static_cast<std::int16_t>(index)};
        if (index < 0) f.Fail(fmt::format("player id {} is none of the players above", man.playerID));
    }
}

void BatterLines(SaveFields& f, SaveWork& work, Side side) {
    const std::string who = SideWord(side) + " batter line";
    BoxScoreLines(f, work.Team(side), work.game.state[side].box.batter, work.Counts(side).batterLines,
                  [&](BatterLine& line, SavedMan& man) { SaveBatterLine(f, line, man, who); });
}
void FielderLines(SaveFields& f, SaveWork& work, Side side) {
    const std::string who = SideWord(side) + " fielder line";
    BoxScoreLines(f, work.Team(side), work.game.state[side].box.fielder, work.Counts(side).fielderLines,
                  [&](FielderLine& line, SavedMan& man) { SaveFielderLine(f, line, man, who); });
}
void PitchingLines(SaveFields& f, SaveWork& work, Side side) {
    const std::string who = SideWord(side) + " pitching line";
    TeamState& team = work.game.state[side];
    BoxScoreLines(f, work.Team(side), team.box.pitching, work.Counts(side).pitchersUsed,
                  [&](PitchingLine& line, SavedMan& man) { SavePitchingLine(f, line, man, team, who); });
}

void Innings(SaveFields& f, TeamState& team, Side side) {
    for (std::int16_t& runs : team.InningRuns) {
        f.Begin(SideWord(side) + " runs of an inning");
        f.Number("runs", runs, 0);
        f.End();
    }
}

void RealStatistics(SaveFields& f, SaveWork& work) {
    for (const Side side : kBothSides) {
        LahmanRecordSet& real = work.game.game.real[side];
        if (f.Reading()) real.batters.assign(static_cast<std::size_t>(work.Counts(side).realBatters), {});
        for (LahmanRecord& man : real.batters) SaveRealBatter(f, man, SideWord(side) + " real batter");
    }
    for (const Side side : kBothSides) {
        LahmanRecordSet& real = work.game.game.real[side];
        if (f.Reading()) real.pitchers.assign(static_cast<std::size_t>(work.Counts(side).realPitchers), {});
        for (LahmanPitchRecord& man : real.pitchers) SaveRealPitcher(f, man, SideWord(side) + " real pitcher");
    }
}

// Everything after the head, in the order of the file.
void Records(SaveFields& f, SaveWork& work) {
    SavedGame& game = work.game;
    Managers(f, work);
    SavePark(f, game.game.data.park);
    SaveYear(f, game.game.data.year);
    for (const Side side : kBothSides)
        Players(f, work.Team(side).roster.batters, work.Counts(side).batters, SideWord(side) + " batter", SaveBatter);
    for (const Side side : kBothSides)
        Players(f, work.Team(side).roster.pitchers, work.Counts(side).pitchers, SideWord(side) + " pitcher",
                SavePitcher);
    for (const Side side : kBothSides) RestList(f, work, side);
    for (const Side side : kBothSides) Lists(f, work, side);
    for (const Side side : kBothSides) BatterLines(f, work, side);
    for (const Side side : kBothSides) FielderLines(f, work, side);
    for (const Side side : kBothSides) PitchingLines(f, work, side);
    for (std::size_t i = 0; i < work.grids.size(); ++i) {
        work.grids[i].size = work.header.grid[i];
        SaveGrid(f, work.grids[i], "score sheet");
    }
    for (const Side side : kBothSides) Innings(f, game.state[side], side);
    for (bool& played : game.MusicClipPlayed) {
        f.Begin("music between innings");
        f.Flag("MusicClipPlayed", played);
        f.End();
    }
    RealStatistics(f, work);
    f.Begin("playing time");
    f.Real("ElapsedGameTime", game.seconds);
    f.End();
}

void ClosingLine(SaveFields& f, std::string_view before) {
    std::uint64_t sum = SaveChecksum(before);
    const std::uint64_t due = sum;
    f.Begin("closing line");
    f.Word("the file's fingerprint", sum);
    if (sum != due) f.Fail("the file isn't as it was written");
    f.End();
}

}  // namespace

std::string WriteSaveGame(const SavedGame& game) {
    SavedGame copy = game;
    if (!copy.session) copy.session.emplace();
    SaveWork work{copy, {}, MakeSheetGrids(copy), {{copy.sheet.Rows(Side::Visitor), copy.sheet.Rows(Side::Home)}}};
    work.header = MakeSaveHeader(copy);
    for (std::size_t i = 0; i < work.grids.size(); ++i) work.header.grid[i] = work.grids[i].size;
    SaveWriter f;
    SaveHeaderRecord(f, work.header, copy.state);
    Records(f, work);
    SaveBlockMark(f);
    SaveBlock(f, copy, work.sheetMen);
    SaveStateMark(f, copy.state);
    ClosingLine(f, f.Written());
    return f.Written();
}

SavedGame ReadSaveGame(std::string_view text, const std::string& name, const FillBasis& fill) {
    SavedGame game;
    SaveWork work{game, {}, {}, {}};
    SaveReader f(text, name);
    SaveHeaderRecord(f, work.header, game.state);
    fill(HeadOfSave(work.header), game.game);
    TakeHeader(work.header, game);
    Records(f, work);
    CompileGameData(game.game.data);
    game.game.control = game.state.computer;
    CountLines(work.header, game.state);
    if (f.AtEnd()) {
        for (const Side side : kBothSides)
            work.sheetMen[side] = FindSheetMen(f, game, work.grids[side == Side::Visitor ? 1 : 3], side);
        StandAtPitcher(f, game);
    } else {
        SaveBlockMark(f);
        SaveBlock(f, game, work.sheetMen);
        CheckMen(f, game);
        SaveStateMark(f, game.state);
        ClosingLine(f, f.Read());
        if (!f.AtEnd()) f.Fail("there is more in the file than belongs there");
    }
    RebuildSheet(f, game, work.grids, work.sheetMen);
    return game;
}

}  // namespace tarvane
