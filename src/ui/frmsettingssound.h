#pragma once

#include "data/session.h"
#include "ui/settingsscreen.h"

class QListWidget;
class QStackedWidget;
class QTabBar;

namespace tarvane {

class SoundGrid;

// Which sounds are heard: the switches, the user's own files for single occasions and for each play of either team, and
// the play list between the innings.
class frmSettingsSound : public SettingsScreen {
    Q_OBJECT

  public:
    frmSettingsSound(Session& session, Services services, QWidget* parent = nullptr);

  protected:
    bool Store() override;

  private:
    void AddSwitches(QBoxLayout* to);
    void AddFiles(QBoxLayout* to);
    SoundGrid* AddGrid(const QString& tab, const QString& name, const QStringList& occasions);
    void AddGrids(QBoxLayout* to);
    void FillFiles();
    void Play();
    void Use();

    Session& session_;
    GameSettings settings_;  // as the screen shows them
    GamePlaySounds plays_;
    QListWidget* files_ = nullptr;
    QTabBar* tabs_ = nullptr;
    QStackedWidget* pages_ = nullptr;
};

}  // namespace tarvane
