#include "import/importseason.h"

#include <gmock/gmock.h>

#include "data/seeds.h"
#include "support.h"

namespace tarvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;

// A new data folder with the databases of a first start; they are made once and copied.
class ImportTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        template_ = new TempFolder;
        MakeDataFiles(DetermineDataPath(template_->Path()), AssetsPath() / "seeds");
    }
    static void TearDownTestSuite() {
        delete template_;
        template_ = nullptr;
    }

    ImportTest() : paths_{folder_ / "data"} {
        fs::copy(template_->Path(), paths_.root, fs::copy_options::recursive);
        fs::create_directory(folder_ / "csv");
        WriteFiles(folder_ / "csv", SmallLeague());
        common_ = std::make_unique<Database>(paths_.CommonFile());
        request_.seasonName = "Mine";
        request_.source = folder_ / "csv";
        request_.helper = Helper();
        request_.teams = {{1930, ""}};
    }

    Database Season(const std::string& name = "Mine") { return Database(paths_.SeasonFile(name)); }

    // Everything below the folder of databases, and the catalogue.
    std::vector<std::string> Standing() {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(paths_.root))
            if (const std::string name = entry.path().string(); !name.ends_with("-wal") && !name.ends_with("-shm"))
                names.push_back(name);
        std::sort(names.begin(), names.end());
        for (Recordset rs = common_->OpenRecordset("SeasonsDB"); !rs.EndOfFile(); rs.MoveNext())
            names.push_back(rs.GetText("LeagueName"));
        return names;
    }

    static TempFolder* template_;
    TempFolder folder_;
    DataPaths paths_;
    std::unique_ptr<Database> common_;
    ImportRequest request_;
};
TempFolder* ImportTest::template_ = nullptr;

// One value a row of a query.
std::vector<std::string> Column(Database& season, const std::string& sql) {
    std::vector<std::string> values;
    Statement query = season.Prepare(sql);
    while (query.Step()) values.push_back(query.Text(0));
    return values;
}

TEST_F(ImportTest, MakesAPlayableSeason) {
    int managed = 0;
    request_.generateManagers = [&](Database& season, const LineupChoice&, Progress*) {
        managed = static_cast<int>(Column(season, "SELECT teamID FROM KorvTeams").size());
    };
    const ImportResult result = ImportSeason(request_, paths_, *common_);
    EXPECT_EQ(result.counts.teams, 2);
    EXPECT_EQ(managed, 2);
    EXPECT_THAT(result.counts.notes, ElementsAre(HasSubstr("twospel01")));
    Database season = Season();
    EXPECT_THAT(
        Column(season, "SELECT teamID || shortName || lgIdx || divIdx || ActualWins FROM KorvTeams ORDER BY TeamIdx"),
        ElementsAre("BOSRed Sox1052", "CHNCubs2090"));
    EXPECT_THAT(Column(season, "SELECT lgIdx || shortName || EraID FROM Leagues"), ElementsAre("1AL19301", "2NL19302"));
    EXPECT_THAT(Column(season, "SELECT DISTINCT teamID || lgIdx FROM KorvPitchers ORDER BY 1"),
                ElementsAre("BOS1", "CHN2"));
    EXPECT_THAT(Column(season, "SELECT count(*) FROM Lineups GROUP BY teamID"), ElementsAre("64", "64"));
    EXPECT_THAT(Column(season, "SELECT TeamIndex || vsTeamIndex FROM TeamVsTeam"), ElementsAre("11", "12", "21", "22"));
    EXPECT_THAT(Column(season, "SELECT teamID FROM ComputerManager"), ElementsAre("BOS", "CHN"));
    // Every man has his charts, and the regulars their positions, worked out from the statistics.
    EXPECT_THAT(Column(season, "SELECT count(*) FROM KorvBatters WHERE vsL10 IS NULL OR vsR39 IS NULL"),
                ElementsAre("0"));
    EXPECT_THAT(Column(season, "SELECT count(*) FROM KorvPitchers WHERE pitch10 IS NULL OR Bat39 IS NULL"),
                ElementsAre("0"));
    EXPECT_THAT(Column(season, "SELECT trim(Pos1) || trim(Pos2) FROM KorvBatters WHERE LahmanPlayerID = 'shortst01'"),
                ElementsAre("SS2B"));
    EXPECT_THAT(Column(season, "SELECT vsLeftAB + vsRightAB FROM LahmanBatting WHERE playerID = 'shortst01'"),
                ElementsAre("500"));
    EXPECT_THAT(Column(season, "SELECT PO FROM LahmanFielding WHERE playerID = 'outfiel01' AND Pos = 'RF'"),
                ElementsAre("100.0"));
    Recordset entry = common_->OpenRecordset("SeasonsDB");
    EXPECT_EQ(entry.RecordCount(), 1);
    EXPECT_EQ(entry.GetInt("LeagueID"), result.LeagueID);
    EXPECT_FALSE(entry.GetBool("Active"));
}

TEST_F(ImportTest, SameClubOfTwoYears) {
    request_.teams = {{1930, "BOS"}, {1950, "BOS"}};
    request_.includeYear = true;
    const ImportResult result = ImportSeason(request_, paths_, *common_);
    EXPECT_THAT(result.counts.notes.at(0), HasSubstr("1950 Boston Red Sox has the code BOS50"));
    Database season = Season();
    EXPECT_THAT(Column(season, "SELECT teamID || fullName || lgIdx || divIdx || lgId FROM KorvTeams"),
                ElementsAre("BOS1930 Boston Red Sox11**", "BOS501950 Boston Red Sox11**"));
    EXPECT_THAT(Column(season, "SELECT lgName || shortName || EraID FROM Leagues"), ElementsAre("Mine**19301"));
    EXPECT_THAT(Column(season, "SELECT teamID || KorvTeamID || AB FROM LahmanBatting WHERE playerID = 'outfiel01'"),
                ElementsAre("BOSBOS550", "BOSBOS5020"));
}

TEST_F(ImportTest, FreeAgents) {
    request_.freeAgents = true;
    request_.colors = false;
    ImportSeason(request_, paths_, *common_);
    Database season = Season();
    for (const char* table : {"KorvBatters", "KorvPitchers", "LahmanBatting", "LahmanPitching", "LahmanFielding"})
        EXPECT_THAT(Column(season, std::string("SELECT DISTINCT teamID FROM ") + table), ElementsAre("999")) << table;
    EXPECT_THAT(Column(season, "SELECT DISTINCT lgIdx FROM KorvBatters"), ElementsAre("1"));
    EXPECT_THAT(
        Column(season,
               "SELECT HmForeClr || ' ' || HmBackClr || ' ' || RdForeClr || ' ' || RdBackClr FROM KorvTeams LIMIT 1"),
        ElementsAre("0 16777215 16777215 0"));
}

TEST_F(ImportTest, SameRequestSameFile) {
    request_.splits.RandomNoSplit = true;
    ImportSeason(request_, paths_, *common_);
    request_.seasonName = "Other";
    ImportSeason(request_, paths_, *common_);
    const std::string first = ReadFile(paths_.SeasonFile("Mine"));
    EXPECT_TRUE(first == ReadFile(paths_.SeasonFile("Other")));
    request_.seasonName = "Third";
    request_.seed = 2;
    ImportSeason(request_, paths_, *common_);
    EXPECT_FALSE(first == ReadFile(paths_.SeasonFile("Third"))) << "the seed decides";
}

TEST_F(ImportTest, FigureOfTheErasAndItsOverride) {
    EXPECT_EQ(FindEra(*common_, 1930, "NL"), 19302);
    EXPECT_EQ(FindEra(*common_, 1930, "XL"), 19300) << "all leagues together";
    EXPECT_EQ(FindEra(*common_, 1830, "NL"), std::nullopt);
    ImportSeason(request_, paths_, *common_);
    request_.PAFactor = 0.5;
    request_.seasonName = "Half";
    ImportSeason(request_, paths_, *common_);
    Database season = Season(), half = Season("Half");
    const std::string chance = "SELECT vsRSinglesChance FROM KorvBatters WHERE LahmanPlayerID = 'shortst01'";
    EXPECT_NE(Column(season, chance), Column(half, chance));
}

TEST_F(ImportTest, WrongRequests) {
    const auto standing = Standing();
    const auto message = [&](const std::function<void(ImportRequest&)>& spoil) {
        ImportRequest request = request_;
        spoil(request);
        return MessageOf([&] { ImportSeason(request, paths_, *common_); });
    };
    EXPECT_THAT(message([](auto& r) { r.seasonName = "a/b"; }), HasSubstr("a/b"));
    EXPECT_THAT(message([](auto& r) { r.teams = {}; }), HasSubstr("no teams selected"));
    EXPECT_THAT(message([](auto& r) { r.teams = {{1931, ""}}; }), HasSubstr("1931"));
    EXPECT_THAT(message([](auto& r) { r.PAFactor = 1.5; }), HasSubstr("PA Percentage"));
    EXPECT_THAT(message([](auto& r) { r.splits.LHBAdjust = 0.5; }), HasSubstr("LH Batter"));
    EXPECT_THAT(message([](auto& r) { r.eras = {19301}; }), HasSubstr("2 leagues"));
    EXPECT_THAT(message([](auto& r) { r.eras = {19301, 5}; }), HasSubstr("year effect with the number 5"));
    EXPECT_THAT(message([](auto& r) { r.source = "/nowhere"; }), HasSubstr("/nowhere"));
    EXPECT_THAT(message([](auto& r) { r.retro = true; }), HasSubstr("Retrosheet_Splits"));
    EXPECT_EQ(Standing(), standing);
}

class StopAt : public Progress {
  public:
    explicit StopAt(int report) : left_(report) {}
    bool Report(std::string_view, int, int) override { return left_-- > 0; }
    bool Reached() const { return left_ < 0; }

  private:
    int left_;
};

// Whatever goes wrong, and whenever the user stops it: the data folder is as it was, also the season to be replaced.
TEST_F(ImportTest, NothingIsLeftBehind) {
    ImportSeason(request_, paths_, *common_);
    const std::string before = ReadFile(paths_.SeasonFile("Mine"));
    const auto standing = Standing();
    EXPECT_THAT(MessageOf([&] { ImportSeason(request_, paths_, *common_); }), HasSubstr("already exists"));
    request_.overwrite = true;
    request_.seed = 99;

    int report = 0;
    for (bool reached = true; reached; ++report) {
        for (const char* name : {"Mine", "New"}) {
            StopAt stop(report);
            request_.seasonName = name;
            bool cancelled = false;
            try {
                ImportSeason(request_, paths_, *common_, &stop);
            } catch (const Cancelled&) {
                cancelled = true;
            }
            reached = stop.Reached();
            EXPECT_EQ(cancelled, reached);
            if (!reached) break;
            ASSERT_EQ(Standing(), standing) << "stopped at report " << report;
        }
    }
    EXPECT_GT(report, 8) << "it asks at every step";
    EXPECT_NE(ReadFile(paths_.SeasonFile("Mine")), before) << "unless it is let through";

    const std::string now = ReadFile(paths_.SeasonFile("Mine"));
    request_.seasonName = "Mine";
    request_.generateManagers = [](Database&, const LineupChoice&, Progress*) { throw UserError("no managers today"); };
    EXPECT_EQ(MessageOf([&] { ImportSeason(request_, paths_, *common_); }), "no managers today");
    request_.generateManagers = {};
    WriteFile(folder_ / "csv/Fielding.csv", Replaced(SmallLeague()["Fielding.csv"], "128", "12x"));
    EXPECT_THAT(MessageOf([&] { ImportSeason(request_, paths_, *common_); }),
                HasSubstr("Fielding.csv, line 3, column G"));
    EXPECT_EQ(Standing(), standing);
    EXPECT_TRUE(ReadFile(paths_.SeasonFile("Mine")) == now);
}

TEST_F(ImportTest, PicturesOfTeamsAndPlayers) {
    for (const char* name : {"new red SOX.jpg", "RedSox.gif", "bigredsox.BMP", "redsox.txt"})
        WriteFile(paths_.TeamImages() / name, "x");
    for (const char* name : {"Ossie_OutfieldBOS.jpg", "Ossie_Outfield.jpg", "Sam_Shortstop.png", "Ben_BenchCHN.jpg"})
        WriteFile(paths_.PlayerImages() / name, "x");
    request_.assignImages = true;
    ImportSeason(request_, paths_, *common_);
    Database season = Season();
    EXPECT_THAT(Column(season, "SELECT ImageFile FROM KorvTeams WHERE teamID = 'BOS'"), ElementsAre("bigredsox.BMP"));
    const std::string image = "SELECT ImageFile FROM KorvBatters WHERE LahmanPlayerID = ";
    EXPECT_THAT(Column(season, image + "'outfiel01'"), ElementsAre("Ossie_OutfieldBOS.jpg"));
    EXPECT_THAT(Column(season, image + "'shortst01'"), ElementsAre("Sam_Shortstop.png"));
    EXPECT_THAT(Column(season, image + "'benchma01'"), ElementsAre("")) << "another team's";
}

TEST_F(ImportTest, RealSeasonFromCsvAndAccess) {
    const auto data = RealData();
    if (!data) GTEST_SKIP() << "TARVANE_REAL_DATA names no folder";
    fs::copy_file(*data / "retrosheet/Retrosheet_Splits_1961-1977.xls",
                  paths_.Data08() / "Retrosheet_Splits_1961-1977.xls");
    request_.teams = {{1975, ""}};
    request_.source = *data / "lahman/csv";
    request_.retro = true;
    const ImportResult result = ImportSeason(request_, paths_, *common_);
    EXPECT_EQ(result.counts.teams, 24);
    request_.source = *data / "lahman/lahman_tiny.mdb";
    request_.seasonName = "Other";
    ImportSeason(request_, paths_, *common_);
    EXPECT_TRUE(ReadFile(paths_.SeasonFile("Mine")) == ReadFile(paths_.SeasonFile("Other")));
    Database season = Season();
    EXPECT_THAT(Column(season, "SELECT divName FROM Divisions"), ElementsAre("East", "West", "East", "West"));
    // The real split of the workbook: 1975, Fred Lynn.
    EXPECT_THAT(Column(season, "SELECT vsLeftAB + vsRightAB FROM LahmanBatting WHERE playerID = 'lynnfr01'"),
                ElementsAre("528"));
    EXPECT_THAT(Column(season, "SELECT count(*) FROM KorvTeams WHERE ParkID = 0"), ElementsAre("0"));
}

}  // namespace
}  // namespace tarvane::test
