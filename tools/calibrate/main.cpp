// Works out the year charts and baselines of seasons from the real rates and our own games, and writes the seed table.
//
// For each year the season is made from the Lahman tables as a user makes it, games between all clubs of a league are
// played by computer managers, and what is measured moves the year's row (yearfit.h): the pitchers' baselines give hits
// and strikeouts, the batters' walks and hit batsmen, the runs-batted-in baseline runs (it doubles the outs that bring
// runners home), the fielders' errors, and the chart doubles, triples and home runs, which it makes of singles or turns
// into them. Seven rounds with a fixed seed; a step shrinks as the noise of the games begins to count. The chart that
// is kept is the last one found.

#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>
#include <exception>

#include "base/error.h"
#include "base/text.h"
#include "yearfit.h"

namespace tarvane::calibrate {

namespace {

constexpr const char* kUsage =
    "usage: tarvane-calibrate LAHMAN_FOLDER [FIRST LAST [STEP]]   calibrate every STEP-th year, write the seeds\n"
    "       tarvane-calibrate LAHMAN_FOLDER check FIRST LAST [STEP]   play the seeds as they are and show the rates\n"
    "       tarvane-calibrate apply   write the seeds from the facts and the adjustments as they are\n";

constexpr int kRounds = 7;
constexpr long kFirstGames = 3000, kLaterGames = 8000;  // of a league in a round
constexpr long kCheckGames = 10000;
constexpr std::uint64_t kSeed = 20010;

// What is worked on, all in the source tree.
struct Files {
    std::filesystem::path seeds = AssetsPath() / "seeds";
    std::filesystem::path tools = AssetsPath().parent_path() / "tools" / "calibrate";
    std::filesystem::path Facts() const { return tools / "EraFacts.csv"; }
    std::filesystem::path Adjusted() const { return tools / "EraAdjustments.csv"; }
    std::filesystem::path Seed() const { return seeds / "KorvYears.csv"; }
};

struct Years {
    int first = 1901, last = 2024, step = 1;
};

std::filesystem::path ScratchFolder() {
    return std::filesystem::temp_directory_path() / fmt::format("tarvane-calibrate-{}", getpid());
}

std::int32_t EraOf(int year, const std::string& league) {
    return year * 10 + (league == "AL" ? 1 : league == "NL" ? 2 : 3);
}

// Replayed over real rates.
void PrintRatios(int year, const std::string& league, int round, const Counts& real, const Counts& replay) {
    fmt::print("{} {} {}", year, league, round);
    for (const LeagueRate& rate : LeagueRates()) {
        const auto is = RateOf(rate, replay), was = RateOf(rate, real);
        if (is && was && *was > 0) fmt::print(" {} {:.3f}", rate.name, *is / *was);
    }
    fmt::print("\n");
    std::fflush(stdout);
}

double GainOf(int round) {
    return round < 3 ? 1.0 : 2.0 / round;
}

void CalibrateYear(int year, Laboratory& lab, const EraTable& facts, Adjustments& adjustments) {
    std::map<std::string, Adjustment> trial;
    for (const char* league : {"AL", "NL"}) trial[league] = UsualAdjustment();
    for (int round = 0; round < kRounds; ++round) {
        for (const auto& [league, adjustment] : trial)
            lab.SetEra(EraOf(year, league), facts.Adjusted(EraOf(year, league), adjustment));
        lab.MakeSeason(year);
        for (auto& [league, adjustment] : trial) {
            const Counts real = lab.Real(league);
            const Counts replay = lab.Play(league, round < 2 ? kFirstGames : kLaterGames, kSeed);
            PrintRatios(year, league, round, real, replay);
            adjustment = NextAdjustment(adjustment, facts, EraOf(year, league), real, replay, lab.OpennessOf(league),
                                        GainOf(round));
        }
    }
    for (const auto& [league, adjustment] : trial) adjustments[EraOf(year, league)] = adjustment;
}

void Calibrate(const std::filesystem::path& source, const Years& years) {
    const Files files;
    const EraTable facts(files.Facts());
    Adjustments adjustments = ReadAdjustments(files.Adjusted());
    const std::filesystem::path scratch = ScratchFolder();
    {
        Laboratory lab(scratch, files.seeds, source);
        for (int year = years.first; year <= years.last; year += years.step) {
            CalibrateYear(year, lab, facts, adjustments);
            WriteAdjustments(files.Adjusted(), adjustments);  // what is done is kept if the run is stopped
        }
    }
    std::filesystem::remove_all(scratch);
    facts.WriteSeed(files.Seed(), adjustments);
}

void Check(const std::filesystem::path& source, const Years& years) {
    const std::filesystem::path scratch = ScratchFolder();
    {
        Laboratory lab(scratch, Files().seeds, source);
        for (int year = years.first; year <= years.last; year += years.step) {
            lab.MakeSeason(year);
            for (const std::string& league : lab.Leagues())
                PrintRatios(year, league, 0, lab.Real(league), lab.Play(league, kCheckGames, kSeed));
        }
    }
    std::filesystem::remove_all(scratch);
}

Years YearsOf(const std::vector<std::string>& words) {
    Years years;
    if (words.size() == 1 || words.size() > 3) throw UserError(kUsage);
    int* const fields[] = {&years.first, &years.last, &years.step};
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto number = ParseInt(words[i]);
        if (!number || *number < 1 || *number > 9999) throw UserError(kUsage);
        *fields[i] = static_cast<int>(*number);
    }
    return years;
}

void Run(std::vector<std::string> words) {
    if (words.empty()) throw UserError(kUsage);
    const std::string source = words.front();
    words.erase(words.begin());
    if (source == "apply" && words.empty()) {
        const Files files;
        return EraTable(files.Facts()).WriteSeed(files.Seed(), ReadAdjustments(files.Adjusted()));
    }
    const bool check = !words.empty() && words.front() == "check";
    if (check) words.erase(words.begin());
    check ? Check(source, YearsOf(words)) : Calibrate(source, YearsOf(words));
}

}  // namespace

}  // namespace tarvane::calibrate

int main(int argc, char** argv) {
    try {
        tarvane::calibrate::Run({argv + 1, argv + argc});
        return 0;
    } catch (const std::exception& error) {
        fmt::print(stderr, "{}\n", error.what());
        return 1;
    }
}
