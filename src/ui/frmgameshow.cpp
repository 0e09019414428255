#include <QActionGroup>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QStyledItemDelegate>

#include "ui/chartgrid.h"
#include "ui/frmboxscore.h"
#include "ui/frmgame.h"
#include "ui/names.h"
#include "ui/ownpicture.h"
#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmgame.h"

namespace tarvane {

namespace {

// Text close to the edges: the narrow columns of the game's grids have no room for a style's margins.
class TightCells : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        painter->save();
        if (cell.backgroundBrush.style() != Qt::NoBrush) painter->fillRect(cell.rect, cell.backgroundBrush);
        cell.font.setResolveMask(QFont::AllPropertiesResolved);  // else the painter keeps the size of its own font
        painter->setFont(cell.font);
        painter->setPen(cell.palette.color(QPalette::Text));
        QRect room = cell.rect.adjusted(2, 0, -2, 0);
        QFontMetrics metrics(cell.font);
        // A figure without its last digits is a wrong one: it takes the margins, and then smaller letters.
        const bool figure = !cell.text.isEmpty() && cell.text.back().isDigit();
        if (figure && metrics.horizontalAdvance(cell.text) > room.width()) {
            room = cell.rect.adjusted(0, 0, -1, 0);
            if (const int wide = metrics.horizontalAdvance(cell.text); wide > room.width()) {
                cell.font.setPixelSize(std::max(6, QFontInfo(cell.font).pixelSize() * room.width() / wide));
                painter->setFont(cell.font);
                metrics = QFontMetrics(cell.font);
            }
        }
        const QString text = metrics.elidedText(cell.text, Qt::ElideRight, room.width());
        painter->drawText(room, static_cast<int>(cell.displayAlignment), text);
        painter->restore();
    }
};

// A grid that only shows: no editing, no selection, columns and rows that share the room.
void PlainGrid(QTableWidget* grid, int rows, int columns) {
    grid->setRowCount(rows);
    grid->setColumnCount(columns);
    grid->horizontalHeader()->hide();
    grid->verticalHeader()->hide();
    grid->horizontalHeader()->setMinimumSectionSize(12);
    grid->verticalHeader()->setMinimumSectionSize(8);
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionMode(QAbstractItemView::NoSelection);
    grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->setWordWrap(false);
    grid->setItemDelegate(new TightCells(grid));
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) grid->setItem(row, column, new QTableWidgetItem);
}

void Put(QTableWidget* grid, int row, int column, const std::string& text, Qt::Alignment alignment, bool bold = false) {
    QTableWidgetItem* cell = grid->item(row, column);
    cell->setText(QText(text));
    cell->setTextAlignment(alignment | Qt::AlignVCenter);
    QFont font;  // only the weight: the size is the grid's
    font.setBold(bold);
    cell->setFont(font);
}

void HeadCell(QTableWidget* grid, int row, int column) {
    grid->item(row, column)->setBackground(QColor(0xE6, 0xDC, 0xBF));
    grid->item(row, column)->setForeground(theme::kInk);
}

constexpr int kPictureLines = 3;  // of the name beside it

}  // namespace

void frmGame::SetUpGrids() {
    PlainGrid(ui_->grdScoreBoard, 3, 14);
    ui_->grdScoreBoard->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    PlainGrid(ui_->grdVisitorPlayer, 10, 4);
    PlainGrid(ui_->grdHomePlayer, 10, 4);
    PlainGrid(ui_->grdPlayers, 10, 6);
    for (QTableWidget* grid : {ui_->grdVisitorPlayer, ui_->grdHomePlayer}) {
        for (const int column : {0, 2})  // the game's figures are short; the season's need the room
            grid->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        grid->setTextElideMode(Qt::ElideNone);  // a figure that only just fits is better whole than with dots
    }
    for (int column = 0; column < 6; ++column)
        ui_->grdPlayers->horizontalHeader()->setSectionResizeMode(
            column, column == 1 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    for (int roll = kFirstRoll; roll <= kLastRoll; ++roll) ui_->cmbManualDice->addItem(QString::number(roll), roll);
}

void frmGame::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    const double pixels = TextPixels(width(), height());
    ui_->grdScoreBoard->setFixedHeight(static_cast<int>(pixels * 6));
    ui_->grdScoreBoard->setColumnWidth(0, std::max(120, width() / 5));
    for (QLabel* die : {ui_->lbl10Dice, ui_->lblDice1, ui_->lblDice2})
        die->setFixedSize(static_cast<int>(pixels * 2.8), static_cast<int>(pixels * 2.8));
    Refresh();
}

void frmGame::BuildSettingsMenu() {
    settings_ = new QMenu(this);
    GameOptions& options = session_.Options();
    const auto flag = [&](const QString& text, bool& value) {
        QAction* action = settings_->addAction(text);
        action->setCheckable(true);
        action->setChecked(value);
        connect(action, &QAction::toggled, this, [this, &value](bool on) {
            value = on;
            Refresh();
        });
    };
    flag(tr("Use &1-Click Results during Games"), options.ComputerMgrAutoClick);
    flag(tr("&Manual Dice Rolls"), options.ManualDiceRolls);
    flag(tr("&Confirm Computer Manager Strategies"), options.AuxChartsAutoClick);
    flag(tr("Confirm Computer Manager S&ubstitutions"), options.DisplayCompMgrChanges);
    flag(tr("Display Play Result C&hances"), options.DisplayChances);
    flag(tr("&Game Play Instruction Banner"), options.ShowBanner);
    flag(tr("&Animation"), options.animation.GameAnimation);
    flag(tr("Base &Runner Animation"), options.animation.BaseRunnerAnimation);
    flag(tr("S&hort Animation"), options.animation.GameAnimationLite);
    flag(tr("S&ounds of Play"), options.sounds.GameSounds);
    QMenu* delay = settings_->addMenu(tr("&Seconds after a Result"));
    auto* group = new QActionGroup(delay);
    for (int seconds = 0; seconds <= 4; ++seconds) {
        QAction* action = delay->addAction(QString::number(seconds));
        action->setCheckable(true);
        action->setChecked(seconds == options.PlayResultDelay);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [&options, seconds] { options.PlayResultDelay = seconds; });
    }
}

void frmGame::Refresh() {
    if (show_->Running()) return;  // what came of the play is not told before the ball has stopped
    ui_->fraField->SetLabels(MakeFieldLabels(session_.Data(), session_.State()));
    ShowScoreBoard();
    ShowChart();
    ShowDiceAndResult();
    for (const Side side : kBothSides) ShowPanel(side);
    ShowLineup();
    ShowControls();
}

void frmGame::ShowChart() {
    const auto& last = session_.LastChart();
    const bool old = shown_ != Shown::Current && last.has_value();
    if (session_.Over() && last)
        ui_->grdActiveChart->SetChart(last->chart, last->roll);
    else if (old)
        ui_->grdActiveChart->SetChart(last->chart, last->roll);
    else
        ui_->grdActiveChart->SetChart(MakeSheetView(session_.Data(), session_.State()), 0);
    const std::string text = shown_ == Shown::Previous && last ? last->playByPlay : session_.RunningText();
    if (ui_->txtPlayByPlay->toPlainText() != QText(text)) ui_->txtPlayByPlay->setPlainText(QText(text));
    ui_->txtPlayByPlay->moveCursor(QTextCursor::End);
}

void frmGame::ShowControls() {
    PlayControls controls = MakePlayControls(session_);
    const bool previous = shown_ == Shown::Previous;
    const bool waiting = shown_ == Shown::Result;
    const bool quiet = previous || waiting;  // no command of the game now
    const GameOptions& options = session_.Options();
    ui_->cmdPlay->setText(QText(controls.cmdPlay));
    ui_->chkPlay->setText(QText(controls.chkPlay));
    ui_->lblBanner->setText(QText(controls.banner));
    ui_->lblBanner->setVisible(options.ShowBanner);
    ui_->lblPleaseWait->setVisible(waiting && options.ComputerMgrAutoClick);
    // The keyboard stays with the play command from roll to roll, unless the user works the dice by hand.
    const QWidget* focus = focusWidget();
    const bool byHand = focus == ui_->cmbManualDice || focus == ui_->cmdManualRoll || focus == ui_->grdActiveChart;
    if (ui_->cmdPlay->isEnabled()) focusOnPlay_ = !byHand;
    // While a play moves on the field the play command ends that.
    const bool play = (controls.play && !quiet) || show_->Running();
    ui_->cmdPlay->setEnabled(play);
    ui_->chkPlay->setEnabled(play);
    ui_->cmdManualRoll->setEnabled(controls.manualRoll && !quiet);
    ui_->cmbManualDice->setEnabled(controls.manualRoll);
    for (QWidget* manual : {static_cast<QWidget*>(ui_->lblInputDiceRoll), static_cast<QWidget*>(ui_->cmbManualDice),
                            static_cast<QWidget*>(ui_->cmdManualRoll)})
        manual->setVisible(options.ManualDiceRolls);
    ui_->chkIntBB->setEnabled(controls.intentionalWalk && !quiet);
    ui_->chkBunt->setEnabled(controls.bunt && !quiet);
    ui_->chkSteal->setEnabled(controls.steal && !quiet);
    const GameState& state = session_.State();
    const bool lineup = MayChangeLineup(session_, opponentShown_ ? state.FieldingSide() : state.BattingSide);
    ui_->chkLineup->setEnabled(controls.lineup && lineup && !quiet);
    ui_->chkQuickPlay->setEnabled(controls.quickPlay && !quiet);
    ui_->chkScore->setEnabled(!quiet);
    ui_->chkSettings->setEnabled(!previous && !session_.Over());
    ui_->chkcurrPrev->setEnabled(previous || (controls.previous && !waiting));
    ui_->chkcurrPrev->setText(previous ? tr("C&urrent Play") : tr("&Previous Play"));
    if (focusOnPlay_ && ui_->cmdPlay->isEnabled()) ui_->cmdPlay->setFocus();
}

void frmGame::ShowScoreBoard() {
    const ScoreBoardView board = MakeScoreBoard(session_.Data(), session_.State());
    QTableWidget* grid = ui_->grdScoreBoard;
    const std::array<const char*, 3> totals{"R", "H", "E"};
    Put(grid, 0, 0, "", Qt::AlignLeft);
    for (int i = 0; i < kInningsShown; ++i) {
        const auto at = static_cast<std::size_t>(i);
        Put(grid, 0, i + 1, board.inning[at], Qt::AlignCenter, i == board.current);
        for (const Side side : kBothSides) {
            const bool now = i == board.current && side == board.batting && !session_.Over();
            Put(grid, side == Side::Visitor ? 1 : 2, i + 1, board.runs[side][at], Qt::AlignCenter, now);
            grid->item(side == Side::Visitor ? 1 : 2, i + 1)->setForeground(now ? theme::kGold : theme::kCream);
        }
        grid->item(0, i + 1)->setForeground(i == board.current ? theme::kGold : QColor(0xB9, 0xCB, 0xBD));
    }
    for (const Side side : kBothSides) {
        const int row = side == Side::Visitor ? 1 : 2;
        const bool batting = side == board.batting && !session_.Over();
        Put(grid, row, 0, (batting ? "\u25B8 " : "   ") + board.name[side], Qt::AlignLeft, true);
        grid->item(row, 0)->setForeground(batting ? theme::kGold : theme::kCream);
        for (std::size_t i = 0; i < totals.size(); ++i) {
            Put(grid, 0, static_cast<int>(i) + 11, totals[i], Qt::AlignCenter, true);
            Put(grid, row, static_cast<int>(i) + 11, std::to_string(board.totals[side][i]), Qt::AlignCenter, i == 0);
            grid->item(row, static_cast<int>(i) + 11)->setForeground(theme::kGold);
            grid->item(0, static_cast<int>(i) + 11)->setForeground(QColor(0xB9, 0xCB, 0xBD));
        }
    }
    ColorScoreBoard();
    ui_->lblOuts->setText(QText(board.outs));
    ui_->lblInning->setText(QText(board.innings));
    ui_->lblAutoOuts->setText(QText(board.autoOuts));
    ui_->lblDefAdj->setText(QText(board.defAdj));
    ui_->lblBallPark->setText(QText(board.ballPark));
}

void frmGame::ShowResultCell(QLabel* label, const SheetView& chart, int column, int roll) {
    if (column >= chart.columns || roll < kFirstRoll) {
        label->setText(QStringLiteral(" "));
        label->setStyleSheet({});
        return;
    }
    const ChartCell& cell = chart.cell[static_cast<std::size_t>(column)][static_cast<std::size_t>(roll - kFirstRoll)];
    const CellLook look = LookOf(cell);
    label->setText(cell.text.empty() ? QStringLiteral(" ") : QText(cell.text));
    label->setStyleSheet(QStringLiteral("background:%1;color:%2").arg(look.ground.name(), look.text.name()));
}

void frmGame::ShowDiceAndResult() {
    const auto& last = session_.LastChart();
    const LeagueRules& rules = session_.Data().rules;
    ui_->lblParkResult->setVisible(rules.UseParkEffects);
    ui_->capParkResult->setVisible(rules.UseParkEffects);
    ui_->lblYearResult->setVisible(rules.UseYearEffects);
    ui_->capYearResult->setVisible(rules.UseYearEffects);
    ui_->lblErrorResult->setVisible(rules.UseErrorRatings);
    ui_->capErrorResult->setVisible(rules.UseErrorRatings);
    if (!last) return;
    ui_->lbl10Dice->setText(QString::number(last->tens));
    ui_->lblDice1->setText(QString::number(last->dice[0]));
    ui_->lblDice2->setText(QString::number(last->dice[1]));
    ui_->lblDiceRoll->setText(QString::number(last->roll));
    const bool pitcher = last->sheet == SheetCode::P;
    const int park = pitcher && rules.UseParkEffects ? 1 : 3;
    const int year = pitcher && rules.UseYearEffects ? (rules.UseParkEffects ? 2 : 1) : 3;
    ShowResultCell(ui_->lblResult, last->chart, 0, last->roll);
    ShowResultCell(ui_->lblParkResult, last->chart, park, last->roll);
    ShowResultCell(ui_->lblYearResult, last->chart, year, last->roll);
    const Position by = session_.State().play.ErrorBy;
    ui_->lblErrorResult->setText(by == Position::None ? QStringLiteral(" ")
                                                      : QText(std::string(PositionText(by))).trimmed());
}

void frmGame::ShowPanel(Side side) {
    const PlayerPanel panel = MakePlayerPanel(session_.Game(), session_.State(), side);
    QLabel* name = side == Side::Visitor ? ui_->lblVisitorPlayer : ui_->lblHomePlayer;
    QTableWidget* grid = side == Side::Visitor ? ui_->grdVisitorPlayer : ui_->grdHomePlayer;
    QLabel* picture = side == Side::Visitor ? ui_->lblVisitorPicture : ui_->lblHomePicture;
    const int high = name->fontMetrics().lineSpacing() * kPictureLines;
    picture->setPixmap(OwnPicture(panel.picture, QSize(high, high)));
    picture->setVisible(!picture->pixmap().isNull());
    name->setText(QText(panel.team + (panel.pitching ? " pitching\n" : " at bat\n") + panel.name));
    const std::array<const char*, 4> heads{"", "Cmp", "Gm", "Act"};
    for (int column = 0; column < 4; ++column) {
        Put(grid, 0, column, heads[static_cast<std::size_t>(column)], Qt::AlignRight, true);
        HeadCell(grid, 0, column);
    }
    grid->setColumnHidden(3, !panel.hasReal);
    for (int row = 1; row < grid->rowCount(); ++row) {
        const auto at = static_cast<std::size_t>(row - 1);
        const std::array<std::string, 4> line = at < panel.rows.size() ? panel.rows[at] : std::array<std::string, 4>{};
        Put(grid, row, 0, line[0], Qt::AlignLeft, true);
        for (int column = 1; column < 4; ++column)
            Put(grid, row, column, line[static_cast<std::size_t>(column)], Qt::AlignRight);
    }
}

void frmGame::ShowLineup() {
    const GameState& state = session_.State();
    const Side side = opponentShown_ ? state.FieldingSide() : state.BattingSide;
    ui_->lblLineup->setText(QText(TeamName(session_.Data(), side)) +
                            (opponentShown_ ? tr(" (in the field)") : tr(" (at bat)")));
    QTableWidget* grid = ui_->grdPlayers;
    const std::array<const char*, 6> heads{"#", "Batter", "Pos", "DR", "RR", "BR"};
    for (int column = 0; column < 6; ++column) {
        Put(grid, 0, column, heads[static_cast<std::size_t>(column)], column == 1 ? Qt::AlignLeft : Qt::AlignCenter,
            true);
        HeadCell(grid, 0, column);
    }
    const std::vector<LineupLine> lines = MakeLineup(session_.Data(), state, side);
    for (int row = 1; row < grid->rowCount(); ++row) {
        const LineupLine& line = lines[static_cast<std::size_t>(row - 1)];
        const bool up = line[0].front() == '>' && !opponentShown_;
        for (int column = 0; column < 6; ++column) {
            Put(grid, row, column, line[static_cast<std::size_t>(column)],
                column == 1 ? Qt::AlignLeft : Qt::AlignCenter, up);
            grid->item(row, column)->setBackground(up ? QColor(0xF4, 0xDE, 0xA0) : theme::kPaper);
        }
    }
}

PlayedGame frmGame::Played() const {
    const double seconds = secondsBefore_ + static_cast<double>(clock_.elapsed()) / 1000;
    return {session_.Setup(), session_.State(), session_.Sheet(), static_cast<long>(seconds), resumedFrom_};
}

void frmGame::ShowBoxScore() {
    OpenOver(new frmBoxScore(Played()));
}

void frmGame::Say(const QString& text) {
    ui_->lblStatus->setText(text);
}

}  // namespace tarvane
