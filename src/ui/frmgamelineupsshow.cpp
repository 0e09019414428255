// What the line-up screen shows.

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>

#include "ui/chartgrid.h"
#include "ui/frmgamelineups.h"
#include "ui/gridfit.h"
#include "ui/mangrid.h"
#include "ui/names.h"
#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmgamelineups.h"

namespace tarvane {

namespace {

const QColor kTroubleGround{0xF3, 0xC9, 0xBC};
const QColor kAtBatGround{0xF4, 0xDE, 0xA0};

// Left-handers red, right-handers green, switch hitters blue; the letter behind the name says the same.
QColor HandColor(std::int32_t hand) {
    if (hand == kSwitchHitter) return {0x1B, 0x3F, 0x8B};
    return hand == kLeftHand ? QColor(0x9B, 0x1C, 0x1C) : QColor(0x1D, 0x5E, 0x2E);
}

std::int32_t HandOf(const TeamRoster& roster, PlayerRef man) {
    const auto index = static_cast<std::size_t>(man.index);
    return man.type == 'P' ? roster.pitchers[index].throws_ : roster.batters[index].bats;
}

QTableWidgetItem* LineCell(QTableWidget* grid, int row, int column, const std::string& text,
                           Qt::Alignment alignment = Qt::AlignLeft) {
    auto* cell = new QTableWidgetItem(QText(text).trimmed());
    cell->setTextAlignment(alignment | Qt::AlignVCenter);
    cell->setToolTip(cell->text());
    grid->setItem(row, column, cell);
    return cell;
}

void SelectQuietly(QTableWidget* grid, int row) {
    const QSignalBlocker quiet(grid);
    if (row >= 0 && row < grid->rowCount()) grid->selectRow(row);
}

// Two lists of the same lines move together.
void Tie(ManGrid* first, ManGrid* second) {
    QObject::connect(first->verticalScrollBar(), &QScrollBar::valueChanged, second->verticalScrollBar(),
                     &QScrollBar::setValue);
    QObject::connect(first, &QTableWidget::itemSelectionChanged, second, [first, second] {
        if (first->currentRow() != second->currentRow()) second->selectRow(first->currentRow());
    });
}

}  // namespace

void frmGameLineups::SetUpGrids() {
    const auto stretch = [](ManGrid* grid, int wide) {
        for (int column = 0; column < grid->columnCount(); ++column)
            grid->horizontalHeader()->setSectionResizeMode(
                column, column == wide ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    };
    ui_->grdLineups->SetHeads({tr("#"), tr("Player"), tr("Pos")});
    stretch(ui_->grdLineups, 1);
    ui_->grdPlayers->SetHeads({tr("Player"), tr("Pos"), tr("RR"), tr("BR"), tr("Status")});
    stretch(ui_->grdPlayers, 0);
    ui_->grdPlayers->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Interactive);
    ui_->grdGone->SetHeads({tr("Player"), tr("Status")});
    stretch(ui_->grdGone, 0);
    ui_->grdLineups->dragOf = [this](int row) { return ManDrag{{}, row}; };
    for (ManGrid* grid : {ui_->grdPlayers, ui_->grdProb, ui_->grdResults})
        grid->dragOf = [this](int row) { return ManDrag{shown_[static_cast<std::size_t>(row)], -1}; };
    ui_->grdGone->setDragEnabled(false);
    ui_->grdGone->setAcceptDrops(false);
    for (ManGrid* figures : {ui_->grdProb, ui_->grdResults}) {
        figures->setAcceptDrops(false);
        figures->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        Tie(ui_->grdPlayers, figures);
        Tie(figures, ui_->grdPlayers);
    }
}

PlayerRef frmGameLineups::SelectedMan() const {
    const int row = ui_->grdPlayers->currentRow();
    return row >= 0 && row < static_cast<int>(shown_.size()) ? shown_[static_cast<std::size_t>(row)] : PlayerRef{};
}

int frmGameLineups::SelectedRow() const {
    const QModelIndexList rows = ui_->grdLineups->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

FigureView frmGameLineups::View() const {
    return {ui_->optvsLeft->isChecked(), ui_->chkShowPitcherBat->isChecked(), ui_->chkToggleActual->isChecked(),
            ui_->chkToggleStats->isChecked()};
}

void frmGameLineups::ShowSide(Side side) {
    side_ = side;
    filling_ = true;
    ui_->optVisitorTeam->setChecked(side == Side::Visitor);
    ui_->optHomeTeam->setChecked(side == Side::Home);
    ui_->cmbTeamLineups->clear();
    if (!model_->DuringGame())
        for (const std::string& name : model_->ListNames(side)) ui_->cmbTeamLineups->addItem(QText(name));
    const PlayerRef opponent = model_->Lineup(Other(side)).pitcher;
    const TeamRoster& opponents = model_->Data()[Other(side)].roster;
    const bool left = !opponent.Nobody() && HandOf(opponents, opponent) == kLeftHand;
    (left ? ui_->optvsLeft : ui_->optvsRight)->setChecked(true);
    ui_->chkToggleActual->setEnabled(model_->Game().real[side].Present());
    filling_ = false;
    Refresh();
}

void frmGameLineups::Refresh() {
    if (filling_) return;
    filling_ = true;
    if (!model_->DuringGame()) ui_->cmbTeamLineups->setCurrentIndex(model_->ChosenList(side_));
    ShowLineup();
    ShowRoster();
    ShowGone();
    filling_ = false;
    ShowFigures();
    ShowButtons();
    FitRows();
}

void frmGameLineups::ShowLineup() {
    ManGrid* grid = ui_->grdLineups;
    const QSignalBlocker quiet(grid);
    const int selected = SelectedRow();
    const std::vector<LineupRow> rows = model_->Rows(side_);
    grid->setRowCount(static_cast<int>(rows.size()));
    for (int i = 0; i < grid->rowCount(); ++i) {
        const LineupRow& row = rows[static_cast<std::size_t>(i)];
        const std::string mark = row.man.Nobody() ? std::string() : model_->MarkText(side_, row.man);
        const bool told = row.trouble && !row.man.Nobody() && mark != "in lineup" && !mark.empty();
        const std::string name = row.man.Nobody() ? "- nobody -" : row.name + HandText(row.hand);
        LineCell(grid, i, 0, row.slot, Qt::AlignHCenter);
        LineCell(grid, i, 1, told ? name + "  " + mark : name)
            ->setForeground(row.man.Nobody() ? theme::kInkSoft : HandColor(row.hand));
        const bool open = row.position.find_first_not_of(' ') == std::string::npos;
        LineCell(grid, i, 2, open ? "?" : row.position, Qt::AlignHCenter);
        for (int column = 0; column < 3; ++column) {
            if (row.trouble) grid->item(i, column)->setBackground(kTroubleGround);
            if (row.atBat && !row.trouble) grid->item(i, column)->setBackground(kAtBatGround);
        }
    }
    SelectQuietly(grid, selected < 0 ? 0 : selected);
    ui_->lblDefence->setText(QText(model_->DefenceText(side_)));
}

void frmGameLineups::ShowRoster() {
    ManGrid* grid = ui_->grdPlayers;
    const QSignalBlocker quiet(grid);
    const PlayerRef selected = SelectedMan();
    const RosterFilter filter = LineupModel::Filters()[static_cast<std::size_t>(ui_->cmbShowByPos->currentIndex())];
    shown_ = model_->Roster(side_, filter);
    const TeamRoster& roster = model_->Data()[side_].roster;
    grid->setRowCount(static_cast<int>(shown_.size()));
    int select = 0;
    for (int i = 0; i < grid->rowCount(); ++i) {
        const PlayerRef man = shown_[static_cast<std::size_t>(i)];
        const std::vector<std::string> texts = RosterTexts(roster, man);
        const bool free = model_->MarkOf(side_, man) == RosterMark::Free;
        for (int column = 0; column < 4; ++column)
            LineCell(grid, i, column, texts[static_cast<std::size_t>(column)],
                     column < 2 ? Qt::AlignLeft : Qt::AlignHCenter);
        LineCell(grid, i, 4, model_->MarkText(side_, man));
        grid->item(i, 0)->setForeground(HandColor(HandOf(roster, man)));
        for (int column = 0; column < 5 && !free; ++column) {
            QFont font;  // only the slant: the size is the grid's
            font.setItalic(true);
            grid->item(i, column)->setFont(font);
            if (column > 0) grid->item(i, column)->setForeground(theme::kInkSoft);
        }
        if (man == selected) select = i;
    }
    SelectQuietly(grid, select);
}

// The lines of the figures stand beside those of the roster.
void frmGameLineups::ShowFigures() {
    if (filling_) return;
    const int kind = ui_->cmbChartType->currentIndex();
    const bool pitchers = ui_->cmbShowByPos->currentIndex() >= 1 && ui_->cmbShowByPos->currentIndex() <= 3;
    const FigureView view = View();
    ui_->stkFigures->setCurrentIndex(kind);
    ui_->chkShowPitcherBat->setEnabled(pitchers);
    ui_->chkToggleStats->setEnabled(kind == 2 && !pitchers);
    ui_->chkToggleActual->setEnabled(kind == 2 && model_->Game().real[side_].Present());
    ManGrid* grid = kind == 1 ? ui_->grdProb : ui_->grdResults;
    if (kind > 0) {
        const QSignalBlocker quiet(grid);
        const bool pitching = pitchers && !view.pitcherBats;
        QStringList heads;
        for (const std::string& head : kind == 1 ? ChanceHeads(pitching) : StatHeads(pitching))
            heads << QText(head).replace(QStringLiteral("Chrt % "), QStringLiteral("Chrt %\n"));
        grid->SetHeads(heads);
        grid->setRowCount(static_cast<int>(shown_.size()));
        for (int row = 0; row < grid->rowCount(); ++row) {
            const PlayerRef man = shown_[static_cast<std::size_t>(row)];
            const std::vector<std::string> texts = kind == 1 ? ChanceTexts(model_->Data()[side_].roster, man, view)
                                                             : StatTexts(model_->Game(), side_, man, view);
            for (int column = 0; column < grid->columnCount(); ++column)
                LineCell(grid, row, column,
                         static_cast<std::size_t>(column) < texts.size() ? texts[static_cast<std::size_t>(column)] : "",
                         Qt::AlignRight);
        }
        grid->horizontalHeader()->setSectionResizeMode(kind == 1 ? QHeaderView::Stretch
                                                                 : QHeaderView::ResizeToContents);
        SelectQuietly(grid, ui_->grdPlayers->currentRow());
    }
    ShowChartOfMan();
    FitRows();
}

void frmGameLineups::ShowChartOfMan() {
    ui_->grdChart->SetChart(ManChart(model_->Data()[side_].roster, SelectedMan(), View()), 0);
}

void frmGameLineups::ShowGone() {
    gone_ = model_->Gone(side_);
    ManGrid* grid = ui_->grdGone;
    grid->setRowCount(static_cast<int>(gone_.size()));
    for (int i = 0; i < grid->rowCount(); ++i) {
        LineCell(grid, i, 0, PlayerName(model_->Data(), side_, gone_[static_cast<std::size_t>(i)]));
        LineCell(grid, i, 1, model_->MarkText(side_, gone_[static_cast<std::size_t>(i)]));
    }
}

void frmGameLineups::ShowButtons() {
    const bool during = model_->DuringGame();
    const bool forced = model_->ForcedSide().has_value();
    const bool open = model_->Locked(side_).empty();
    const bool batting = during && session_->State().BattingSide == side_;
    const int row = SelectedRow();
    filling_ = true;
    int position = -1;
    if (row >= 0 && row < 9)
        for (std::size_t i = 0; i < positions_.size(); ++i)
            if (positions_[i] == model_->Lineup(side_).position[static_cast<std::size_t>(row)])
                position = static_cast<int>(i);
    ui_->cmbPos->setCurrentIndex(position);
    filling_ = false;
    ui_->cmbPos->setEnabled(open && row >= 0 && row < 9);
    ui_->cmdPlace->setEnabled(open);
    ui_->cmdRemove->setEnabled(open);
    ui_->cmdPinchHit->setEnabled(open && batting && !forced);
    ui_->cmdPinchRun->setEnabled(open && batting && model_->OnBase(side_, row));
    ui_->chkComputer->setVisible(!during || forced);
    ui_->chkComputer->setEnabled(open);
    ui_->cmdUndo->setEnabled(model_->Changed(side_));
    ui_->chkCancel->setVisible(!forced);
    const LineupNotice notice = model_->ForcedNotice();
    ui_->lblHint->setText(
        notice.Any() ? QText(notice.text)
        : during     ? tr("Drag a man of the roster onto the man he replaces, or select both and press Enter; a "
                              "digit names the slot. Slots dragged onto each other change positions.")
                     : tr("Choose a stored lineup, or drag men of the roster into the order; on the keyboard a digit "
                              "names the slot, P the pitcher's. Slots dragged onto each other change places."));
}

void frmGameLineups::FitRows() {
    const double pixels = TextPixels(width(), height());
    for (ManGrid* grid : {ui_->grdLineups, ui_->grdPlayers, ui_->grdProb, ui_->grdResults, ui_->grdGone}) {
        FitGrid(*grid, pixels);
        grid->horizontalHeader()->setFixedHeight(static_cast<int>(pixels * (grid == ui_->grdGone ? 1.8 : 2.9)));
    }
    const int rows = model_->Data().DHUsed ? 10 : 9;
    ui_->grdLineups->setMinimumHeight(static_cast<int>(pixels * (1.9 * rows + 3.2)));
    ui_->grdPlayers->setColumnWidth(1, static_cast<int>(pixels * 6));
}

void frmGameLineups::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    FitRows();
}

}  // namespace tarvane
