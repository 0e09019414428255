#pragma once

#include <memory>

#include "ui/exhibition.h"
#include "ui/gameoptions.h"
#include "ui/screen.h"
#include "ui/seasonaccess.h"
#include "ui/services.h"

class QComboBox;
class QGroupBox;
class QRadioButton;

namespace Ui {
class frmPreExGame;
}

namespace tarvane {

// Which two teams play an exhibition game, where, and who manages them.
class frmPreExGame : public Screen {
    Q_OBJECT

  public:
    frmPreExGame(SeasonAccess& seasons, Services services, const GameOptions& options, QWidget* parent = nullptr);
    ~frmPreExGame() override;

  Q_SIGNALS:
    // The game is ready to begin.
    void GameReady(const tarvane::GamePtr& setup);

  private:
    // The three pairs of option buttons of a side.
    struct Switches {
        std::array<QGroupBox*, 3> frame{};
        std::array<QRadioButton*, 3> computer{}, human{};
    };

    void TeamChosen(Side side);
    void Show(Side side, const ManagerChoice& choice);
    SideControl Read(Side side) const;
    void Next();
    bool ManagersReady(const GameSetup& setup);

    SeasonAccess& seasons_;
    Services services_;
    GameOptions options_;
    std::vector<TeamEntry> teams_;
    std::vector<ParkEntry> parks_;
    std::unique_ptr<Ui::frmPreExGame> ui_;
    PerSide<Switches> switches_;
    PerSide<QComboBox*> combo_;
};

}  // namespace tarvane
