// Works out the year charts and baselines of seasons from the real rates and our own games, and writes the seed table.

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

void PrintRatios(int year, const std::string& league, int round, const LeagueRates& real, const LeagueRates& replay) {
    fmt::print("{} {} {}", year, league, round);
    const auto reals = Listed(real), replays = Listed(replay);
    for (std::size_t i = 0; i < reals.size(); ++i) {
        if (!reals[i].value || *reals[i].value == 0) continue;
        fmt::print(" {} {:.3f}", reals[i].name, *replays[i].value / *reals[i].value);
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
            const LeagueRates real = lab.Real(league);
            const LeagueRates replay = lab.Play(league, round < 2 ? kFirstGames : kLaterGames, kSeed);
            PrintRatios(year, league, round, real, replay);
            adjustment = NextAdjustment(adjustment, facts, EraOf(year, league), real, replay,
                                        lab.OpennessOf(league), GainOf(round));
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
