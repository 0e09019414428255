#pragma once

#include <filesystem>
#include <memory>

#include "ui/exhibition.h"
#include "ui/gameoptions.h"
#include "ui/managerswitches.h"
#include "ui/screen.h"
#include "ui/seasonaccess.h"
#include "ui/services.h"

class QComboBox;

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

    // Asks whether the saved exhibition game is to go on, if there is one; to be called once the screen is up.
    void OfferSavedGame();

  Q_SIGNALS:
    // The game is ready to begin.
    void GameReady(const tarvane::GamePtr& setup);
    // The saved exhibition game is to go on.
    void ResumeGame(const std::filesystem::path& file);

  private:
    void TeamChosen(Side side);
    void Next();
    bool ManagersReady(const GameSetup& setup);

    SeasonAccess& seasons_;
    Services services_;
    GameOptions options_;
    std::vector<TeamEntry> teams_;
    std::vector<ParkEntry> parks_;
    std::unique_ptr<Ui::frmPreExGame> ui_;
    PerSide<ManagerSwitches> switches_;
    PerSide<QComboBox*> combo_;
};

}  // namespace tarvane
