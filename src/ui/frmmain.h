#pragma once

#include <QMainWindow>
#include <filesystem>
#include <memory>

#include "ui/gameoptions.h"
#include "ui/mainmenu.h"
#include "ui/playedgame.h"
#include "ui/seasonaccess.h"
#include "ui/services.h"

namespace Ui {
class frmMain;
}

namespace tarvane {

class MenuGrid;
class Screen;
class frmGame;

// The main menu. It is hidden while another screen is open and shows again when that closes.
class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    frmMain(SeasonAccess& seasons, Services services, const GameOptions& options, QWidget* parent = nullptr);
    ~frmMain() override;

    // Fills the rows and the season's label anew; called whenever what they depend on may have changed.
    void BuildCommandGrids();

    // A picture of the user's own for the top of the menu.
    void SetPicture(const QString& file);

    // The screen of a command, in place of the one that is open.
    void OpenScreen(MenuScreen screen);

    // The screen now open above the menu, or nothing.
    Screen* Open() const { return open_; }

    // The seed of the games' dice: a test sets it, else each game takes one from the system.
    void SetSeed(std::uint64_t seed) { seed_ = seed; }

  Q_SIGNALS:
    void Left();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Connect(MenuGrid* grid, MenuRow row);
    void Choose(MenuRow row, int column);
    void ShowStored(Screen* screen);
    void Show(Screen* screen);
    // A screen over what the open season's database holds.
    template <class StoredScreen>
    void OpenStored();
    template <class SettingsOf>
    void OpenSettings();
    // The preferences as they were saved now, in the games to come and in the look of the menu.
    void TakePreferences();
    void WearPreferences();
    void OpenExhibition();
    void OpenScheduled();
    void OpenImport();
    // A game made ready: unseen by quick play, else by its line-ups to the game screen.
    void Play(const GamePtr& setup);
    void Begin(const GamePtr& setup, const GameOptions& options, std::uint64_t seed);
    // A game from its file; the screen that is open stays if it can't be.
    void Resume(const std::filesystem::path& file);
    void ShowGame(frmGame* game);
    std::filesystem::path SaveFileOf(const PreparedGame& game);
    std::uint64_t NextSeed() const;
    void EndOf(const PlayedGame& game);
    void Say(const QString& text);
    MenuContext Context() const;

    SeasonAccess& seasons_;
    Services services_;
    GameOptions options_;
    std::uint64_t seed_ = 0;
    bool spreadsheet_ = false;
    std::unique_ptr<Ui::frmMain> ui_;
    Screen* open_ = nullptr;
};

}  // namespace tarvane
