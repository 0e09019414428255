#include "ui/frmschedulelineup.h"

#include <fmt/format.h>

#include <QDate>
#include <QGuiApplication>
#include <QHeaderView>
#include <map>

#include "base/error.h"
#include "base/file.h"
#include "data/lineups.h"
#include "data/rules.h"
#include "season/plannedlineups.h"
#include "season/scheduleedit.h"
#include "ui/gridfit.h"
#include "ui/qtext.h"
#include "ui/theme.h"
#include "ui_frmschedulelineup.h"

namespace tarvane {

namespace {

constexpr const char* kLineupTitle = "Team Management - Schedule a Lineup";
constexpr const char* kLogName = "Lineup Import Log.txt";

bool HasMen(const LineupList& list) {
    for (const ListSlot& slot : list.slot)
        if (slot.playerID != 0) return true;
    return false;
}

}  // namespace

frmScheduleLineup::frmScheduleLineup(Session& session, Services services, QWidget* parent)
    : Screen(parent),
      session_(session),
      services_(services),
      book_(session),
      ui_(std::make_unique<Ui::frmScheduleLineup>()) {
    ui_->setupUi(this);
    QTableWidget* grid = ui_->grdGames;
    grid->setColumnCount(3);
    grid->setHorizontalHeaderLabels({tr("Game Date"), tr("Opponent"), tr("Scheduled Lineup")});
    grid->verticalHeader()->hide();
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setTabKeyNavigation(false);
    grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    for (const int column : {1, 2}) grid->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    book_.Load();
    for (const Team& team : book_.Teams()) ui_->cmbTeams->addItem(QText(team.fullName));
    connect(ui_->cmbTeams, &QComboBox::currentIndexChanged, this, &frmScheduleLineup::TeamChosen);
    connect(ui_->chkScheduleLineup, &QPushButton::clicked, this, &frmScheduleLineup::ScheduleLineup);
    connect(ui_->lstLineups, &QListWidget::itemActivated, this, &frmScheduleLineup::ScheduleLineup);
    connect(ui_->chkRemoveLineup, &QPushButton::clicked, this, [this] { Fix(0); });
    connect(ui_->chkPlan, &QPushButton::clicked, this, &frmScheduleLineup::Plan);
    connect(ui_->chkImport, &QPushButton::clicked, this, &frmScheduleLineup::Import);
    connect(ui_->chkCancel, &QPushButton::clicked, this, &QWidget::close);
    TeamChosen();
}

frmScheduleLineup::~frmScheduleLineup() = default;

const Team* frmScheduleLineup::TeamInHand() const {
    const auto at = static_cast<std::size_t>(ui_->cmbTeams->currentIndex());
    return at < book_.Teams().size() ? &book_.Teams()[at] : nullptr;
}

void frmScheduleLineup::TeamChosen() {
    ui_->lstLineups->clear();
    const Team* team = TeamInHand();
    if (team == nullptr) return;
    int place = 0;
    for (const LineupList& list : LoadTeamLineups(session_.Seasons().Season(), team->teamID)) {
        // Behind the club's own lists stand those made for single games, which are for no other.
        if (++place > kLineupsPerTeam && list.GameID != 0) continue;
        if (list.LineupType != 'L' || !HasMen(list)) continue;
        auto* line = new QListWidgetItem(QText(list.LineupName), ui_->lstLineups);
        line->setData(Qt::UserRole, list.lineupID);
    }
    ListGames();
}

void frmScheduleLineup::ListGames() {
    games_.clear();
    const Team* team = TeamInHand();
    if (team == nullptr) return;
    std::map<std::int32_t, std::string> names;
    for (const LineupList& list : LoadTeamLineups(session_.Seasons().Season(), team->teamID))
        names[list.lineupID] = list.LineupName;
    QTableWidget* grid = ui_->grdGames;
    const int row = std::max(0, grid->currentRow());
    grid->setRowCount(0);
    int fixed = 0;
    for (const ScheduleEntry& entry : book_.Games()) {
        for (const Side side : kBothSides) {
            if (entry.played || entry.game.teamIdx[side] != team->TeamIdx) continue;
            const int at = grid->rowCount();
            grid->insertRow(at);
            const QDate day = QDate::fromString(QText(entry.game.GameDate), Qt::ISODate);
            const std::string opponent = book_.TeamName(entry.game.teamIdx[Other(side)]);
            const std::int32_t lineup = entry.game.lineupNbr[side];
            if (lineup != 0) ++fixed;
            grid->setItem(at, 0, new QTableWidgetItem(day.toString(QStringLiteral("MM/dd/yyyy"))));
            grid->setItem(at, 1, new QTableWidgetItem(QText((side == Side::Visitor ? "at " : "") + opponent)));
            grid->setItem(at, 2, new QTableWidgetItem(QText(lineup == 0 ? std::string() : names[lineup])));
            games_.push_back({entry.game.GameID, side});
        }
    }
    if (grid->rowCount() > 0) grid->selectRow(std::min(row, grid->rowCount() - 1));
    ui_->lblCount->setText(QText(fmt::format("{} un-played games, {} with a lineup", games_.size(), fixed)));
}

void frmScheduleLineup::ScheduleLineup() {
    const QListWidgetItem* line = ui_->lstLineups->currentItem();
    if (line == nullptr) {
        services_.dialogs.Warn("Please select a lineup to schedule.", kLineupTitle);
        return;
    }
    Fix(line->data(Qt::UserRole).toInt());
}

void frmScheduleLineup::Fix(std::int32_t lineupID) {
    try {
        Database& season = session_.Seasons().Season();
        Transaction transaction(season);
        for (const QModelIndex& index : ui_->grdGames->selectionModel()->selectedRows()) {
            const TeamGame& game = games_[static_cast<std::size_t>(index.row())];
            FixLineup(season, game.GameID, game.side, lineupID);
        }
        transaction.Commit();
    } catch (const UserError& error) {
        services_.dialogs.Warn(error.what(), kLineupTitle);
    }
    book_.Load();
    ListGames();
}

void frmScheduleLineup::Import() {
    const auto path = services_.dialogs.OpenFile("Select Game Log Import File", session_.Paths().Data08(),
                                                 "RetroSheet Import File (*.txt *.TXT)");
    if (!path) return;
    ui_->lblProgress->setText(tr("Importing Lineups - Please Wait ..."));
    ui_->lblProgress->repaint();
    std::string told;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        const ScheduleImportResult result =
            ImportLineups(session_.Seasons().Season(), ParseScheduleFile(ReadFile(*path), path->string()));
        std::vector<std::string> lines;
        for (const MissingMan& man : result.missing) lines.push_back(man.LogLine());
        WriteLog(lines);
        told = fmt::format("{} lineups scheduled for {} un-played games.", result.lineups, result.games);
        if (!lines.empty()) told += fmt::format(" {} men were not found; see {}.", lines.size(), kLogName);
        QGuiApplication::restoreOverrideCursor();
    } catch (const UserError& error) {
        QGuiApplication::restoreOverrideCursor();
        services_.dialogs.Warn(error.what(), kLineupTitle);
    }
    book_.Load();
    TeamChosen();
    ui_->lblProgress->setText(QText(told));
}

void frmScheduleLineup::Plan() {
    if (services_.dialogs.Ask("Plan the lineups of all teams by how often each man really played? Lineups that are "
                              "scheduled already stay.\nClick Yes to plan the lineups, otherwise Click No.",
                              kLineupTitle) != Reply::Yes)
        return;
    Database& season = session_.Seasons().Season();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const int planned = PlanScheduledLineups(season);
    QGuiApplication::restoreOverrideCursor();
    book_.Load();
    TeamChosen();
    ui_->lblProgress->setText(QText(planned > 0 ? fmt::format("{} lineups planned.", planned)
                                                : "Nothing to plan: every un-played game has its lineups, or the "
                                                  "season has no real statistics."));
    if (planned > 0 && LoadLeagueRules(season).IgnoreSchedLineups)
        services_.dialogs.Warn("The rule \"Ignore Scheduled Lineups\" is on: these lineups aren't used until it is off.",
                               kLineupTitle);
}

// Who of the log isn't in the season, in the season's folder.
void frmScheduleLineup::WriteLog(const std::vector<std::string>& lines) const {
    if (lines.empty()) return;
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    WriteFile(session_.Paths().SeasonFolder(session_.Seasons().ActiveSeason()) / kLogName, text);
}

void frmScheduleLineup::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    FitGrid(*ui_->grdGames, TextPixels(width(), height()));
}

}  // namespace tarvane
