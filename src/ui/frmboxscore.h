#pragma once

#include <vector>

#include "ui/playedgame.h"
#include "ui/screen.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;
class QTableWidget;
class QVBoxLayout;

namespace tarvane {

// A document of a game on a page: heading, line score and both teams' tables, one below the other or, where there is
// room, side by side. The other document takes its place on a click.
class GameDocumentScreen : public Screen {
    Q_OBJECT

  protected:
    GameDocumentScreen(PlayedGame game, const QString& title, QWidget* parent);

    // The tables of a side in their order, each named.
    void AddTable(Side side, const QString& name, const QString& caption, const DocumentTable& table, bool matrix);
    void AddNotes(Side side, const std::vector<DocumentNote>& notes);
    QPushButton* AddLink(const QString& name, const QString& text);
    void resizeEvent(QResizeEvent* event) override;
    // The screen that closes this one's place with it.
    void GiveWayTo(Screen* other);

    PlayedGame game_;
    BoxDocument box_;
    PerSide<QVBoxLayout*> side_{{nullptr, nullptr}};

  private:
    void BuildHead(QVBoxLayout& all);
    QTableWidget* MakeTable(const QString& name, const DocumentTable& table, bool matrix, QWidget* parent);

    QBoxLayout* sides_;
    QBoxLayout* foot_;
    std::vector<QTableWidget*> grids_;
};

// The box score of a game under way or over.
class frmBoxScore : public GameDocumentScreen {
    Q_OBJECT

  public:
    explicit frmBoxScore(PlayedGame game, QWidget* parent = nullptr);
};

// Its score sheet: what each man did, by inning.
class frmScoreSheet : public GameDocumentScreen {
    Q_OBJECT

  public:
    explicit frmScoreSheet(PlayedGame game, QWidget* parent = nullptr);
};

}  // namespace tarvane
