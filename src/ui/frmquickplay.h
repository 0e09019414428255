#pragma once

#include <QDialog>
#include <memory>

#include "ui/gamequestions.h"
#include "ui/services.h"

namespace Ui {
class frmQuickPlay;
}

namespace tarvane {

// How far the computer shall play the game that is under way, and whether the user watches. Only intervals that are
// still ahead are offered.
class frmQuickPlay : public QDialog {
    Q_OBJECT

  public:
    frmQuickPlay(std::vector<QuickPlayChoice> choices, Services services, QWidget* parent = nullptr);
    ~frmQuickPlay() override;

  Q_SIGNALS:
    // throughInning is the last inning that is played so; 0 is the rest of the game.
    void Chosen(int throughInning, bool spectator);

  private:
    void Play();

    std::vector<QuickPlayChoice> choices_;
    Services services_;
    std::unique_ptr<Ui::frmQuickPlay> ui_;
};

}  // namespace tarvane
