// Games put away and taken up again: every step of whole games, files without the further facts, damaged files.

#include <gmock/gmock.h>

#include <set>

#include "base/error.h"
#include "postingseason.h"
#include "savedrun.h"
#include "savegame/savefile.h"

namespace tarvane {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using testing::SavedRun;
using ::testing::StartsWith;

namespace fs = std::filesystem;

constexpr const char* kName = "ExhGame.txt";

SavedGame Reread(const std::string& text) {
    return ReadSaveGame(text, kName, SavedRun::Basis);
}

// What was under way when a game was put away.
void NotePlaces(const GameState& state, std::set<std::string>& places) {
    if (state.awaited.kind == Await::Decision)
        places.insert(fmt::format("decision {}", static_cast<int>(state.awaited.decision)));
    else if (state.awaited.kind == Await::LineupChange)
        places.insert(fmt::format("line-up {}", static_cast<int>(state.awaited.cause)));
    else
        places.insert(std::string("sheet ") + std::string(SheetCodeText(state.sheet)));
    const TeamState& team = state.Batting();
    if (team.runner[1].On() && team.runner[2].On() && team.runner[3].On()) places.insert("bases full");
    if (team.runner[1].Unearned || team.runner[2].Unearned || team.runner[3].Unearned) places.insert("unearned");
    if (state.Inning > 9) places.insert("extra innings");
    if (state.injuryCount > 0) places.insert("injured");
    if (state.Fielding().PitcherIntermediateTired) places.insert("half tired");
    if (state.Fielding().box.PitchersUsed > 2) places.insert("relief");
    if (state.StaminaCheckPending) places.insert("stamina check");
}

TEST(SaveGame, AGamePutAwayBeforeAnyInputGoesOnAsIfItHadNotBeen) {
    std::set<std::string> places;
    for (const std::uint64_t seed : {3U, 11U, 28U, 69U, 84U}) {
        const bool dh = seed % 2 == 1;
        SavedRun whole(seed, dh);
        SavedRun unbroken(seed, dh);
        ASSERT_NO_FATAL_FAILURE(unbroken.PlayToTheEnd());
        const StateHash end = HashState(unbroken.State());
        int step = 0;
        for (; !whole.State().GameOverFlag; ++step) {
            NotePlaces(whole.State(), places);
            const SavedGame saved = whole.Save();
            SavedGame again = Reread(WriteSaveGame(saved));
            ASSERT_TRUE(again.state == saved.state) << "seed " << seed << ", step " << step;
            ASSERT_EQ(HashGameData(again.game.data), HashGameData(saved.game.data));
            for (const Side side : kBothSides)
                ASSERT_EQ(again.sheet.Rows(side), saved.sheet.Rows(side)) << "seed " << seed << ", step " << step;
            SavedRun resumed(std::move(again));
            ASSERT_NO_FATAL_FAILURE(resumed.PlayToTheEnd());
            ASSERT_EQ(HashState(resumed.State()), end) << "seed " << seed << ", step " << step;
            ASSERT_EQ(resumed.Documents(), unbroken.Documents()) << "seed " << seed << ", step " << step;
            ASSERT_NO_FATAL_FAILURE(whole.Step());
        }
        EXPECT_GT(step, 100);
    }
    for (const char* place : {"sheet P", "sheet B", "sheet BBSO", "sheet PS", "sheet M", "sheet XI", "sheet S",
                              "sheet Bt", "decision 1", "decision 2", "line-up 1", "line-up 3", "bases full",
                              "unearned", "extra innings", "injured", "half tired", "relief"})
        EXPECT_THAT(places, Contains(place)) << "no game came to this place: choose other seeds";
}

TEST(SaveGame, AnExhibitionHasABlankForItsDateAndAScheduledGameComesBackAsWhatItIs) {
    SavedRun run(3);
    SavedGame saved = run.Save();
    saved.seconds = 754.5;
    saved.MusicClipPlayed[7] = true;
    saved.session->told = "First line.\n\nThird, \"quoted\".";
    saved.session->manager[Side::Home].closerIn = true;
    saved.session->manager[Side::Home].battersFaced = 31;
    saved.session->manager[Side::Home].inning = 8;
    saved.session->declined[Side::Visitor] = true;
    saved.session->orders = 3;
    saved.game.knowledge[Side::Visitor].topBatter = {false, true, true};
    saved.game.knowledge[Side::Visitor].startersAvailable = 2;
    saved.game.data.team[Side::Home].roster.tendencies.RelieverUsage = 1;
    saved.session->proposer = Side::Home;
    saved.session->proposed = saved.game.lineup[Side::Home];
    const std::string exhibition = WriteSaveGame(saved);
    EXPECT_THAT(exhibition.substr(0, exhibition.find('\n')), HasSubstr(",\" \",0,0,"));
    saved.game.data.gameDate = "1975-07-04";
    saved.game.data.dayNumber = 185;
    saved.game.scheduled = ScheduledGame{812, "1975-07-04", {{4, 9}}, {{31, 0}}};
    saved.game.data.team[Side::Home].roster.team.TeamIdx = 9;
    saved.game.daysReduced = 2;
    const std::string text = WriteSaveGame(saved);
    EXPECT_THAT(text.substr(0, text.find('\n')), HasSubstr(",\"07/04/1975\",185,812,"));
    const SavedGame again = Reread(text);
    ASSERT_TRUE(again.game.scheduled.has_value());
    EXPECT_EQ(again.game.scheduled->GameID, 812);
    EXPECT_EQ(again.game.scheduled->GameDate, "1975-07-04");
    EXPECT_EQ(again.game.scheduled->teamIdx[Side::Home], 9);
    EXPECT_EQ(again.game.scheduled->lineupNbr[Side::Visitor], 31);
    EXPECT_EQ(again.game.daysReduced, 2);
    EXPECT_EQ(again.game.data.team[Side::Visitor].roster.team.fullName, "The \"Old\" Visitors, 1975");
    EXPECT_DOUBLE_EQ(again.seconds, 754.5);
    EXPECT_EQ(again.MusicClipPlayed, saved.MusicClipPlayed);
    EXPECT_EQ(again.session->told, saved.session->told);
    ASSERT_EQ(again.session->proposer, Side::Home);
    EXPECT_EQ(std::get<LineupInput>(again.session->proposed).pitcher, saved.game.lineup[Side::Home].pitcher);
    EXPECT_TRUE(again.session->manager[Side::Home].closerIn);
    EXPECT_FALSE(again.session->manager[Side::Visitor].closerIn);
    EXPECT_EQ(again.session->manager[Side::Home].battersFaced, 31);
    EXPECT_EQ(again.session->manager[Side::Home].inning, 8);
    EXPECT_EQ(again.session->declined, saved.session->declined);
    EXPECT_EQ(again.session->orders, 3);
    EXPECT_EQ(again.game.knowledge[Side::Visitor].topBatter, saved.game.knowledge[Side::Visitor].topBatter);
    EXPECT_EQ(again.game.knowledge[Side::Visitor].startersAvailable, 2);
    EXPECT_EQ(again.game.data[Side::Home].roster.tendencies.RelieverUsage, 1);
    EXPECT_FALSE(Reread(exhibition).game.scheduled.has_value());
}

std::string WithoutFurtherFacts(const std::string& text) {
    return text.substr(0, text.find("\"Further facts\""));
}

TEST(SaveGame, AFileWithoutTheFurtherFactsGoesOnWithTheNextPitch) {
    SavedRun run(12);
    int between = 0;
    for (int step = 0; !run.State().GameOverFlag; ++step) {
        const GameState& was = run.State();
        SavedGame again = Reread(WithoutFurtherFacts(WriteSaveGame(run.Save())));
        ASSERT_FALSE(again.session.has_value());
        EXPECT_EQ(again.state.sheet, SheetCode::P);
        if (was.awaited.cause == LineupCause::Positions) {
            EXPECT_TRUE(again.state.awaited == was.awaited) << "step " << step;
        }
        EXPECT_FALSE(again.state.StaminaCheckPending);
        EXPECT_EQ(again.state.Outs, was.Outs);
        EXPECT_EQ(again.state.Inning, was.Inning);
        for (const Side side : kBothSides) {
            EXPECT_EQ(again.state[side].Runs, was[side].Runs);
            EXPECT_EQ(again.state[side].InningRuns, was[side].InningRuns);
            for (std::size_t base = 1; base <= 3; ++base)
                EXPECT_EQ(again.state[side].runner[base].slot, was[side].runner[base].slot);
        }
        again.session.emplace();
        again.session->random.Seed(99);
        // A play that waits for a decision has half its counts: nobody but this program leaves a game there.
        if (was.awaited.kind != Await::Decision) {
            ASSERT_EQ(StateOk(again.game.data, again.state), "") << "step " << step;
            const bool pitch = was.sheet == SheetCode::P && was.awaited.kind == Await::Roll;
            SavedRun resumed(std::move(again));
            if (pitch) {
                ++between;
                EXPECT_EQ(resumed.Documents(), SavedRun(run.Save()).Documents()) << "step " << step;
            }
            ASSERT_NO_FATAL_FAILURE(resumed.PlayToTheEnd()) << "step " << step;
            EXPECT_EQ(StateOk(resumed.Data(), resumed.State()), "") << "step " << step;
        }
        ASSERT_NO_FATAL_FAILURE(run.Step());
    }
    EXPECT_GT(between, 40);
}

// --- Damaged files ---------------------------------------------------------------------------------------------------

std::string SavedText() {
    SavedRun run(12);
    for (int step = 0; step < 120; ++step) run.Step();
    return WriteSaveGame(run.Save());
}

// The sentence with which a text is refused; empty if it is taken.
std::string Refusal(const std::string& text) {
    try {
        Reread(text);
    } catch (const UserError& error) {
        return error.what();
    }
    return {};
}

TEST(SaveGame, AFileCutOffAnywhereIsRefusedWithItsLine) {
    const std::string text = SavedText();
    const std::size_t older = WithoutFurtherFacts(text).size();  // a whole file of an older kind
    int line = 1;
    for (std::size_t end = text.find('\n'); end + 1 < text.size(); end = text.find('\n', end + 1), ++line) {
        if (end + 1 == older) continue;
        const std::string refusal = Refusal(text.substr(0, end + 1));
        ASSERT_THAT(refusal, StartsWith(fmt::format("ExhGame.txt, line {} (", line + 1)));
        ASSERT_THAT(refusal, HasSubstr("cut off"));
        if (line % 7 != 0) continue;
        ASSERT_NE(Refusal(text.substr(0, end - 1)), "") << "line " << line;
    }
    EXPECT_GT(line, 3000);
    EXPECT_THAT(Refusal(""), StartsWith("ExhGame.txt, line 1 (head of the game): the file is cut off"));
    EXPECT_THAT(Refusal(text + "\n"), HasSubstr("more in the file"));
    EXPECT_EQ(Refusal(text), "");
}

TEST(SaveGame, AFlippedBitIsAlwaysFound) {
    const std::string text = SavedText();
    Random random(17);
    for (int i = 0; i < 1500; ++i) {
        std::string damaged = text;
        const std::size_t at = random.Below(static_cast<std::uint32_t>(text.size()));
        damaged[at] = static_cast<char>(damaged[at] ^ (1 << random.Below(8)));
        const std::string refusal = Refusal(damaged);
        ASSERT_THAT(refusal, StartsWith("ExhGame.txt, line ")) << "at " << at;
        ASSERT_THAT(refusal, HasSubstr("stays as it is")) << "at " << at;
    }
}

// Nothing closes an older file, so what can't be told from a game is taken for one: it must play on all the same.
TEST(SaveGame, AnOlderFileWithAFlippedBitIsRefusedOrPlays) {
    const std::string text = WithoutFurtherFacts(SavedText());
    Random random(18);
    int refused = 0, taken = 0;
    for (int i = 0; i < 1500; ++i) {
        std::string damaged = text;
        // Every other one in the head or among the lines of the game, where most hangs on a byte.
        const std::size_t from = i % 2 == 0 ? 0 : text.find("\nN,") + 1;
        const std::size_t size = i % 2 == 0 ? text.find('\n') : text.size() - from;
        const std::size_t at = from + random.Below(static_cast<std::uint32_t>(size));
        damaged[at] = static_cast<char>(damaged[at] ^ (1 << random.Below(8)));
        try {
            SavedGame game = Reread(damaged);
            game.session.emplace();
            if (!StateOk(game.game.data, game.state).empty()) continue;  // builds with checks would stop the game
            SavedRun resumed(std::move(game));
            for (int step = 0; step < 40 && !resumed.State().GameOverFlag; ++step) resumed.Step();
            ++taken;
        } catch (const UserError& error) {
            ASSERT_THAT(error.what(), StartsWith("ExhGame.txt, line "));
            ++refused;
        }
    }
    EXPECT_GT(refused, 300);
    EXPECT_GT(taken, 100);
}

TEST(SaveGame, MessagesNameLineRecordAndField) {
    const std::string text = SavedText();
    const auto changed = [&](const std::string& from, const std::string& to) {
        std::string other = text;
        other.replace(other.find(from), from.size(), to);
        return Refusal(other);
    };
    EXPECT_THAT(changed("\"H\",\"", "\"W\",\""),
                HasSubstr("(head of the game): BattingSide must be V or H; the saved"));
    EXPECT_THAT(changed("\"Further facts\",1", "\"Further facts\",2"),
                HasSubstr("the file is of version 2 and this program reads up to 1; resume the game with the later"));
    EXPECT_THAT(changed("\"Y\",\"Y\",\"Y\",\"Y\",\"Y\",\"Y\"", "\"Y\",\"Y\",\"Y\",\"Y\",\"Y\""),
                HasSubstr("line 2 (managers): MgrGame is missing"));
}

// --- Over the tables of a season -------------------------------------------------------------------------------------

// A game of the schedule, ready for its first pitch.
SavedGame Scheduled(testing::PlayableSeason& made, const ScheduledGame& game, std::uint64_t seed) {
    ScheduleSetup teams(*made.common, *made.season);
    SavedGame saved;
    static_cast<GameSetup&>(saved.game) = teams.SetUp(game);
    saved.game.scheduled = game;
    saved.session.emplace();
    saved.session->random.Seed(seed);
    saved.session->arrived = true;
    for (const Side side : kBothSides) {
        saved.session->manager[side].random.Seed(seed + 1);
        saved.state.computer[side] = {true, true, true};
    }
    const PerSide<LineupInput>& lineup = saved.game.lineup;
    EXPECT_EQ(StartGame(saved.game.data, lineup[Side::Visitor], lineup[Side::Home], saved.state), Reject::None);
    return saved;
}

TEST(SaveGame, WhatIsNotInTheFileComesFromTheSeasonWhicheverRulesAreInForce) {
    const auto made = testing::MakeScheduledSeason(1);
    const TempFolder folder;
    for (const char* rules : {"FactorActualUsage = 0", "FactorActualUsage = -1, UseYellowXInjuryChart = -1",
                              "UseYearEffects = 0, PitcherStaminaSecondary = -1, LeagueDH = -1"}) {
        made->season->Execute(std::string("UPDATE LeagueRules SET ") + rules);
        const ScheduledGame game = UnplayedGames(*made->season).front();
        const fs::path file = SaveGameFile(folder.Path(), game.GameID);
        SavedRun run(Scheduled(*made, game, 9)), unbroken(Scheduled(*made, game, 9));
        ASSERT_NO_FATAL_FAILURE(unbroken.PlayToTheEnd());
        for (int step = 0; !run.State().GameOverFlag; ++step, run.Step()) {
            if (step % 20 != 5) continue;
            WriteSaveFile(file, run.Save());
            SavedGame again = ResumeSavedGame(*made->common, *made->season, file);
            ASSERT_TRUE(again.state == run.State()) << rules << ", step " << step;
            ASSERT_EQ(HashGameData(again.game.data), HashGameData(run.Data())) << rules;
            EXPECT_TRUE(again.game.real[Side::Home].Present());
            SavedRun resumed(std::move(again));
            ASSERT_NO_FATAL_FAILURE(resumed.PlayToTheEnd());
            ASSERT_EQ(HashState(resumed.State()), HashState(unbroken.State())) << rules << ", step " << step;
            ASSERT_EQ(resumed.Documents(), unbroken.Documents()) << rules << ", step " << step;
        }
    }
}

}  // namespace
}  // namespace tarvane
