#pragma once

#include "data/session.h"
#include "ui/settingsscreen.h"
#include "ui/userlook.h"

class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;
class QTabBar;

namespace tarvane {

// The preferences of the installation: how games are played and told, what is kept of them, and the look of the
// screens. A save holds at once, for an open game too.
class frmSettingsGame : public SettingsScreen {
    Q_OBJECT

  public:
    frmSettingsGame(Session& session, Services services, QWidget* parent = nullptr);

  protected:
    bool Store() override;

  private:
    QVBoxLayout* AddPage(const QString& tab);
    void AddPlayPage();
    void AddScreenPage();
    void AddKeepPage();
    void AddComputerManagers(QBoxLayout* to);
    void AddAnimation(QBoxLayout* to);
    void AddPicture(QBoxLayout* to);
    void AddColors(QBoxLayout* to);
    void AddPair(QBoxLayout* to, const char* name, const QString& text, std::int32_t& back, std::int32_t& fore,
                 const UserColors& house);
    void AddFormat(QBoxLayout* to);
    void AddInternet(QBoxLayout* to);
    void LookDefaults();
    std::string Picture() const;

    Session& session_;
    GameSettings settings_;  // as the screen shows them
    bool condensed_ = false, banner_ = false;
    QTabBar* tabs_;
    QStackedWidget* pages_;
    QLineEdit* port_ = nullptr;
    QListWidget* pictures_ = nullptr;
};

}  // namespace tarvane
