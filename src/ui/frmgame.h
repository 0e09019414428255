#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <filesystem>
#include <memory>

#include "data/session.h"
#include "ui/gamesession.h"
#include "ui/gameview.h"
#include "ui/playedgame.h"
#include "ui/playshow.h"
#include "ui/playsounds.h"
#include "ui/playwatcher.h"
#include "ui/screen.h"
#include "ui/services.h"

class QLabel;
class QMenu;
class QTableWidget;

namespace Ui {
class frmGame;
}

namespace tarvane {

struct Question;

// The game screen. It shows what the session holds, hands the user's clicks to it, puts its questions to him, and lets
// sheets that roll by themselves roll.
class frmGame : public Screen {
    Q_OBJECT

  public:
    frmGame(GamePtr setup, const GameOptions& options, std::uint64_t seed, Services services,
            QWidget* parent = nullptr);
    // A game taken up again from its file.
    frmGame(const SavedGame& saved, const std::filesystem::path& file, const GameOptions& options, std::uint64_t seed,
            Services services, QWidget* parent = nullptr);
    ~frmGame() override;

    // Where the game is saved when the user leaves it; without it a game can't be saved.
    void SaveTo(const std::filesystem::path& file) { saveFile_ = file; }
    // Writes the game as it stands; false if that wasn't possible, and the user knows why.
    bool SaveGame();

    const GameSession& Session() const { return session_; }
    // The game as it stands.
    PlayedGame Played() const;

    // The preferences that the game's settings command edits, and the look that they ask for.
    void UseSettings(tarvane::Session& session);

  Q_SIGNALS:
    // The user is done with a game that is over.
    void Finished();
    // The game lies in its file.
    void Saved();
    // The preferences were saved from this game's command.
    void PreferencesChanged();

  protected:
    bool MayClose() override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void Returned() override;

  private:
    // What the last chart is being shown for, if it is.
    enum class Shown { Current, Result, Previous };

    void ConnectControls();
    void SetUpGrids();
    void BuildSettingsMenu();
    void Build();
    void Begin();
    void OfferSpectator();

    // --- Leaving ---
    void GiveUp();

    // --- Clicks ---
    void Play();
    void ManualRoll(int chartRoll);
    void IntentionalWalk();
    void Bunt();
    void Steal();
    void PreviousPlay();
    void QuickPlay();
    void RunQuickPlay(int throughInning, bool spectator);
    void ShowBoxScore();
    void OpenSettings();
    void WearLook();
    void ColorScoreBoard();
    void EndGame();

    // --- After each input ---
    void AfterInput();
    void GoOn();
    void HearPlays();
    bool ShowPlays();
    void ResultStays();
    bool RollsAtOnce() const;
    bool AskManager();
    void ChangeLineup(Side side);
    bool Asks(const Question& question);

    // --- Showing ---
    void Refresh();
    void ShowChart();
    void ShowControls();
    void ShowScoreBoard();
    void ShowDiceAndResult();
    void ShowResultCell(QLabel* label, const SheetView& chart, int column, int roll);
    void ShowPanel(Side side);
    void ShowLineup();
    void Say(const QString& text);

    Services services_;
    GameSession session_;
    PlaySounds sounds_;
    PlayWatcher watcher_;
    std::unique_ptr<Ui::frmGame> ui_;
    std::unique_ptr<PlayShow> show_;
    QTimer pause_;
    QElapsedTimer clock_;       // since this sitting began
    double secondsBefore_ = 0;  // in earlier sittings
    std::filesystem::path saveFile_, resumedFrom_;
    QMenu* settings_ = nullptr;
    tarvane::Session* store_ = nullptr;  // of the preferences; none in a game without a data folder
    Shown shown_ = Shown::Current;
    bool opponentShown_ = false, walkOffTold_ = false, mayClose_ = false, begun_ = false, focusOnPlay_ = true,
         lineupsOpen_ = false;
};

}  // namespace tarvane
