#include "data/session.h"

#include <gmock/gmock.h>

#include "base/file.h"
#include "data/datafixture.h"
#include "data/rules.h"
#include "data/seeds.h"
#include "data/settings.h"
#include "data/upgrade.h"

namespace tarvane {

namespace fs = std::filesystem;

struct SessionTest : testing::Test {
    TempFolder folder;
    MessageList messages;
    StartupEnvironment environment;

    SessionTest() { environment.dataFolder = folder / "data"; }
    // A first start, made once for all tests and copied: it reads thousands of rows.
    void SetUp() override {
        static TempFolder made;
        static const bool ready = [] {
            MakeDataFiles(DetermineDataPath(made / "data"), AssetsPath() / "seeds");
            return true;
        }();
        ASSERT_TRUE(ready);
        fs::copy(made / "data", folder / "data", fs::copy_options::recursive);
    }
    DataPaths Paths() { return DetermineDataPath(environment.dataFolder); }
    std::int64_t MakeSeason(Session& session, const std::string& name, bool active) {
        CreateSeasonFile(session.Paths(), name);
        const std::int64_t id = AddSeasonEntry(session.Common(), name);
        if (active) {
            EXPECT_TRUE(session.Seasons().SetActiveSeason(id));
        }
        return id;
    }
    // Leaves an active season behind, as after a day of play.
    void PlayADay(const std::string& name) {
        Session session(messages);
        ASSERT_EQ(session.StartUp(environment), StartResult::Running);
        MakeSeason(session, name, true);
        session.Exit();
    }
    bool NothingActive() {
        Database common(Paths().CommonFile());
        for (const SeasonEntry& entry : ListSeasons(common))
            if (entry.Active) return false;
        return true;
    }
};

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(SessionTest, StartsWithoutASeasonAndWithOne) {
    Session session(messages);
    ASSERT_EQ(session.StartUp(environment), StartResult::Running);
    EXPECT_FALSE(session.Seasons().SeasonOpen());
    EXPECT_THROW(session.Seasons().Season(), UserError);
    EXPECT_EQ(session.Settings().InternetLocalPort, 1001);
    EXPECT_TRUE(session.Common().HasTable("KorvYears"));

    MakeSeason(session, "My League", true);
    EXPECT_EQ(session.Seasons().ActiveSeason(), "My League");
    EXPECT_TRUE(fs::exists(folder / "data/Data08/My League/Korv My League.mdb"));
    EXPECT_TRUE(session.Common().HasTable("DefensiveEras"));
    EXPECT_TRUE(session.Seasons().Rules().UseParkEffects);
    EXPECT_EQ(session.Seasons().Rules().rest[5].pitcherType, 'S');
    EXPECT_EQ(session.Seasons().Rules().rest[8].IPOutsTo, 999);
    EXPECT_FALSE(session.Seasons().HasBaseballReference());
    const std::int64_t other = MakeSeason(session, "1975", false);
    EXPECT_TRUE(session.Seasons().SetActiveSeason(other));
    EXPECT_THAT(ListSeasons(session.Common()).at(1).Active, false);
    session.Seasons().Season().Execute("CREATE TABLE BaseballReferenceBatting (PlayerID LONG)");
    session.Seasons().CheckActiveSeason();
    EXPECT_TRUE(session.Seasons().HasBaseballReference());
    session.Exit();

    Session again(messages);
    ASSERT_EQ(again.StartUp(environment), StartResult::Running);
    EXPECT_EQ(again.Seasons().ActiveSeason(), "1975");
    EXPECT_THAT(messages.lines, IsEmpty());
}

TEST_F(SessionTest, RefusalsTouchNothing) {
    environment.screen = ScreenSize{1024, 767};
    EXPECT_EQ(Session(messages).StartUp(environment), StartResult::ScreenTooSmall);
    EXPECT_THAT(messages.lines, ElementsAre(HasSubstr("at least 1024 (width) x 768 (height)")));
    environment.screen = ScreenSize{1024, 768};
    Session running(messages);
    ASSERT_EQ(running.StartUp(environment), StartResult::Running);
    environment.anotherInstanceRuns = [this](const DataPaths& paths) { return paths.root == folder / "data"; };
    Session second(messages);
    EXPECT_EQ(second.StartUp(environment), StartResult::AlreadyRunning);
    EXPECT_EQ(messages.lines.back(), "Tarvane PC Baseball: Tarvane PC Baseball is already running");
    const auto before = fs::last_write_time(Paths().CommonFile());
    second.Exit();
    EXPECT_EQ(fs::last_write_time(Paths().CommonFile()), before);
    EXPECT_EQ(running.Common().OpenRecordset("GameSettings").RecordCount(), 1);

    WriteFile(folder / "file", "x");
    environment.dataFolder = folder / "file";
    EXPECT_EQ(Session(messages).StartUp(environment), StartResult::NoDataFolder);
}

TEST_F(SessionTest, ADamagedCommonDatabaseEndsTheStart) {
    WriteFile(Paths().CommonFile(), "rubbish");
    Session session(messages);
    EXPECT_EQ(session.StartUp(environment), StartResult::NoCommonDatabase);
    EXPECT_THAT(ReadFile(Paths().ErrorLog()), testing::StartsWith(",OpenKorvCommon,Runtime Error: 3343"));
    EXPECT_THAT(messages.lines, ElementsAre(HasSubstr("Run Time Error Occurred - Contact Tarvane\n,OpenKorvCommon")));
    session.Exit();
    EXPECT_EQ(ReadFile(Paths().CommonFile()), "rubbish");
}

TEST_F(SessionTest, ASeasonRemovedByHandLosesItsMarkOnce) {
    PlayADay("Gone");
    fs::remove_all(Paths().SeasonFolder("Gone"));
    Session session(messages);
    EXPECT_EQ(session.StartUp(environment), StartResult::Running);
    EXPECT_FALSE(session.Seasons().SeasonOpen());
    EXPECT_EQ(session.Seasons().ActiveSeason(), "");
    session.Seasons().CheckActiveSeason();
    EXPECT_THAT(messages.lines, ElementsAre("Tarvane Baseball: Active season database file not found. Choose another "
                                            "Active Season."));
    EXPECT_FALSE(session.Seasons().SetActiveSeason(ListSeasons(session.Common()).at(0).LeagueID));
    EXPECT_EQ(messages.lines.back(), "Choose an Active Season: Season database file not found. Choose another Season.");
    session.Exit();
    EXPECT_TRUE(NothingActive());
}

TEST_F(SessionTest, ADamagedSeasonLosesItsMark) {
    for (const std::string& content :
         std::vector<std::string>{"", "not a database", std::string("\0\1\0\0Standard Jet DB", 19)}) {
        messages.lines.clear();
        fs::remove_all(Paths().SeasonFolder("Bad"));
        PlayADay("Bad");
        WriteFile(Paths().SeasonFile("Bad"), content);
        Session session(messages);
        EXPECT_EQ(session.StartUp(environment), StartResult::Running);
        EXPECT_THAT(messages.lines, ElementsAre(HasSubstr("There was an error opening the Active Season database")));
        session.Exit();
        EXPECT_TRUE(NothingActive());
        EXPECT_EQ(ReadFile(Paths().SeasonFile("Bad")), content);
    }
}

TEST_F(SessionTest, ASeasonWithoutRulesIsLogged) {
    PlayADay("Odd");
    Database(Paths().SeasonFile("Odd")).Execute("DELETE FROM LeagueRules");
    Session session(messages);
    EXPECT_EQ(session.StartUp(environment), StartResult::Failed);
    EXPECT_THAT(ReadFile(Paths().ErrorLog()), testing::StartsWith("Module1, CheckActiveSeason,Runtime Error: 3021"));
}

TEST_F(SessionTest, ExitCompacts) {
    PlayADay("Fat");
    const std::uintmax_t before = fs::file_size(Paths().CommonFile());
    const auto fill = [](Database& db) {
        db.Execute("CREATE TABLE Ballast (t TEXT)");
        db.Execute(
            "INSERT INTO Ballast WITH RECURSIVE n(i) AS (VALUES(1) UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
            "SELECT hex(randomblob(200)) FROM n");
        db.Execute("DROP TABLE Ballast");
    };
    for (const bool failed : {false, true}) {
        Session session(messages);
        ASSERT_EQ(session.StartUp(environment), StartResult::Running);
        fill(session.Common());
        fill(session.Seasons().Season());
        WriteFile(Paths().SeasonTempFile("Fat"), "left over");
        session.Log().errorFlag = failed;
        session.Exit();
        EXPECT_EQ(fs::file_size(Paths().CommonFile()) > before + (1U << 20), failed);
        EXPECT_LT(fs::file_size(Paths().SeasonFile("Fat")), 1U << 20);
        EXPECT_FALSE(fs::exists(Paths().SeasonTempFile("Fat")));
        EXPECT_FALSE(fs::exists(Paths().CommonTempFile()));
    }
    EXPECT_EQ(LoadLeagueRules(*std::make_unique<Database>(Paths().SeasonFile("Fat"))).RelieverMaxIPOuts, 15);
}

TEST_F(SessionTest, TheLogHoldsTheLastFailure) {
    ErrorLog log(messages);
    log.SetPath(folder / "log.txt");
    log.InternetMessage = std::string(300, 'm');
    log.LogRuntimeError("frmA,One", std::runtime_error("first\nsecond"));
    log.LogRuntimeError("frmB,Two", UserError("bad"));
    EXPECT_EQ(ReadFile(folder / "log.txt"), "frmB,Two,Runtime Error: 5 - bad\r\n");
    EXPECT_EQ(messages.lines[0],
              "Tarvane Baseball: Run Time Error Occurred - Contact Tarvane\nfrmA,One,Runtime Error: "
              "51 - first second\n" +
                  std::string(255, 'm'));
    log.SetPath(folder / "no folder/log.txt");
    log.LogRuntimeError("frmC,Three", UserError("full disk"));
    EXPECT_EQ(messages.lines.size(), 3U);
}

TEST_F(SessionTest, SeasonNamesAndFiles) {
    for (const char* bad : {"", "  ", "O'Neil", "a/b", "..", ".x", "x.", "a\\b", "C:", " x", "x ", "a\nb", "a*"})
        EXPECT_THROW(CheckSeasonName(bad), UserError) << bad;
    for (const char* good : {"1975 NL", "My League", "Liga M\xC3\xA9xico", "A & B"})
        EXPECT_NO_THROW(CheckSeasonName(good));
    CreateSeasonFile(Paths(), "X");
    Database(Paths().SeasonFile("X")).Execute("DELETE FROM LeagueRules");
    EXPECT_THROW(CreateSeasonFile(Paths(), "X"), UserError);
    EXPECT_EQ(Database(Paths().SeasonFile("X")).OpenRecordset("LeagueRules").RecordCount(), 0);
    CreateSeasonFile(Paths(), "X", true);
    EXPECT_EQ(Database(Paths().SeasonFile("X")).OpenRecordset("LeagueRules").RecordCount(), 1);
    fs::remove(Paths().BaseFile());
    EXPECT_THROW(CreateSeasonFile(Paths(), "Y"), UserError);

    Database common(Paths().CommonFile());
    const std::int64_t id = AddSeasonEntry(common, "X");
    common.Execute("UPDATE SeasonsDB SET TourneyMode = -1");
    EXPECT_EQ(AddSeasonEntry(common, "X"), id);
    EXPECT_FALSE(common.OpenRecordset("SeasonsDB").GetBool("TourneyMode"));
}

TEST_F(SessionTest, OldRulesReadByTheirAge) {
    PlayADay("Old");
    Database season(Paths().SeasonFile("Old"));
    season.Execute(
        "UPDATE LeagueRules SET TourneyType = 'P', TourneyMode = -1, FactorActualUsage = -1, "
        "IgnoreSchedLineups = -1, DefChartEraID = NULL, OFOutOfPosErrorRating = '', CFOutOfPosErrorRating = 'K'");
    LeagueRules rules;
    rules.DefChartEraID = 1;
    LoadLeagueRules(season, 28, rules);
    EXPECT_EQ(rules.TourneyType, "");
    EXPECT_FALSE(rules.TourneyMode);
    EXPECT_EQ(rules.DefChartEraID, 1);
    EXPECT_EQ(rules.OFOutOfPosErrorRating, 'Z');
    EXPECT_EQ(rules.CFOutOfPosErrorRating, 'K');
    LoadLeagueRules(season, 32, rules);
    EXPECT_EQ(rules.TourneyType, "P");
    EXPECT_TRUE(rules.FactorActualUsage);
    EXPECT_FALSE(rules.IgnoreSchedLineups);
    LoadLeagueRules(season, 33, rules);
    EXPECT_TRUE(rules.IgnoreSchedLineups);
}

TEST_F(SessionTest, OldPreferencesAreBroughtUpToDate) {
    Database common(Paths().CommonFile());
    common.Execute(
        "UPDATE GameSettings SET GameAnimation = -1, MainMenuImage = 'C:\\Park\\x.jpg', InternetLocalPort = 5010");
    for (const ColumnDef& column : FindTableDef("GameSettings")->columns)
        if (column.missingAt > 0) common.Execute("ALTER TABLE GameSettings DROP COLUMN " + column.name);
    for (int spare = 1; spare <= 3; ++spare)
        common.Execute("ALTER TABLE GameSettings ADD COLUMN Older" + std::to_string(spare));
    ASSERT_EQ(common.FieldCount("GameSettings"), 83);
    UpgradeCommonTables(common);
    const GameSettings settings = LoadGameSettings(common);
    EXPECT_TRUE(settings.BaseRunnerAnimation);
    EXPECT_FALSE(settings.GameAnimationLite);
    EXPECT_EQ(settings.InternetPauseTime, 5);
    EXPECT_EQ(settings.PlayByPlayFontSize, 9);
    EXPECT_EQ(settings.ReportsFontSize, 8);
    EXPECT_EQ(settings.MainMenuImage, "x.jpg");
    EXPECT_EQ(settings.InternetLocalPort, 1001);
    EXPECT_EQ(common.OpenRecordset("GameSettings").GetInt("InternetLocalPort"), 1001);
    const int fields = common.FieldCount("GameSettings");
    common.Execute("UPDATE GameSettings SET PlayerCardMode = -1, InternetPauseTime = 9");
    UpgradeCommonTables(common);
    EXPECT_EQ(common.FieldCount("GameSettings"), fields);
    EXPECT_TRUE(LoadGameSettings(common).PlayerCardMode);
    EXPECT_EQ(LoadGameSettings(common).InternetPauseTime, 9);
}

TEST_F(SessionTest, PreferencesComeBackAsSaved) {
    Database common(Paths().CommonFile());
    GameSettings settings = LoadGameSettings(common);
    settings.Sound[24] = "crowd.wav";
    settings.GameAniSpeed2 = 0.33;
    settings.MainGridsForeColor = 0xFF0000;
    settings.BetweeInnRandom = true;
    settings.ResultsFormat = "T";
    SaveGameSettings(common, settings);
    const GameSettings back = LoadGameSettings(common);
    EXPECT_EQ(back.Sound[24], "crowd.wav");
    EXPECT_EQ(back.GameAniSpeed2, 0.33);
    EXPECT_EQ(back.MainGridsForeColor, 0xFF0000);
    EXPECT_TRUE(back.BetweeInnRandom);
    EXPECT_EQ(back.ResultsFormat, "T");
    settings.DBVersion = 1;
    settings.GameAniSpeed2 = 1.67;
    SaveGameSettings(common, settings);
    EXPECT_EQ(LoadGameSettings(common).GameAniSpeed2, 1);  // not read from data of the first version

    ScreenSettings screens = LoadScreenSettings(common);
    EXPECT_EQ(screens.place.size(), 17U);
    screens.place["TeamvsTeam"] = {600, 800, 2};
    screens.place["Game"] = {1, 2, 0};
    screens.CondensedBoxScore = true;
    SaveScreenSettings(common, screens);
    EXPECT_EQ(LoadScreenSettings(common).place, screens.place);
    EXPECT_TRUE(LoadScreenSettings(common).CondensedBoxScore);

    EXPECT_TRUE(LoadGamePlaySounds(common).empty());
    common.Execute("UPDATE GamePlaySounds SET HomeHR = 'hr.wav'");
    EXPECT_EQ(LoadGamePlaySounds(common).at("HomeHR"), "hr.wav");
    EXPECT_EQ(SoundFile(Paths(), " "), fs::path());
    WriteFile(Paths().BallparkImages() / "Mine.jpg", "x");
    settings.MainMenuImage = "Mine.jpg";
    EXPECT_EQ(MainMenuImageFile(Paths(), settings).filename(), "Mine.jpg");
    settings.MainMenuImage = "Gone.jpg";
    EXPECT_EQ(MainMenuImageFile(Paths(), settings).filename(), "BallparkArlington2.JPG");
}

}  // namespace tarvane
