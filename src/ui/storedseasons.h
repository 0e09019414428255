#pragma once

#include "data/session.h"
#include "records/settings.h"
#include "ui/gameoptions.h"
#include "ui/seasonaccess.h"

namespace tarvane {

// The seasons of a running program, from its databases.
class StoredSeasons : public SeasonAccess {
  public:
    explicit StoredSeasons(Session& session) : session_(session) {}

    std::vector<SeasonEntry> Seasons() override;
    std::string ActiveSeason() const override;
    std::string SetActive(std::int64_t LeagueID) override;
    LeagueRules Rules() const override;
    std::vector<TeamEntry> Teams() override;
    std::vector<ParkEntry> Parks() override;
    GamePtr Exhibition(const ExhibitionGame& game) override;
    Session* Store() override { return &session_; }

  private:
    Session& session_;
};

// What the game screen takes from the preferences and the user's sounds.
GameOptions OptionsFrom(Session& session);

}  // namespace tarvane
