// The words about a season, from its schedule to what is read off it.

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "base/csv.h"
#include "base/text.h"
#include "core/database.h"
#include "program.h"

namespace tarvane {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;
namespace fs = std::filesystem;

// A season "L" of 16 teams with 8 games a day for 8 days.
class SeasonWords : public ReplayTest {
  protected:
    void SetUp() override {
        fs::remove_all(folder_ / "data");
        ASSERT_EQ(Run("new-season L --source " + Sample() + " --year 1975 --seed 1").code, 0);
        const Outcome made = Run("make-schedule L --games 8");
        ASSERT_THAT(made.out, StartsWith("64 games scheduled from 1975-04-"));
        firstDay_ = made.out.substr(24, 10);
    }
    static void Copy(const std::string& to) { fs::copy(folder_ / "data", folder_ / to, fs::copy_options::recursive); }
    // The line that an error is told in.
    static std::string Refusal(const std::string& words, int code = 1) {
        const Outcome outcome = Run(words);
        EXPECT_EQ(outcome.code, code) << words << "\n" << outcome.err;
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << words << "\n" << outcome.err;
        EXPECT_EQ(outcome.out, "") << words;
        return outcome.err;
    }
    std::string firstDay_;
};

TEST_F(SeasonWords, PlayedInPartsIsPlayedInOne) {
    Copy("parts");
    const Outcome whole = Run("play-season L --seed 4");
    EXPECT_THAT(whole.out, StartsWith("64 games played, 0 left\ngames per second: "));
    EXPECT_GT(ParseInt(Trim(whole.out.substr(whole.out.rfind(' ')))).value_or(0), 0);

    EXPECT_THAT(Run("play-season L --seed 4 --games 3", "parts").out, HasSubstr("3 games played, 61 left"));
    EXPECT_THAT(Run("play-season L --seed 4 --through " + firstDay_, "parts").out,
                HasSubstr("5 games played, 56 left"));
    EXPECT_THAT(Run("play-season L --seed 4 --through " + firstDay_, "parts").out, HasSubstr("0 games played"));
    EXPECT_NE(Run("hash L", "parts").out, Run("hash L").out);
    EXPECT_THAT(Run("play-season L --seed 4 --games 1000", "parts").out, HasSubstr("56 games played, 0 left"));
    EXPECT_EQ(Run("hash L", "parts").out, Run("hash L").out);
    EXPECT_EQ(Run("audit L", "parts").out, "all accounts of 64 games balance\n");
    // Without a seed the run says which it took.
    EXPECT_THAT(Run("play-season L --games 0").err, StartsWith("seed: "));
}

TEST_F(SeasonWords, BoxScoresAsFilesAndFromTheLogs) {
    ASSERT_EQ(Run("play-season L --seed 4 --games 2 --box text").code, 0);
    ASSERT_EQ(Run("play-season L --seed 4 --games 1 --box html").code, 0);
    ASSERT_EQ(Run("play-season L --seed 4 --games 1 --box none").code, 0);
    std::map<std::string, int> files;
    std::string texts;
    for (const auto& file : fs::directory_iterator(folder_ / "data" / "Data08" / "L" / "Game Results")) {
        ++files[file.path().extension().string()];
        if (file.path().extension() == ".txt") texts += ReadAll(file.path());
        if (file.path().extension() == ".htm") {
            EXPECT_THAT(ReadAll(file.path()), HasSubstr("</html>"));
        }
    }
    EXPECT_EQ(files, (std::map<std::string, int>{{".htm", 2}, {".txt", 4}}));
    for (const char* game : {"1", "2", "3", "4"}) {
        const std::string box = Run(std::string("box L --game ") + game).out;
        EXPECT_THAT(box, HasSubstr("Totals"));
        EXPECT_EQ(texts.find(box) != std::string::npos, *game < '3') << game;
    }
    EXPECT_THAT(Run("audit L").out, HasSubstr("4 games"));
}

// The rows of each table: as many cells as its heading has, and by the name of their column.
std::vector<std::map<std::string, std::string>> CsvRows(const std::string& text) {
    std::vector<std::map<std::string, std::string>> rows;
    std::vector<std::string> heading;
    CsvReader reader(text, "output");
    std::vector<std::string_view> cells;
    while (reader.Next(cells)) {
        if (cells.size() == 1 && cells[0].empty()) {
            heading.clear();
            continue;
        }
        if (heading.empty()) {
            heading.assign(cells.begin(), cells.end());
            continue;
        }
        EXPECT_EQ(cells.size(), heading.size()) << reader.Line();
        auto& row = rows.emplace_back();
        for (std::size_t i = 0; i < std::min(cells.size(), heading.size()); ++i) row[heading[i]] = cells[i];
    }
    return rows;
}

TEST_F(SeasonWords, ReportsForPeopleAndForPrograms) {
    ASSERT_EQ(Run("play-season L --seed 4").code, 0);
    const std::string best = CsvRows(Run("leaders L --category Hits --top 1 --csv").out).at(0).at("Player");
    const std::string log = "log L --player \"" + best + "\"";
    Database scratch(folder_ / "scratch.mdb", Database::Mode::Create);
    Statement valid = scratch.Prepare("SELECT json_valid(?)");
    for (const std::string& words :
         {std::string("standings L"), std::string("standings L --one-league"), std::string("leaders L --top all"),
          std::string("team-vs-team L"), std::string("team-vs-team L --list"), std::string("schedule-report L"), log}) {
        const Outcome text = Run(words);
        EXPECT_EQ(text.code, 0) << words << text.err;
        EXPECT_GT(std::count(text.out.begin(), text.out.end(), '\n'), 6) << words;
        EXPECT_FALSE(CsvRows(Run(words + " --csv").out).empty()) << words;
        valid.Bind(1, Run(words + " --json").out);
        valid.Step();
        EXPECT_EQ(valid.Int(0), 1) << words;
        valid.Reset();
    }
    const auto sum = [](const std::string& csv, const std::string& column) {
        std::int64_t total = 0;
        for (const auto& row : CsvRows(csv)) total += ParseInt(row.at(column)).value_or(-1000);
        return total;
    };
    const std::string standings = Run("standings L --csv").out;
    EXPECT_EQ(sum(standings, "W"), 64);
    EXPECT_EQ(sum(standings, "RF"), sum(standings, "RA"));
    EXPECT_EQ(std::to_string(sum(Run(log + " --csv").out, "H")),
              CsvRows(Run("leaders L --category Hits --top 1 --csv").out).at(0).at("Value"));
    EXPECT_EQ(sum(Run("leaders L --category Saves --top all --csv").out, "Value"),
              sum(Run("leaders L --category Saves --top all --csv --league AL").out, "Value") +
                  sum(Run("leaders L --category Saves --top all --csv --league NL").out, "Value"));
}

TEST_F(SeasonWords, ScheduleFilesOfAllKindsOfLines) {
    const fs::path file = folder_ / "made.txt", odd = folder_ / "odd.txt";
    ASSERT_EQ(Run("export-schedule L " + file.string()).code, 0);
    const std::string report = Run("schedule-report L --csv").out;
    const std::string lines = ReadAll(file);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 64);
    EXPECT_THAT(lines, EndsWith("\r\n"));
    // The same games by another hand: a line of headings, single line ends, no quotes, blank lines, an end-of-file
    // mark.
    std::string other =
        "Date,Num,Day,Visitor,League,Game,Home,League,Game,Time,Postponed,Makeup\n\n" + lines + "\n\x1a\n";
    std::erase(other, '\r');
    std::erase(other, '"');
    std::ofstream(odd, std::ios::binary) << other;
    for (const auto& [path, words] : {std::pair{odd, " --no-lineups"}, std::pair{file, ""}}) {
        const Outcome taken = Run("import-schedule L " + path.string() + words);
        const std::string planned = path == file ? "128 line-ups planned by the men's real use\n" : "";
        EXPECT_EQ(taken.out, "64 games scheduled\n" + planned) << taken.err;
        EXPECT_EQ(Run("schedule-report L --csv").out, report);
        EXPECT_EQ(Run("export-schedule L " + (folder_ / "again.txt").string() + " --overwrite").code, 0);
        EXPECT_EQ(ReadAll(folder_ / "again.txt"), lines);
    }
    ASSERT_EQ(Run("play-season L --seed 4 --games 2").code, 0);
    EXPECT_THAT(Refusal("import-schedule L " + file.string()), HasSubstr("2 games of this schedule have been played"));
    EXPECT_THAT(Run("import-schedule L " + file.string() + " --replace").out, HasSubstr("taken away"));
    EXPECT_EQ(Run("audit L").out, "all accounts of 0 games balance\n");
}

TEST_F(SeasonWords, WhatCantBeDoneIsOneSentence) {
    ASSERT_EQ(Run("new-season Bare --source " + Sample() + " --year 1975 --seed 1").code, 0);
    ASSERT_EQ(Run("play-season L --seed 4 --games 2").code, 0);
    const std::string before = Run("hash L").out;
    std::ofstream(folder_ / "short.txt") << "\"19750407\",\"0\",\"Mon\"\n";
    std::ofstream(folder_ / "date.txt") << "19750431,0,Mon,AAA,X,1,BBB,X,1,D,,\n";
    const std::string folder = folder_.string() + "/";
    const std::pair<std::string, const char*> cases[]{
        {"play-season Nowhere", "there are: \"Bare\", \"L\""},
        {"play-season Bare", "import-schedule \"Bare\" FILE"},
        {"play-season L --through 1975-02-30", "\"1975-02-30\" is no date"},
        {"play-season L --box pdf", "text, html or none"},
        {"play-season L --games many", "--games"},
        {"import-schedule L " + folder + "none.txt", "none.txt"},
        {"import-schedule Bare " + folder + "short.txt", "short.txt, line 1"},
        {"import-schedule Bare " + folder + "date.txt", "date is not valid - Line 1"},
        {"import-schedule Bare " + folder, "is a folder"},
        {"import-schedule Bare " TARVANE_REPLAY, "line 1"},
        {"export-schedule L " + folder + "short.txt", "--overwrite"},
        {"box L --game 9999", "no game 9999"},
        {"box L --game 64", "64"},
        {"log L --player Nobody", "\"Nobody\""},
        {"leaders L --category Luck", "Stolen Bases"},
        {"leaders L --league XL", "there are: "},
        {"leaders L --top 0", "--top"},
        {"team-vs-team L --team ZZZ", "ZZZ"},
        {"standings L --csv --json", "not both"},
        {"hash Nowhere", "no season"},
        {"audit Nowhere", "no season"},
    };
    for (const auto& [words, says] : cases) {
        const std::string command = words.substr(0, words.find(' '));
        EXPECT_THAT(Refusal(words), AllOf(StartsWith("tarvane-replay " + command + ": "), HasSubstr(says))) << words;
    }
    Refusal("box L", 2);
    Refusal("import-schedule L", 2);
    EXPECT_EQ(Run("hash L").out, before);
    Database(folder_ / "data" / "Data08" / "L" / "Korv L.mdb")
        .Execute("UPDATE KorvTeams SET W = W + 1 WHERE TeamIdx = 3");
    const Outcome wrong = Run("audit L");
    EXPECT_EQ(wrong.code, 1);
    EXPECT_THAT(wrong.out, HasSubstr("a team and its games: 3, W: "));
    EXPECT_THAT(wrong.err, HasSubstr("accounts don't balance"));
}

}  // namespace
}  // namespace tarvane
