#pragma once

#include <memory>

#include "ui/gamesession.h"
#include "ui/lineupfigures.h"
#include "ui/lineupmodel.h"
#include "ui/screen.h"
#include "ui/services.h"

class QTableWidget;

namespace Ui {
class frmGameLineups;
}

namespace tarvane {

struct ManDrag;
class ManGrid;

// The line-ups of a game: made before it, changed in it. Men are dragged from the roster into the order and about in
// it; a digit on the keyboard does the same with the selected line.
class frmGameLineups : public Screen {
    Q_OBJECT

  public:
    // Before a game; the one that comes out has the line-ups of this screen.
    frmGameLineups(GamePtr setup, const GameOptions& options, Services services, QWidget* parent = nullptr);
    // In a game, which must be awaiting a pitch or a change. The session takes the changes before the screen closes.
    frmGameLineups(GameSession& session, Side side, Services services, QWidget* parent = nullptr);
    ~frmGameLineups() override;

    const LineupModel& Model() const { return *model_; }
    Side SideShown() const { return side_; }
    void SetScreenForVisitorTeam() { ShowSide(Side::Visitor); }
    void SetScreenForHomeTeam() { ShowSide(Side::Home); }

  Q_SIGNALS:
    void GameReady(const tarvane::GamePtr& setup);

  protected:
    bool MayClose() override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Build();
    void SetUpGrids();
    void ConnectControls();
    void PresetForced();
    void BuildShowByPosComboBox();
    void BuildPosComboBox();

    // --- Moves ---
    void Tell(const std::string& refusal);
    void PlaceMan(int row, PlayerRef man);
    void DropOnLineup(int row, const ManDrag& drag);
    void DropOnRoster(const ManDrag& drag);
    void PositionChosen(int index);
    void Pinch(bool runner);
    bool RosterKey(int key);
    bool LineupKey(int key);
    int PitcherRow() const;
    void Play();
    void PlayChanges();

    // --- Showing ---
    void ShowSide(Side side);
    void Refresh();
    void ShowLineup();
    void ShowRoster();
    void ShowFigures();
    void ShowChartOfMan();
    void ShowGone();
    void ShowButtons();
    void FitRows();
    FigureView View() const;
    PlayerRef SelectedMan() const;  // of the roster
    int SelectedRow() const;        // of the order

    GamePtr setup_;                   // before a game
    GameSession* session_ = nullptr;  // in one
    GameOptions options_;
    Services services_;
    std::unique_ptr<LineupModel> model_;
    std::unique_ptr<Ui::frmGameLineups> ui_;
    Side side_ = Side::Visitor;
    std::vector<PlayerRef> shown_, gone_;  // of each line of the roster and of those out of the game
    std::vector<Position> positions_;
    bool filling_ = false, done_ = false;
};

}  // namespace tarvane
