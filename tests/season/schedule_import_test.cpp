#include "season/scheduleimport.h"

#include <fmt/core.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

#include "base/error.h"
#include "base/file.h"
#include "data/datafixture.h"
#include "data/lineups.h"
#include "season/loggedplayers.h"
#include "seasons.h"

namespace tarvane {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Pair;

std::string Line(const std::string& date, const std::string& visitor, const std::string& home,
                 const std::string& rest = R"("D","","")") {
    return "\"" + date + "\",\"0\",\"Mon\",\"" + visitor + "\",\"AL\",1,\"" + home + "\",\"AL\",1," + rest;
}

// A line of a game log: the visitors' men are called "<code> 1" to "<code> 9" and bat in the order of their positions.
std::string LogLine(const std::string& date, const std::string& visitor, const std::string& home, bool dh) {
    std::vector<std::string> cells(161);
    cells[0] = "\"" + date + "\"";
    cells[3] = visitor;
    cells[6] = home;
    std::size_t side = 0;
    for (const std::string& code : {visitor, home}) {
        cells[101 + 2 * side] = "xxxxx001";
        cells[102 + 2 * side] = code + " Pitcher";
        for (std::size_t slot = 0; slot < 9; ++slot) {
            const std::size_t position = dh ? slot + 2 : slot + 1;
            const std::size_t at = 105 + 27 * side + 3 * slot;
            cells[at] = "yyyyy001";
            cells[at + 1] = code + (position == 1 ? " Pitcher" : " Number" + std::to_string(position));
            cells[at + 2] = std::to_string(position);
        }
        ++side;
    }
    std::string line;
    for (const std::string& cell : cells) line += (line.empty() ? "" : ",") + cell;
    return line;
}

struct ScheduleImport : ::testing::Test {
    TestDatabase season{TableHome::Season};

    ScheduleImport() {
        for (const auto& [code, year] : {std::pair{"NYA", 1975}, {"ML4", 1975}, {"BOS", 1975}, {"NYA27", 1927}})
            season.Add("KorvTeams", {{"teamID", std::string(code)}, {"yearID", std::int64_t{year}}});
    }
    ScheduleImportResult Import(const std::string& text, const ScheduleImportChoice& choice = {}) {
        return ImportSchedule(season.db, ParseScheduleFile(text, "FILE.TXT"), choice);
    }
    // "date visitor-home" by GameID.
    std::vector<std::string> Games() {
        std::vector<std::string> games;
        Statement rows =
            season.db.Prepare("SELECT GameDate, VisitorTeamIndex, HomeTeamIndex FROM Schedule ORDER BY GameID");
        while (rows.Step())
            games.push_back(rows.Text(0) + " " + std::to_string(rows.Int(1)) + "-" + std::to_string(rows.Int(2)));
        return games;
    }
    void AddMen(const std::string& code) {
        for (int i = 2; i <= 10; ++i)
            season.Add("KorvBatters", {{"teamID", code},
                                       {"LahmanPlayerID", code + std::to_string(i)},
                                       {"playerName", code + " Number-" + std::to_string(i)}});
        for (const char* type : {"R", "S"})
            season.Add("KorvPitchers", {{"teamID", code},
                                        {"LahmanPlayerID", code + "p"},
                                        {"playerName", code + " Pitcher"},
                                        {"pitcherType", std::string(type)}});
    }
    std::vector<LineupList> Fixed(const std::string& code) {
        std::vector<LineupList> lists = LoadTeamLineups(season.db, code);
        std::erase_if(lists, [](const LineupList& list) { return list.GameID == 0; });
        return lists;
    }
};

TEST_F(ScheduleImport, OddLinesOfScheduleFiles) {
    const std::string text = Line("19750503", "BOS", "NYA", R"("E","Rain; Site change","19750504; 19750505")") +
                             "\r\n" + "\r\n" + Line("19750407", "MIL", "BOS") + "\r\n" +
                             Line("19750407", "MIL", "BOS") + "\r\n" + Line("19750408", "BOS", "NYA") + "\r\n\x1a" +
                             std::string(100, '\0');
    EXPECT_EQ(Import(text).games, 4);
    // In the order of dates, both games of a doubleheader, the postponed one on its first date.
    EXPECT_THAT(Games(), ElementsAre("1975-04-07 2-3", "1975-04-07 2-3", "1975-04-08 3-1", "1975-05-03 3-1"));
    std::string unixText = text;
    std::erase(unixText, '\r');
    Import(unixText);
    EXPECT_EQ(Games().size(), 4U);
    const std::vector<std::string> before = Games();
    Import(ExportSchedule(season.db));
    EXPECT_EQ(Games(), before);
    EXPECT_EQ(Import("").games, 0);
    EXPECT_TRUE(Games().empty());
}

TEST_F(ScheduleImport, ClubsOfOtherCodesAndYears) {
    const ScheduleImportResult result =
        Import(Line("19270412", "NYA", "BOS") + "\n" + Line("19750412", "NYA", "SLN") + "\n" +
               Line("19750413", "NYA", "MIL") + "\n" + Line("19990413", "SLN", "SLN") + "\n");
    // The club of the game's year is meant, where there are two.
    EXPECT_THAT(Games(), ElementsAre("1927-04-12 4-3", "1975-04-13 1-2"));
    EXPECT_EQ(result.leftOut, 2);
    EXPECT_THAT(result.unknown, ElementsAre(Pair("SLN", 3)));
}

TEST_F(ScheduleImport, FaultsNameTheLine) {
    Import(Line("19750407", "BOS", "NYA"));
    const auto fault = [this](const std::string& text, const ScheduleImportChoice& choice = {}) -> std::string {
        try {
            Import(text, choice);
        } catch (const UserError& error) {
            return error.what();
        }
        return "none";
    };
    const std::string good = Line("19750408", "NYA", "BOS") + "\n";
    ScheduleImportChoice strict;
    strict.leaveOutUnknown = false;
    EXPECT_THAT(fault(good + Line("19750230", "NYA", "BOS")), HasSubstr("date is not valid - Line 2"));
    EXPECT_THAT(fault(good + Line("19750408", "NYA", "SLN"), strict),
                HasSubstr("home team id SLN was not found - Line 2"));
    EXPECT_THAT(fault(good + "\"19750409\",\"0\"\n"), HasSubstr("line 2"));
    EXPECT_THAT(fault(LogLine("19750408", "NYA", "BOS", true) + "\n" + good), HasSubstr("line 2"));
    EXPECT_THAT(fault(Line("19750408", "SLN", "CHN")), HasSubstr("no game"));
    EXPECT_THAT(Games(), ElementsAre("1975-04-07 3-1"));  // nothing was changed
    strict.keepBeforeFault = true;
    const ScheduleImportResult kept = Import(good + Line("19750408", "SLN", "NYA"), strict);
    EXPECT_EQ(kept.fault, "Import file visitor team id SLN was not found - Line 2 - Import Aborted");
    EXPECT_THAT(Games(), ElementsAre("1975-04-08 1-3"));
    season.db.Execute("UPDATE Schedule SET Played = -1");
    EXPECT_THROW(RefusePlayedSchedule(season.db), UserError);
}

TEST_F(ScheduleImport, GameLogFixesWhoStarted) {
    for (const char* code : {"NYA", "BOS"}) {
        CreateTeamLineups(season.db, code);
        AddMen(code);
    }
    season.db.Execute("DELETE FROM KorvBatters WHERE playerName = 'BOS Number-10'");
    LineupList byHand = LoadTeamLineups(season.db, "NYA").front();
    byHand.GameID = 7;
    SaveLineup(season.db, byHand);
    season.Add("LeagueRules", {{"HometeamDH", std::int64_t{-1}}, {"LeagueDH", std::int64_t{0}}});
    season.db.Execute("UPDATE KorvTeams SET HomeDH = -1 WHERE teamID = 'NYA'");
    const std::string log = LogLine("19750408", "BOS", "NYA", true) + "\n" + LogLine("19750407", "NYA", "BOS", false) +
                            "\n" + LogLine("19750407", "NYA", "SLN", false) + "\n";
    const ScheduleImportResult result = Import(log);
    EXPECT_EQ(result.games, 2);
    EXPECT_EQ(result.lineups, 3);
    EXPECT_EQ(result.incomplete, 1);
    ASSERT_EQ(result.missing.size(), 1U);
    EXPECT_EQ(result.missing[0].LogLine(), ", Retro Game Log Player Not Found in Season, yyyyy001,BOS Number10");

    const std::vector<LineupList> lists = Fixed("NYA");
    ASSERT_EQ(lists.size(), 2U);  // the list fixed by hand for a game that is gone is free
    Statement row = season.db.Prepare("SELECT VisitorLineupNbr, HomeLineupNbr FROM Schedule ORDER BY GameID");
    row.Step();
    const LineupList& noDH = lists[0].lineupID == row.Int(0) ? lists[0] : lists[1];
    EXPECT_EQ(noDH.lineupID, row.Int(0));
    EXPECT_EQ(noDH.GameID, 1);
    EXPECT_EQ(noDH.slot[0].PlayerType, 'P');
    EXPECT_EQ(noDH.slot[0].playerID, noDH.playerIDP);
    EXPECT_EQ(std::get<std::string>(season.Get("KorvPitchers", "pitcherType", noDH.playerIDP)), "S");
    EXPECT_EQ(noDH.slot[8].position, Position::RF);
    row.Step();
    EXPECT_EQ(row.Int(0), 0);  // a man is missing: the managers choose
    const LineupList& withDH = &noDH == &lists[0] ? lists[1] : lists[0];
    EXPECT_EQ(withDH.lineupID, row.Int(1));
    EXPECT_EQ(withDH.slot[8].position, Position::DH);
    EXPECT_EQ(withDH.slot[8].PlayerType, 'B');

    // A nine without a DH can't play where the season has one.
    season.db.Execute("UPDATE KorvTeams SET HomeDH = -1");
    EXPECT_EQ(Import(log).lineups, 1);

    Import(Line("19750407", "BOS", "NYA"));
    EXPECT_EQ(LoadTeamLineups(season.db, "NYA").size(), static_cast<std::size_t>(kLineupsPerTeam));
}

// Names of the log differ from those of the statistics; keys have the same stem.
TEST_F(ScheduleImport, MenAreFoundByNameOrKey) {
    const auto add = [this](const char* key, const char* name) {
        return static_cast<std::int32_t>(
            season.Add("KorvBatters", {{"teamID", "NYA"}, {"LahmanPlayerID", key}, {"playerName", name}}));
    };
    const std::int32_t ivan = add("dejesiv01", "Ivan DeJesus"), ott = add("ottmi01", "Michael Ott");
    add("robinja01", "Jack Robinson");
    add("robinjo01", "Joe Robinson");
    const std::int32_t al = add("smithal01", "Smith"), ed = add("smithed01", "Smith");
    const LoggedPlayers players(season.db);
    const auto find = [&players](const char* key, const char* name) {
        return players.Batter("NYA", {key, name, Position::C}).playerID;
    };
    EXPECT_EQ(find("dejei001", "Ivan De Jesus"), ivan);
    EXPECT_EQ(find("ott-m101", "Mike Ott"), ott);
    EXPECT_EQ(find("smita001", "Smith"), al);
    EXPECT_EQ(find("smite001", "Smith"), ed);
    EXPECT_EQ(find("robij001", "Johnny Robinson"), 0);  // might be either
    EXPECT_EQ(players.Batter("BOS", {"ott-m101", "Mike Ott", Position::C}).playerID, 0);
}

// The real files, where they are at hand: every game of the season is scheduled, and all who started are found but a
// man of 1927 without a batter retired, whom the season leaves out, and a nine of 1975 that did without its DH.
TEST(RealSchedules, OfThreeSeasons) {
    const char* folder = std::getenv("TARVANE_REAL_DATA");
    if (!folder) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder";
    const std::filesystem::path real = folder;
    struct Season {
        int year, scheduled, logged, lineups;
    };
    for (const Season& expected :
         {Season{1927, 1232, 1236, 2471}, {1975, 1944, 1934, 3867}, {1998, 2430, 2432, 4864}}) {
        testing::PlayableSeason made(real / "lahman" / "csv", expected.year);
        const auto import = [&](const std::string& file) {
            return ImportSchedule(*made.season, ParseScheduleFile(ReadFile(real / "retrosheet" / file), file));
        };
        const ScheduleImportResult schedule = import(fmt::format("schedules/{}SKED.TXT", expected.year));
        EXPECT_EQ(schedule.games, expected.scheduled);
        EXPECT_EQ(schedule.leftOut, 0);
        const ScheduleImportResult log = import(fmt::format("gamelogs/GL{}.TXT", expected.year));
        EXPECT_EQ(log.games, expected.logged);
        EXPECT_EQ(log.leftOut, 0);
        EXPECT_EQ(log.lineups, expected.lineups);
    }
}

}  // namespace
}  // namespace tarvane
