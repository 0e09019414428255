#include "data/seeds.h"

#include <gmock/gmock.h>

#include "base/file.h"
#include "base/tempfolder.h"
#include "data/schema.h"

namespace tarvane {

namespace fs = std::filesystem;

namespace {

std::string LoadError(const TempFolder& folder, const std::string& csv) {
    const fs::path file = folder / "Leagues.csv";
    WriteFile(file, csv);
    fs::remove(folder / "db.mdb");
    Database db(folder / "db.mdb", Database::Mode::Create);
    CreateTable(db, *FindTableDef("Leagues"));
    std::string message = "none";
    try {
        LoadSeed(db, "Leagues", file);
    } catch (const UserError& error) {
        message = error.what();
        EXPECT_EQ(db.OpenRecordset("Leagues").RecordCount(), 0) << csv;
    }
    return message;
}

}  // namespace

TEST(Seeds, FaultsNameFileLineAndColumnAndLeaveNothing) {
    TempFolder folder;
    const std::string ok = "# from a book\nlgname,LGIDX,EraID\n";
    EXPECT_EQ(LoadError(folder, ok + "A,1,\n\"B, \"\"b\"\"\",2,-3\n"), "none");
    using testing::AllOf;
    using testing::HasSubstr;
    EXPECT_THAT(LoadError(folder, ok + "A,1,\nB,x,\n"),
                AllOf(HasSubstr("Leagues.csv, line 4"), HasSubstr("LGIDX"), HasSubstr("\"x\"")));
    EXPECT_THAT(LoadError(folder, ok + "A,40000,\n"), HasSubstr("outside the range"));
    EXPECT_THAT(LoadError(folder, ok + "A,1\n"), HasSubstr("2 fields where the heading has 3"));
    EXPECT_THAT(LoadError(folder, "lgName,Nmae\n"), AllOf(HasSubstr("line 1"), HasSubstr("Nmae")));
    EXPECT_THAT(LoadError(folder, "lgName,LGNAME\n"), HasSubstr("twice"));
    EXPECT_THAT(LoadError(folder, "# nothing\n"), HasSubstr("no line of column names"));
    EXPECT_THAT(LoadError(folder, ok + "\"A,1,2\n"), HasSubstr("never closed"));
}

TEST(Seeds, FirstStartMakesTheDataFiles) {
    TempFolder folder;
    const DataPaths paths = DetermineDataPath(folder / "data");
    WriteFile(paths.CommonFile().string() + ".part", "left over from a crash");
    MakeDataFiles(paths, AssetsPath() / "seeds");
    for (const fs::directory_entry& entry : fs::directory_iterator(paths.Data08()))
        EXPECT_NE(entry.path().extension(), ".part") << entry.path();
    {
        Database common(paths.CommonFile());
        EXPECT_FALSE(common.HasTable("DefensiveEras"));
        for (const auto& [table, rows] : std::map<std::string, int>{{"KorvMgrDecChart", 6},
                                                                    {"KorvBuntChart", 4},
                                                                    {"KorvStolenBaseChart", 18},
                                                                    {"KorvErrorRating", 23},
                                                                    {"KorvFieldingDetermination", 7},
                                                                    {"KorvYellowXChartBasic", 1},
                                                                    {"KorvYellowXChartInjuries", 3},
                                                                    {"GameSettings", 1},
                                                                    {"ScreenSettings", 1},
                                                                    {"GamePlaySounds", 1},
                                                                    {"SeasonsDB", 0}})
            EXPECT_EQ(common.OpenRecordset(table).RecordCount(), rows) << table;
        EXPECT_EQ(common.OpenRecordset("KorvYears", "EraName = ?", {std::string("1975 Combined")}).RecordCount(), 1);
        EnsureDefensiveEras(common, paths.DefensiveErasFile());
        EXPECT_GT(common.OpenRecordset("DefensiveEras").GetInt("EndRange18"), 40);
        WriteFile(paths.DefensiveErasFile(), "rubbish");
        EnsureDefensiveEras(common, paths.DefensiveErasFile());  // read once only
        common.Execute("DROP TABLE DefensiveEras");
        EXPECT_THROW(EnsureDefensiveEras(common, paths.DefensiveErasFile()), UserError);
        EXPECT_FALSE(common.HasTable("DefensiveEras"));
    }
    Database base(paths.BaseFile());
    EXPECT_EQ(base.OpenRecordset("LeagueRules").GetInt("RelieverMaxIPOuts"), 15);
    EXPECT_EQ(base.OpenRecordset("PitcherRestSettings").RecordCount(), 10);
    EXPECT_EQ(base.OpenRecordset("KorvBatters").RecordCount(), 0);
    const auto written = fs::last_write_time(paths.CommonFile());
    MakeDataFiles(paths, folder / "no seeds here");  // nothing is missing, so nothing is read
    EXPECT_EQ(fs::last_write_time(paths.CommonFile()), written);
}

TEST(Seeds, ABadSeedLeavesNoFileBehind) {
    TempFolder folder;
    const DataPaths paths = DetermineDataPath(folder / "data");
    fs::copy(AssetsPath() / "seeds", folder / "seeds");
    fs::remove(folder / "seeds/KorvYears.csv");
    EXPECT_THROW(MakeDataFiles(paths, folder / "seeds"), UserError);
    EXPECT_TRUE(fs::is_empty(paths.Data08()));
}

}  // namespace tarvane
