// Works out the year charts and baselines of seasons from the real rates and our own games, and writes the seed table.
//
// For each year the season is made from the Lahman tables as a user makes it and replayed by computer managers, and what
// is measured moves the rows of the year's leagues (yearfit.h): the pitchers' baselines give hits,
// strikeouts and home runs, the batters' walks and hit batsmen, the runs-batted-in baseline runs (it doubles the outs that bring
// runners home), the fielders' errors, and the chart doubles and triples, which it makes of singles or turns
// into them. Replays have fixed seeds; a step shrinks as the noise of the games begins to count. Of the later
// rounds the one that came nearest is kept. A year takes about a minute of a processor.

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>

#include "base/error.h"
#include "base/text.h"
#include "parktable.h"
#include "yearfit.h"

namespace tarvane::calibrate {

namespace {

constexpr const char* kUsage =
    "usage: tarvane-calibrate LAHMAN_FOLDER [FIRST LAST [STEP]] [--workers N]\n"
    "           calibrate every STEP-th year, N replays at a time, and write the seeds\n"
    "       tarvane-calibrate LAHMAN_FOLDER check FIRST LAST [STEP] [--workers N]\n"
    "           play the seeds as they are and show the rates\n"
    "       tarvane-calibrate apply   write the seeds of eras and parks from the facts and the adjustments as they are\n";

constexpr int kReplays[] = {1, 2, 3, 4, 6, 8, 10};  // by round
constexpr int kFirstKept = 3;                     // the first round whose replays are enough to judge by
constexpr int kCheckReplays = 10;

// What is worked on, all in the source tree.
struct Files {
    std::filesystem::path seeds = AssetsPath() / "seeds";
    std::filesystem::path tools = AssetsPath().parent_path() / "tools" / "calibrate";
    std::filesystem::path Facts() const { return tools / "EraFacts.csv"; }
    std::filesystem::path Adjusted() const { return tools / "EraAdjustments.csv"; }
    std::filesystem::path Seed() const { return seeds / "KorvYears.csv"; }
    std::filesystem::path Parks() const { return tools / "ParkFacts.csv"; }
    std::filesystem::path Fences() const { return tools / "ParkFences.csv"; }
    std::filesystem::path ParkSeed() const { return seeds / "KorvBallparks.csv"; }
};

struct Years {
    int first = 1901, last = 2024, step = 1;
    int workers = 0;  // processes at a time; 0: as many as there are processors
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

void CalibrateYear(int year, Laboratory& lab, const EraTable& facts, int workers, Adjustments& adjustments) {
    std::map<std::string, Adjustment> trial, best;
    std::map<std::string, double> least;
    for (const char* league : {"AL", "NL"}) trial[league] = UsualAdjustment();
    for (int round = 0; round < static_cast<int>(std::size(kReplays)); ++round) {
        for (const auto& [league, adjustment] : trial)
            lab.SetEra(EraOf(year, league), facts.Adjusted(EraOf(year, league), adjustment));
        lab.MakeSeason(year);
        const auto replays = lab.Replay(kReplays[round], workers);
        for (auto& [league, adjustment] : trial) {
            const Counts real = lab.Real(league);
            const Counts& replay = replays.at(league);
            PrintRatios(year, league, round, real, replay);
            const double miss = MissOf(real, replay);
            if (round >= kFirstKept && (!least.contains(league) || miss < least[league])) {
                best[league] = adjustment;
                least[league] = miss;
            }
            adjustment = NextAdjustment(adjustment, facts, EraOf(year, league), real, replay, lab.OpennessOf(league),
                                        GainOf(round));
        }
    }
    for (const auto& [league, adjustment] : best) adjustments[EraOf(year, league)] = adjustment;
}

void Calibrate(const std::filesystem::path& source, const Years& years) {
    const Files files;
    const EraTable facts(files.Facts());
    Adjustments adjustments = ReadAdjustments(files.Adjusted());
    const std::filesystem::path scratch = ScratchFolder();
    {
        Laboratory lab(scratch, files.seeds, source);
        for (int year = years.first; year <= years.last; year += years.step) {
            CalibrateYear(year, lab, facts, years.workers, adjustments);
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
            for (const auto& [league, replay] : lab.Replay(kCheckReplays, years.workers))
                PrintRatios(year, league, 0, lab.Real(league), replay);
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

int TakeWorkers(std::vector<std::string>& words) {
    const auto option = std::find(words.begin(), words.end(), "--workers");
    if (option == words.end()) return 0;
    const auto number = option + 1 != words.end() ? ParseInt(option[1]) : std::nullopt;
    if (!number || *number < 1 || *number > 256) throw UserError(kUsage);
    words.erase(option, option + 2);
    return static_cast<int>(*number);
}

void Run(std::vector<std::string> words) {
    if (words.empty()) throw UserError(kUsage);
    const std::string source = words.front();
    words.erase(words.begin());
    if (source == "apply" && words.empty()) {
        const Files files;
        EraTable(files.Facts()).WriteSeed(files.Seed(), ReadAdjustments(files.Adjusted()));
        return WriteParkSeed(files.ParkSeed(), FactTable(files.Parks()), ParkFences(files.Fences()),
                             FactTable(files.Facts()));
    }
    const bool check = !words.empty() && words.front() == "check";
    if (check) words.erase(words.begin());
    const int workers = TakeWorkers(words);
    Years years = YearsOf(words);
    years.workers = workers;
    check ? Check(source, years) : Calibrate(source, years);
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
