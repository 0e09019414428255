#include "savegame/saveblock.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/error.h"
#include "engine/availability.h"
#include "engine/replaylog.h"
#include "savegame/saverecords.h"
#include "savegame/statefields.h"

namespace tarvane {

namespace {

constexpr const char* kMark = "Further facts";
constexpr std::int64_t kMostLines = 100000;

// Many lines of text, which are counted first.
void TextLines(SaveFields& f, std::string& text, const std::string& record) {
    std::int64_t count = text.empty() ? 0 : std::count(text.begin(), text.end(), '\n') + 1;
    f.Begin("number of lines of " + record);
    f.Number("lines", count, 0, kMostLines);
    f.End();
    std::string read;
    std::size_t from = 0;
    for (std::int64_t i = 0; i < count; ++i) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        std::string line = f.Reading() ? std::string() : text.substr(from, end - from);
        f.Begin(record);
        f.Text("a line", line);
        f.End();
        from = end + 1;
        read += (i == 0 ? "" : "\n") + line;
    }
    if (f.Reading()) text = read;
}

void ScheduleFields(SaveFields& f, PreparedGame& game) {
    f.Begin("game of the schedule");
    bool scheduled = game.scheduled.has_value();
    f.Flag("scheduled", scheduled);
    if (!scheduled) game.scheduled.reset();
    if (scheduled && !game.scheduled) game.scheduled.emplace();
    ScheduledGame none;
    for (const Side side : kBothSides)
        f.Number("the line-up fixed for the game", (scheduled ? *game.scheduled : none).lineupNbr[side]);
    f.Number("the days taken off all rests", game.daysReduced, 0, 400);
    f.End();
}

void Tendencies(SaveFields& f, ManagerTendencies& t) {
    for (std::uint8_t* tendency : {&t.Bunting, &t.BaseStealing, &t.BaseRunning, &t.PinchHitting, &t.PinchRunning,
                                   &t.RelieverUsage, &t.DefensiveSubs})
        f.Number("a tendency", *tendency);
}

// What a computer manager knows besides the season's real figures, and what pitchers did today.
void ManagerFields(SaveFields& f, SavedGame& saved, Side side) {
    TeamRoster& roster = saved.game.data.team[side].roster;
    ManagerKnowledge& knowledge = saved.game.knowledge[side];
    const std::string who = SideWord(side);
    f.Begin(who + " manager");
    Tendencies(f, roster.tendencies);
    f.Flag("actual usage", knowledge.actualUsage);
    f.Number("startersAvailable", knowledge.startersAvailable);
    std::string top;
    for (const bool one : knowledge.topBatter) top += one ? 'Y' : 'N';
    f.Text("the league's top batters", top);
    knowledge.topBatter.clear();
    for (const char one : top) knowledge.topBatter.push_back(one == 'Y');
    f.End();
    for (Pitcher& pitcher : roster.pitchers) {
        f.Begin(who + " pitcher, today");
        f.Number("IPOutsToday", pitcher.IPOutsToday);
        f.End();
    }
}

void SheetMen(SaveFields& f, const GameData& data, std::vector<ScoreSheetRow>& men, Side side) {
    auto count = static_cast<std::int64_t>(men.size());
    f.Begin(SideWord(side) + " score sheet, number of rows");
    f.Number("rows", count, 0, kMostLines);
    f.End();
    if (f.Reading()) men.clear();
    for (std::int64_t i = 0; i < count; ++i) {
        if (f.Reading()) men.emplace_back();
        ScoreSheetRow& man = men[static_cast<std::size_t>(i)];
        f.Begin(SideWord(side) + " score sheet, man of a row");
        f.Number("slot", man.slot, 1, 9);
        SaveManRef(f, man.player);
        if (!KnownPlayer(data[side], man.player)) f.Fail("the player isn't on the team");
        f.End();
    }
}

void Generator(SaveFields& f, Random& random, const std::string& record) {
    std::array<std::uint64_t, 4> words = random.State();
    f.Begin(record);
    for (std::uint64_t& word : words) f.Word("the generator's state", word);
    f.End();
    random.SetState(words);
}

// A move that waits for the user's word, in the words in which replays are kept.
void Proposed(SaveFields& f, SessionMemory& memory) {
    bool proposed = memory.proposer.has_value();
    Side side = memory.proposer.value_or(Side::Visitor);
    f.Begin("move that waits");
    f.Flag("a move waits", proposed);
    f.Choice("its side", side, Side::Home);
    f.End();
    if (!proposed) return memory.proposer.reset();
    std::string text;
    if (!f.Reading()) {
        ReplayLog log;
        log.steps.push_back({memory.proposed, {}});
        text = WriteReplayLog(log);
    }
    TextLines(f, text, "move that waits");
    if (!f.Reading()) return;
    memory.proposer = side;
    try {
        const ReplayLog log = ParseReplayLog(text + "\n", "the move that waits");
        if (log.steps.size() != 1) f.Fail("there must be one move");
        memory.proposed = log.steps.front().input;
    } catch (const UserError& error) {
        f.Fail(error.what());
    }
}

void MemoryFields(SaveFields& f, SessionMemory& memory) {
    Generator(f, memory.random, "dice");
    Generator(f, memory.decoration, "faces of the dice");
    for (const Side side : kBothSides) {
        ComputerManager::Memory& manager = memory.manager[side];
        Generator(f, manager.random, SideWord(side) + " manager's draws");
        f.Begin(SideWord(side) + " manager's memory");
        f.Flag("closerIn", manager.closerIn);
        f.Number("the turn of the last pinch move", manager.battersFaced);
        f.Number("its inning", manager.inning);
        f.Flag("a move was declined", memory.declined[side]);
        f.End();
    }
    f.Begin("managers before the pitch");
    f.Flag("not yet asked", memory.arrived);
    f.Number("orders", memory.orders, 0, 1000);
    f.End();
    Proposed(f, memory);
    TextLines(f, memory.told, "running text");
}

}  // namespace

void SaveBlockMark(SaveFields& f) {
    f.Begin("mark of the further facts");
    std::string mark = kMark;
    f.Text("the mark", mark);
    if (mark != kMark) f.Fail("there is more in the file than belongs there");
    int version = kSaveBlockVersion;
    f.Number("the version", version, 1, 1000);
    if (version > kSaveBlockVersion)
        f.Fail(fmt::format("the file is of version {} and this program reads up to {}", version, kSaveBlockVersion),
               "resume the game with the later program that saved it");
    f.End();
}

void SaveBlock(SaveFields& f, SavedGame& game, PerSide<std::vector<ScoreSheetRow>>& sheetMen) {
    SaveSituation(f, game.state);
    SavePlay(f, game.state.play);
    SaveInjuries(f, game.state);
    for (const Side side : kBothSides) {
        TeamState& team = game.state[side];
        SaveTeamState(f, team, SideWord(side));
        SaveLineMarks(f, team.box, SideWord(side));
        SheetMen(f, game.game.data, sheetMen[side], side);
        ManagerFields(f, game, side);
    }
    ScheduleFields(f, game.game);
    if (f.Reading()) game.session.emplace();
    MemoryFields(f, *game.session);
}

void SaveStateMark(SaveFields& f, const GameState& state) {
    const StateHash due = HashState(state);
    f.Begin("fingerprint of the state");
    for (std::size_t i = 0; i < due.size(); ++i) {
        std::uint32_t hash = due[i];
        f.Number(StatePartText(static_cast<StatePart>(i)), hash, 0, std::numeric_limits<std::uint32_t>::max());
        if (hash != due[i])
            f.Fail(fmt::format("{} doesn't come out as it was", StatePartText(static_cast<StatePart>(i))));
    }
    f.End();
}

}  // namespace tarvane
