#include "ui/frmscheduler.h"

#include <fmt/format.h>

#include <QHeaderView>
#include <QKeyEvent>

#include "base/error.h"
#include "data/settings.h"
#include "season/balancedschedule.h"
#include "season/scheduleedit.h"
#include "ui/frmschedreport.h"
#include "ui/frmschedulelineup.h"
#include "ui/gridfit.h"
#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmscheduler.h"

namespace tarvane {

namespace {
constexpr const char* kAddTitle = "Add Scheduled Games";
constexpr const char* kRemoveTitle = "Remove Scheduled Games";
constexpr int kLongestSeries = 7, kMostGamesOfATeam = 174;
constexpr int kDayVisitors = 0, kDayHome = 1, kDayStatus = 2, kDayColumns = 3;
}  // namespace

frmScheduler::frmScheduler(Session& session, Services services, QWidget* parent)
    : Screen(parent),
      session_(session),
      services_(services),
      book_(session),
      ui_(std::make_unique<Ui::frmScheduler>()) {
    ui_->setupUi(this);
    ui_->lblSeason->setText(QText(session_.Seasons().ActiveSeason()));
    for (int games = 1; games <= kLongestSeries; ++games) ui_->cmbNbrGames->addItem(QString::number(games));
    ui_->numGames->setRange(1, kMostGamesOfATeam);
    ui_->numGames->setValue(kUsualGames);
    SetUpGrid();
    ConnectControls();
    LoadScheduleList();
    ListTeams();
    RefreshScheduleGrid();
}

frmScheduler::~frmScheduler() = default;

void frmScheduler::ConnectControls() {
    const auto click = [this](QPushButton* button, auto slot) { connect(button, &QPushButton::clicked, this, slot); };
    connect(ui_->Calendar, &QCalendarWidget::selectionChanged, this, &frmScheduler::RefreshScheduleGrid);
    click(ui_->chkAddGames, &frmScheduler::AddGames);
    connect(ui_->chkRemoveGames, &QPushButton::clicked, ui_->cmdRemoveGames, &QPushButton::click);
    click(ui_->cmdRemoveGames, &frmScheduler::RemoveSelected);
    click(ui_->chkRemoveAll, &frmScheduler::RemoveAll);
    click(ui_->chkImport, [this] { Import(false); });
    click(ui_->chkImportGameLog, [this] { Import(true); });
    click(ui_->chkExport, &frmScheduler::Export);
    click(ui_->chkBalanced, &frmScheduler::MakeBalanced);
    click(ui_->chkReport, [this] { OpenOver(new frmSchedReport(session_)); });
    click(ui_->chkLineups, [this] { OpenOver(new frmScheduleLineup(session_, services_)); });
    connect(ui_->chkCancel, &QPushButton::clicked, ui_->cmdCancel, &QPushButton::click);
    click(ui_->cmdCancel, [this] { close(); });
    ui_->lstTeams->setDragEnabled(true);
    ui_->lstTeams->installEventFilter(this);
    connect(ui_->lstTeams, &QListWidget::itemActivated, this,
            [this] { Pick(pick_[Side::Visitor] == 0 ? Side::Visitor : Side::Home); });
    const auto accept = [this](Side side) {
        return [this, side](const QObject* list) {
            if (list == ui_->lstTeams) Pick(side);
        };
    };
    connect(ui_->lblVisitors, &DropLabel::Dropped, this, accept(Side::Visitor));
    connect(ui_->lblHome, &DropLabel::Dropped, this, accept(Side::Home));
}

void frmScheduler::SetUpGrid() {
    QTableWidget* grid = ui_->grdSched;
    grid->setColumnCount(kDayColumns);
    grid->setHorizontalHeaderLabels({tr("Visitors"), tr("Home"), tr("Status")});
    grid->verticalHeader()->hide();
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::ContiguousSelection);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setTabKeyNavigation(false);
    for (const int column : {kDayVisitors, kDayHome})
        grid->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    grid->horizontalHeader()->setSectionResizeMode(kDayStatus, QHeaderView::ResizeToContents);
}

void frmScheduler::ListTeams() {
    ui_->lstTeams->clear();
    for (const Team& team : book_.Teams()) {
        auto* line = new QListWidgetItem(QText(fmt::format("{} ({})", team.fullName, team.teamID)), ui_->lstTeams);
        line->setData(Qt::UserRole, team.TeamIdx);
    }
    if (ui_->lstTeams->count() > 0) ui_->lstTeams->setCurrentRow(0);
}

void frmScheduler::LoadScheduleList() {
    book_.Load();
    const QSignalBlocker quiet(ui_->Calendar);
    ui_->Calendar->SetDays(book_.Days());
    if (!lastAddDate_.empty())
        ui_->Calendar->SetDay(lastAddDate_);
    else if (!book_.Games().empty())
        ui_->Calendar->SetDay(book_.Games().front().game.GameDate);
    ui_->lblCount->setText(QText(book_.CountText()));
}

void frmScheduler::RefreshScheduleGrid() {
    QTableWidget* grid = ui_->grdSched;
    shown_ = book_.On(ui_->Calendar->Day());
    ui_->lblDate->setText(ui_->Calendar->DayText());
    grid->clearContents();
    grid->clearSelection();
    grid->setRowCount(std::max<int>(1, static_cast<int>(shown_.size())));
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const ScheduleEntry& entry = book_.Games()[shown_[i]];
        const int row = static_cast<int>(i);
        grid->setItem(row, kDayVisitors,
                      new QTableWidgetItem(QText(book_.TeamName(entry.game.teamIdx[Side::Visitor]))));
        grid->setItem(row, kDayHome, new QTableWidgetItem(QText(book_.TeamName(entry.game.teamIdx[Side::Home]))));
        grid->setItem(row, kDayStatus, new QTableWidgetItem(entry.played ? tr("Played") : tr("Un-played")));
        if (!entry.played) continue;
        for (int column = 0; column < kDayColumns; ++column) grid->item(row, column)->setForeground(theme::kInkSoft);
    }
    if (shown_.empty())
        for (const int column : {kDayVisitors, kDayHome})
            grid->setItem(0, column, new QTableWidgetItem(tr("None scheduled")));
}

void frmScheduler::Reload() {
    LoadScheduleList();
    RefreshScheduleGrid();
}

// --- By hand ---------------------------------------------------------------------------------------------------------

bool frmScheduler::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->lstTeams && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_V || key == Qt::Key_H) {
            Pick(key == Qt::Key_V ? Side::Visitor : Side::Home);
            return true;
        }
    }
    return Screen::eventFilter(watched, event);
}

void frmScheduler::Pick(Side side) {
    const QListWidgetItem* line = ui_->lstTeams->currentItem();
    if (line == nullptr) return;
    pick_[side] = line->data(Qt::UserRole).toInt();
    (side == Side::Visitor ? ui_->lblVisitors : ui_->lblHome)->setText(QText(book_.TeamName(pick_[side])));
    const GameSettings& settings = session_.Settings();
    if (settings.MiscSounds && !settings.LeagueOrgDropSound.empty())
        services_.sound.Play(SoundFile(session_.Paths(), settings.LeagueOrgDropSound));
}

void frmScheduler::AddGames() {
    for (const Side side : kBothSides)
        if (pick_[side] == 0) {
            services_.dialogs.Warn(side == Side::Visitor ? "Please select Visitor team" : "Please select Home team",
                                   kAddTitle);
            return;
        }
    lastAddDate_ = ui_->Calendar->Day();
    const int games = ui_->cmbNbrGames->currentIndex() + 1;
    if (Try(kAddTitle, [&] { AddSeries(session_.Seasons().Season(), lastAddDate_, games, pick_); }))
        ui_->lblProgress->setText(QText(fmt::format("{} game{} added.", games, games == 1 ? "" : "s")));
    Reload();
}

void frmScheduler::RemoveSelected() {
    std::vector<std::int32_t> games;
    for (const QModelIndex& index : ui_->grdSched->selectionModel()->selectedRows())
        if (const auto row = static_cast<std::size_t>(index.row()); row < shown_.size())
            games.push_back(book_.Games()[shown_[row]].game.GameID);
    if (games.empty()) {
        services_.dialogs.Warn("Please select game(s) to Remove", kRemoveTitle);
        return;
    }
    lastAddDate_ = ui_->Calendar->Day();
    if (!Try(kRemoveTitle, [&] { RemoveGames(session_.Seasons().Season(), games); })) return;
    ui_->lblProgress->setText(QText(fmt::format("{} game{} removed.", games.size(), games.size() == 1 ? "" : "s")));
    Reload();
}

void frmScheduler::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    const double pixels = TextPixels(width(), height());
    ui_->Calendar->SetTextPixels(pixels);
    FitGrid(*ui_->grdSched, pixels);
}

}  // namespace tarvane
