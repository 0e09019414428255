#pragma once

#include <memory>
#include <string>
#include <vector>

#include "data/session.h"
#include "import/seasonimport.h"

namespace tarvane {

// What the screens of the season import hold between them: the clubs of the source, those chosen, and the choices made.
class LahmanWizard {
  public:
    LahmanWizard(Session& session, const std::filesystem::path& source);

    // --- Which clubs ---

    // Throws UserError on a damaged source, Cancelled on a stop.
    void ReadTeams(Progress* progress);
    const std::vector<LahmanTeam>& Teams() const { return teams_; }
    // Places in Teams() of those not chosen whose entry holds the words, in any case; and of those chosen, in the order
    // of their choice.
    std::vector<std::size_t> Listed(const std::string& words) const;
    const std::vector<std::size_t>& Chosen() const { return chosen_; }
    void Choose(const std::vector<std::size_t>& places);
    void Drop(const std::vector<std::size_t>& places);
    std::vector<LahmanTeam> ChosenTeams() const;

    // The first two chosen clubs of one code, and their new codes: what is wrong with these, or empty.
    std::optional<std::pair<std::size_t, std::size_t>> Duplicates() const;
    std::string GiveCodes(const std::string& first, const std::string& second);

    // --- How ---

    // The year if all clubs are of one; the user may type another name.
    std::string ProposedName() const;
    bool SeasonExists(const std::string& name) const;
    ImportSettings settings;

    ImportCounts Fill(Progress* progress);

    // --- The last screen ---

    struct Era {
        std::int32_t EraID = 0;
        std::string text;  // as the lists show it
    };
    // Those that rates can be worked out from.
    std::vector<Era> Eras() const;
    // "Set AL Year Effect" and so on: one for each league that the season will have.
    std::vector<std::string> EraCaptions(bool align) const;
    // The era of each of these leagues and its year, where there is one.
    std::vector<std::optional<std::int32_t>> ProposedEras(bool align) const;
    double ProposedPAFactor(const std::vector<std::int32_t>& eras) const;
    bool RetroAvailable() const;

    // The season stands; its LeagueID. The same choices give the same season.
    std::int64_t Finish(const FinishSettings& finish, Progress* progress);

  private:
    Session& session_;
    SeasonImport import_;
    std::vector<LahmanTeam> teams_;
    std::vector<std::size_t> chosen_;
};

}  // namespace tarvane
