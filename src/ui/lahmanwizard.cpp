#include "ui/lahmanwizard.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/text.h"
#include "import/importseason.h"
#include "import/retrosplits.h"
#include "season/managerlists.h"

namespace tarvane {

namespace {

// Charts that differ from import to import of the same choices would be worth nothing to people who compare notes.
constexpr std::uint64_t kChartSeed = 1;

bool Holds(const std::string& text, const std::string& words) {
    return ToLower(text).find(ToLower(Trim(words))) != std::string::npos;
}

}  // namespace

LahmanWizard::LahmanWizard(Session& session, const std::filesystem::path& source)
    : session_(session), import_(source, {}, session.Paths(), session.Common()) {}

void LahmanWizard::ReadTeams(Progress* progress) {
    teams_ = import_.ReadTeams(progress);
}

std::vector<std::size_t> LahmanWizard::Listed(const std::string& words) const {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < teams_.size(); ++i)
        if (!teams_[i].Selected && Holds(TeamEntryText(teams_[i]), words)) places.push_back(i);
    return places;
}

void LahmanWizard::Choose(const std::vector<std::size_t>& places) {
    for (const std::size_t place : places) {
        if (teams_.at(place).Selected) continue;
        teams_[place].Selected = true;
        chosen_.push_back(place);
    }
}

void LahmanWizard::Drop(const std::vector<std::size_t>& places) {
    for (const std::size_t place : places) {
        teams_.at(place).Selected = false;
        teams_[place].KorvTeamID = teams_[place].LahmanTeamID;
        chosen_.erase(std::remove(chosen_.begin(), chosen_.end(), place), chosen_.end());
    }
}

std::vector<LahmanTeam> LahmanWizard::ChosenTeams() const {
    std::vector<LahmanTeam> teams;
    for (const std::size_t place : chosen_) teams.push_back(teams_[place]);
    return teams;
}

std::optional<std::pair<std::size_t, std::size_t>> LahmanWizard::Duplicates() const {
    const auto pair = FindDuplicateCode(ChosenTeams());
    if (!pair) return std::nullopt;
    return std::pair{chosen_[pair->first], chosen_[pair->second]};
}

std::string LahmanWizard::GiveCodes(const std::string& first, const std::string& second) {
    const auto pair = Duplicates();
    if (!pair) return {};
    const std::string one(Trim(first)), two(Trim(second));
    if (const std::string wrong = CheckNewCodes(one, two); !wrong.empty()) return wrong;
    teams_[pair->first].KorvTeamID = one;
    teams_[pair->second].KorvTeamID = two;
    return {};
}

std::string LahmanWizard::ProposedName() const {
    const std::vector<LahmanTeam> teams = ChosenTeams();
    return !teams.empty() && SameYear(teams) ? std::to_string(teams.front().yearID) : std::string();
}

bool LahmanWizard::SeasonExists(const std::string& name) const {
    return std::filesystem::exists(session_.Paths().SeasonFile(name));
}

ImportCounts LahmanWizard::Fill(Progress* progress) {
    settings.teams = ChosenTeams();
    return import_.Fill(settings, progress);
}

std::vector<LahmanWizard::Era> LahmanWizard::Eras() const {
    std::vector<Era> eras;
    Statement row = session_.Common().Prepare(
        "SELECT EraID, EraName FROM KorvYears WHERE NOT (HitAvg = 0 AND SinglesAvg = 0 AND DoublesAvg = 0 AND "
        "TriplesAvg = 0 AND HRAvg = 0) ORDER BY yearID, EraName");
    while (row.Step()) eras.push_back({static_cast<std::int32_t>(row.Int(0)), row.Text(1)});
    return eras;
}

std::vector<std::string> LahmanWizard::EraCaptions(bool align) const {
    if (LeagueCount(settings.teams, align) == 1 && LeaguesOf(settings.teams).size() != 1) return {"Set Year Effect"};
    std::vector<std::string> captions;
    for (const std::string& league : LeaguesOf(settings.teams))
        captions.push_back(fmt::format("Set {} Year Effect", league));
    return captions;
}

std::vector<std::optional<std::int32_t>> LahmanWizard::ProposedEras(bool align) const {
    return tarvane::ProposedEras(session_.Common(), settings.teams, align);
}

double LahmanWizard::ProposedPAFactor(const std::vector<std::int32_t>& eras) const {
    return DefaultPAFactor(session_.Common(), eras);
}

bool LahmanWizard::RetroAvailable() const {
    return std::filesystem::exists(session_.Paths().Data08() / kRetroWorkbook);
}

std::int64_t LahmanWizard::Finish(const FinishSettings& finish, Progress* progress) {
    return import_.Finish(finish, kChartSeed, GenerateImportedManagers, progress);
}

}  // namespace tarvane
