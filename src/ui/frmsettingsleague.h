#pragma once

#include "data/session.h"
#include "ui/restlists.h"
#include "ui/settingsscreen.h"

class QGridLayout;

namespace tarvane {

// The rules of the active season: how its games are played, what a man out of position is worth, and how long pitchers
// rest. A save holds from the next game on; a game under way keeps the rules it began with.
class frmSettingsLeague : public SettingsScreen {
    Q_OBJECT

  public:
    frmSettingsLeague(Session& session, Services services, QWidget* parent = nullptr);

  protected:
    bool Store() override;

  private:
    // The lists of one bracket of rest.
    struct RestLists {
        QComboBox *from = nullptr, *to = nullptr, *days = nullptr;
    };

    void AddGameRules(QBoxLayout* to);
    void AddPitchingRules(QBoxLayout* to);
    void AddFieldingRules(QBoxLayout* to);
    void AddOutOfPosition(QBoxLayout* to);
    void AddRest(QBoxLayout* to, char pitcherType, const QString& caption);
    void RestDefaults();
    // Switching one box on switches the other off.
    void Exclude(QCheckBox* one, QCheckBox* other);
    std::array<RestChoice, 5> Choices(char pitcherType) const;
    bool RestOk(char pitcherType);

    Session& session_;
    LeagueRules rules_;  // as the screen shows them
    bool defensiveEras_ = false;
    std::array<RestLists, 10> rest_;
    QComboBox* relieverMax_ = nullptr;
};

}  // namespace tarvane
