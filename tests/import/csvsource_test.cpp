#include <gmock/gmock.h>

#include "import/lahmansource.h"
#include "support.h"

namespace tarvane::test {
namespace {

using ::testing::HasSubstr;

struct Everything {
    std::vector<TeamLine> teams;
    LahmanTables tables;
};

Everything ReadAll(const fs::path& folder, const YearSet& years = {1930, 1950}) {
    LahmanSource source(folder);
    return {source.ReadTeams(), source.ReadYears(years)};
}

void ExpectSame(const Everything& a, const Everything& b) {
    EXPECT_EQ(a.teams, b.teams);
    EXPECT_EQ(a.tables.Batting, b.tables.Batting);
    EXPECT_EQ(a.tables.Pitching, b.tables.Pitching);
    EXPECT_EQ(a.tables.Fielding, b.tables.Fielding);
    EXPECT_EQ(a.tables.FieldingOF, b.tables.FieldingOF);
    EXPECT_EQ(a.tables.FieldingOFSplit, b.tables.FieldingOFSplit);
    EXPECT_EQ(a.tables.Master, b.tables.Master);
}

TEST(CsvSource, ReadsTheYearsWantedInOneOrder) {
    TempFolder folder;
    WriteFiles(folder.Path(), SmallLeague());
    const Everything all = ReadAll(folder.Path(), {1930});

    ASSERT_EQ(all.teams.size(), 3U) << "seasons before 1901 are not offered";
    EXPECT_EQ(all.teams[0].name, "Boston Red Sox");
    EXPECT_EQ(all.teams[1].lgID, "NL");
    EXPECT_EQ(all.tables.Batting.size(), 13U);
    EXPECT_EQ(all.tables.Pitching.size(), 6U);
    EXPECT_EQ(all.tables.Master.size(), 12U) << "a man who played in no wanted year is left out";

    const LahmanBattingLine& first = all.tables.Batting.front();
    EXPECT_EQ(first.playerID, "benchma01");
    const auto& fielding = all.tables.Fielding;
    const auto shortstop =
        std::find_if(fielding.begin(), fielding.end(), [](const auto& f) { return f.playerID == "shortst01"; });
    EXPECT_EQ(shortstop->POS, "SS") << "most games first";
    EXPECT_EQ(shortstop[1].POS, "2B");
    const auto& batting = all.tables.Batting;
    const auto batter =
        std::find_if(batting.begin(), batting.end(), [](const auto& b) { return b.playerID == "shortst01"; });
    EXPECT_EQ(batter->Doubles, 30);
    EXPECT_EQ(batter->CS, std::nullopt) << "not recorded is not 0";
    EXPECT_EQ(all.tables.Master[10].nameFirst, "Bartholomew\xC3\xA9");
    EXPECT_EQ(all.tables.Master[9].nameFirst, "Sid \"Ace\"");
}

// Every edition is written a little differently; the rows are the same.
TEST(CsvSource, EditionsDiffer) {
    TempFolder plainFolder;
    WriteFiles(plainFolder.Path(), SmallLeague());
    const Everything plain = ReadAll(plainFolder.Path());

    Files other = SmallLeague();
    for (auto& [name, text] : other) {
        std::string lines = "\xEF\xBB\xBF";
        for (const char c : text) lines += c == '\n' ? std::string("\r\n") : std::string(1, c);
        text = lines + "\r\n";
    }
    other["MASTER.CSV"] = other["People.csv"];
    other.erase("People.csv");
    other["fieldingofSplit.csv"] = other["FieldingOFsplit.csv"];
    other.erase("FieldingOFsplit.csv");
    other["Teams.csv"] =
        "Extra,name,L,W,divID,FRANCHID,teamID,lgID,yearID\n"
        "a,\"Chicago Cubs\",64,90,,CHC,CHN,NL,1930\n"
        "\"b,c\",Boston Red Sox,60.0,94,,BOS,BOS,AL,1950\n"
        ",Boston Red Sox,102,52,,BOS,BOS,AL,1930\n";
    TempFolder otherFolder;
    fs::create_directory(otherFolder / "core");
    WriteFiles(otherFolder / "core", other);
    ExpectSame(plain, ReadAll(otherFolder.Path()));
    ExpectSame(plain, ReadAll(otherFolder / "core/Teams.csv"));

    fs::remove(otherFolder / "core/fieldingofSplit.csv");
    EXPECT_TRUE(ReadAll(otherFolder.Path()).tables.FieldingOFSplit.empty());
}

TEST(CsvSource, OldEditionsAreLatin1) {
    TempFolder folder;
    Files files = SmallLeague();
    files["People.csv"] = Replaced(files["People.csv"], "\xC3\xA9", "\xE9");
    WriteFiles(folder.Path(), files);
    EXPECT_EQ(ReadAll(folder.Path()).tables.Master[10].nameFirst, "Bartholomew\xC3\xA9");
}

TEST(CsvSource, FaultsAreNamed) {
    struct Case {
        std::string file, what, with;
        std::vector<std::string> told;
    };
    const std::vector<Case> cases{
        {"Batting.csv", ",RBI,", ",RBX,", {"Batting.csv, line 1", "no column RBI"}},
        {"Batting.csv", "AL,40,99,", "AL,40,9x,", {"Batting.csv, line 4", "column AB", "\"9x\"", "whole number"}},
        {"Batting.csv", "AL,40,99,", "AL,40,99999,", {"Batting.csv, line 4", "column AB", "32767"}},
        {"Batting.csv", "AL,40,99,", "AL,40,-9,", {"Batting.csv, line 4", "column AB"}},
        {"Batting.csv", "AL,40,99,", "AL,40,9.5,", {"Batting.csv, line 4", "column AB"}},
        {"Pitching.csv", "3.24", "three", {"Pitching.csv, line 2", "column ERA", "\"three\""}},
        {"Fielding.csv", "shortst01,1930", "shortst01,193O", {"Fielding.csv, line 2", "column yearID", "193O"}},
        {"Fielding.csv", "BOS,AL,SS,", "BOS,AL,,", {"Fielding.csv, line 3", "column POS", "empty"}},
        {"People.csv", "\"Sid \"\"Ace\"\"\"", "\"Sid", {"People.csv, line 6", "never closed"}},
        {"Teams.csv", ",Boston Red Sox\n1950", "\n1950", {"Teams.csv, line 4", "7 cells", "8 columns"}},
    };
    for (const Case& c : cases) {
        TempFolder folder;
        Files files = SmallLeague();
        files[c.file] = Replaced(files[c.file], c.what, c.with);
        WriteFiles(folder.Path(), files);
        const std::size_t before = EntryCount(folder.Path());
        const std::string message = MessageOf([&] { ReadAll(folder.Path()); });
        for (const std::string& told : c.told) EXPECT_THAT(message, HasSubstr(told)) << c.with;
        EXPECT_EQ(EntryCount(folder.Path()), before);
    }
}

TEST(CsvSource, MissingAndEmptyFiles) {
    for (const auto& [name, text] : SmallLeague()) {
        TempFolder folder;
        WriteFiles(folder.Path(), SmallLeague());
        WriteFile(folder / name, "");
        EXPECT_THAT(MessageOf([&] { ReadAll(folder.Path()); }), HasSubstr(name + " is empty"));
        fs::remove(folder / name);
        const std::string message = MessageOf([&] { ReadAll(folder.Path()); });
        if (name == "FieldingOFsplit.csv")
            EXPECT_EQ(message, "");
        else
            EXPECT_THAT(message, HasSubstr("no file " + name));
    }
    EXPECT_THAT(MessageOf([] { LahmanSource("/nowhere/at/all"); }), HasSubstr("/nowhere/at/all"));
}

class ImpatientUser : public Progress {
  public:
    bool Report(std::string_view, int, int) override { return --patience_ > 0; }

  private:
    int patience_ = 3;
};

TEST(CsvSource, StopsWhenAsked) {
    TempFolder folder;
    WriteFiles(folder.Path(), SmallLeague());
    ImpatientUser user;
    EXPECT_THROW(LahmanSource(folder.Path()).ReadYears({1930}, &user), Cancelled);
}

}  // namespace
}  // namespace tarvane::test
