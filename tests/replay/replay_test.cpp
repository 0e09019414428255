// The command line as a person uses it: the program itself is run.

#include <gmock/gmock.h>

#include "program.h"

namespace tarvane {
namespace {

using testing::HasSubstr;

TEST_F(ReplayTest, FromStatisticsToABoxScoreTwiceTheSame) {
    const Outcome made = Run("new-season 'My League' --source " + Sample() + " --year 1975");
    ASSERT_EQ(made.code, 0) << made.err;
    EXPECT_THAT(made.out, HasSubstr("16 teams"));
    EXPECT_THAT(Run("seasons").out, HasSubstr("My League"));

    std::ifstream teams(folder_ / "sample" / "Teams.csv");
    std::string line, codes[2];
    std::getline(teams, line);
    for (std::string& code : codes) {
        std::getline(teams, line);
        const auto second = line.find(',', line.find(',') + 1);
        code = line.substr(second + 1, line.find(',', second + 1) - second - 1);
    }
    const std::string play =
        "play 'My League' --visitor " + codes[0] + " --home " + codes[1] + " --play-by-play --seed 11";
    const Outcome first = Run(play);
    ASSERT_EQ(first.code, 0) << first.err;
    EXPECT_THAT(first.out, HasSubstr("Totals"));
    EXPECT_THAT(first.out, HasSubstr("(W)"));
    EXPECT_THAT(first.out, HasSubstr("Welcome to "));
    EXPECT_EQ(Run(play).out, first.out);
    EXPECT_NE(Run(play + "1").out, first.out);
    EXPECT_THAT(Run("rates 'My League' --games 40").out, HasSubstr("complete games"));
}

TEST_F(ReplayTest, AWrongRequestIsOneSentenceAndLeavesNothing) {
    struct Case {
        const char* words;
        int code;
        const char* says;
    };
    const Case cases[]{{"", 2, ""},
                       {"fly", 2, "unknown command 'fly'"},
                       {"play X --visitor A --home B", 1, "no season \"X\""},
                       {"play X --visitor A", 2, "--home CODE is needed"},
                       {"play X --visitor A --home B --seed 1x", 2, "--seed"},
                       {"new-season X --year 1975 --source", 2, "--source needs a value"},
                       {"new-season X --year 1975 --source /nowhere/at/all", 1, "/nowhere/at/all"},
                       {"new-season X --year 1875 --source SAMPLE", 1, "--year"},
                       {"new-season X --year 1960 --source SAMPLE", 1, "1960"},
                       {"new-season X --year 1975 --team 1975:ZZZ --source SAMPLE", 1, "ZZZ"},
                       {"new-season \"O'Neil\" --year 1975 --source SAMPLE", 1, "'"},
                       {"chart X --player Nobody", 1, "no season"}};
    for (const Case& c : cases) {
        std::string words = c.words;
        if (const auto at = words.find("SAMPLE"); at != std::string::npos) words.replace(at, 6, Sample());
        const Outcome outcome = Run(words);
        EXPECT_EQ(outcome.code, c.code) << words << "\n" << outcome.err;
        EXPECT_THAT(outcome.err, HasSubstr(c.says)) << words;
        EXPECT_LE(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 2) << outcome.err;
    }
    EXPECT_FALSE(std::filesystem::exists(folder_ / "data" / "Data08" / "X"));
}

TEST_F(ReplayTest, EveryCommandHasHelp) {
    const Outcome help = Run("--help");
    EXPECT_EQ(help.code, 0);
    for (const char* command : {"new-season", "seasons", "play", "chart", "bench", "sample-league", "rates"}) {
        EXPECT_THAT(help.out, HasSubstr(command));
        const Outcome own = Run(std::string(command) + " --help");
        EXPECT_EQ(own.code, 0);
        EXPECT_THAT(own.out, HasSubstr(std::string("usage: tarvane-replay ") + command));
    }
}

// Changes exactly when the behaviour of charts, engine or manager does; the commit that changes it says so.
TEST_F(ReplayTest, SignatureOfTheEngine) {
    const Outcome bench = Run("bench --games 300");
    ASSERT_EQ(bench.code, 0) << bench.err;
    const std::string expected = ReadAll(std::string(TARVANE_TEST_DIR) + "/signature.txt");
    ASSERT_EQ(expected.size(), 16U);
    EXPECT_THAT(bench.out, HasSubstr("\nsignature: " + expected + "\n"));
    EXPECT_THAT(bench.out, HasSubstr("\ngames per second: "));
}

}  // namespace
}  // namespace tarvane
