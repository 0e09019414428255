#include <fmt/format.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "base/error.h"
#include "base/file.h"
#include "scenariotable.h"

namespace tarvane::scenario {

// How a failing test names its scenario.
void PrintTo(const Scenario& scenario, std::ostream* out) {
    *out << scenario.file << ":" << scenario.line << " " << scenario.name;
}

namespace {

// A file that can't be read becomes one scenario that fails with the reason.
std::vector<Scenario> LoadScenarios() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(TARVANE_TEST_DIR))
        if (entry.path().extension() == ".scn") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<Scenario> all;
    for (const auto& file : files) {
        try {
            const std::vector<Scenario> some = ParseScenarios(ReadFile(file), file.filename().string());
            all.insert(all.end(), some.begin(), some.end());
        } catch (const UserError& error) {
            all.push_back({file.filename().string(), error.what(), 1, {}});
        }
    }
    return all;
}

std::string CaseName(const testing::TestParamInfo<Scenario>& info) {
    std::string name = std::filesystem::path(info.param.file).stem().string() + fmt::format("_{:03}_", info.index);
    for (const char c : info.param.name)
        if (std::isalnum(static_cast<unsigned char>(c)) != 0)
            name += c;
        else if (name.back() != '_')
            name += '_';
    return name;
}

class Scenarios : public testing::TestWithParam<Scenario> {};

// The scenario itself, then the same once more from its written record.
TEST_P(Scenarios, ComesOutAsExpected) {
    try {
        ScenarioTable table(GetParam());
        table.Run();
        const ReplayLog log = ParseReplayLog(WriteReplayLog(table.log), GetParam().name);
        EXPECT_EQ(log.steps.size(), table.log.steps.size());
        const ReplayResult replayed = Replay(table.data, table.start, log);
        EXPECT_TRUE(replayed.same) << replayed.difference;
        EXPECT_EQ(replayed.state, table.state);
    } catch (const UserError& error) {
        FAIL() << error.what();
    }
}

INSTANTIATE_TEST_SUITE_P(Files, Scenarios, testing::ValuesIn(LoadScenarios()), CaseName);

// --- Faults of the files ---

std::string FaultOf(const std::string& text) {
    try {
        const std::vector<Scenario> scenarios = ParseScenarios(text, "a.scn");
        for (const Scenario& scenario : scenarios) ScenarioTable(scenario).Run();
    } catch (const UserError& error) {
        return error.what();
    }
    return "no fault";
}

TEST(ScenarioFile, FaultsNameFileAndLine) {
    const std::pair<const char*, const char*> faults[]{
        {"bases 1 - -\n", "a.scn:1: a statement before the first scenario"},
        {"scenario a\n\nouts 3\n", "a.scn:3: outs is \"3\"; it must be 0 to 2"},
        {"scenario a\nbat \"1 green\n", "a.scn:2: a quote is never closed"},
        {"scenario a\nbat \"1\" pink\n",
         "a.scn:2: the colour is \"pink\"; it must be one of: green, red, blue, yellow, white"},
        {"scenario a\nsteal 2\nexpect outs 0\n", "a.scn:2: refused: There is no runner who could go."},
        {"scenario a\nfly away\n", "a.scn:2: \"fly\" is no statement"},
        {"scenario a\nbat \"1\" green\nouts 1\n", "a.scn:3: the situation is set up before the first play"},
        {"scenario a\nbat \"1\" green\n", "a.scn:1: a scenario that expects nothing"}};
    for (const auto& [text, fault] : faults) EXPECT_EQ(FaultOf(text), fault);
}

// A scenario that comes out otherwise than it says fails its test, at its own line.
TEST(ScenarioFile, WrongExpectationsFail) {
    for (const char* wrong : {"outs 1", "bases 1 - -", "line batter visitor 4 SB=2", "row 3", "awaits extra visitor"}) {
        const std::string text =
            std::string("scenario a\nbases 4 - -; steal 2\nroll steal \"\" green\nexpect ") + wrong;
        const std::vector<Scenario> scenarios = ParseScenarios(text, "wrong.scn");
        EXPECT_NONFATAL_FAILURE(ScenarioTable(scenarios[0]).Run(), "expected");
    }
}

}  // namespace
}  // namespace tarvane::scenario
