#include "ui/frmpreschedgame.h"

#include <fmt/format.h>

#include <QGuiApplication>
#include <QHeaderView>

#include "base/error.h"
#include "base/file.h"
#include "ui/frmscheduler.h"
#include "ui/gridfit.h"
#include "ui/qtext.h"
#include "ui/scheduledgame.h"
#include "ui/theme.h"
#include "ui_frmpreschedgame.h"

namespace tarvane {

namespace {

constexpr const char* kPlayOneTitle = "Play Scheduled Game";
// The columns of the grid.
constexpr int kSaved = 0, kVisitor = 1, kVisitorScore = 2, kHome = 3, kHomeScore = 4, kStatus = 5, kGridColumns = 6;

QTableWidgetItem* GridCell(const std::string& text, Qt::Alignment alignment = Qt::AlignLeft) {
    auto* cell = new QTableWidgetItem(QText(text));
    cell->setTextAlignment(alignment | Qt::AlignVCenter);
    return cell;
}

TeamEntry EntryOf(const Team& team) {
    return {team.TeamIdx, team.teamID, team.fullName, team.ParkID, team.ComputerManaged, team.AlwaysHumanManaged};
}

}  // namespace

frmPreSchedGame::frmPreSchedGame(Session& session, Services services, const GameOptions& options, std::uint64_t seed,
                                 QWidget* parent)
    : Screen(parent),
      session_(session),
      services_(services),
      options_(options),
      seed_(seed),
      book_(session),
      ui_(std::make_unique<Ui::frmPreSchedGame>()) {
    ui_->setupUi(this);
    switches_ = {{ManagerSwitches(*this, Side::Visitor), ManagerSwitches(*this, Side::Home)}};
    ui_->lblSeason->setText(QText(session_.Seasons().ActiveSeason()));
    SetUpGrid();
    connect(ui_->Calendar, &QCalendarWidget::selectionChanged, this, &frmPreSchedGame::ListScheduledGames);
    connect(ui_->grdSched, &QTableWidget::itemSelectionChanged, this, &frmPreSchedGame::SelectionChanged);
    connect(ui_->grdSched, &QTableWidget::cellActivated, this, &frmPreSchedGame::Open);
    connect(ui_->chkNext, &QPushButton::clicked, this, &frmPreSchedGame::Next);
    connect(ui_->chkPlayTo, &QPushButton::clicked, this, &frmPreSchedGame::PlayTo);
    connect(ui_->chkCancel, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->cmdQuitQuickPlay, &QPushButton::clicked, this, [this] {
        if (run_) run_->Stop();
        Tick();
    });
    connect(&ticks_, &QTimer::timeout, this, &frmPreSchedGame::Tick);
    connect(ui_->chkEditSched, &QPushButton::clicked, this,
            [this] { OpenOver(new frmScheduler(session_, services_)); });
    GetSchedData();
}

frmPreSchedGame::~frmPreSchedGame() = default;

void frmPreSchedGame::SetUpGrid() {
    QTableWidget* grid = ui_->grdSched;
    grid->setColumnCount(kGridColumns);
    grid->setHorizontalHeaderLabels({tr("Saved"), tr("Visitors"), tr("R"), tr("Home"), tr("R"), tr("Status")});
    grid->verticalHeader()->hide();
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setTabKeyNavigation(false);
    for (const int column : {kSaved, kVisitorScore, kHomeScore, kStatus})
        grid->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    for (const int column : {kVisitor, kHome})
        grid->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
}

void frmPreSchedGame::GetSchedData() {
    book_.Load();
    ui_->Calendar->SetDays(book_.Days());
    if (const auto next = book_.NextUnplayed())
        ui_->Calendar->SetDay(book_.Games()[*next].game.GameDate);
    else if (!book_.Games().empty())
        ui_->Calendar->SetDay(book_.Games().back().game.GameDate);
    ListScheduledGames();
    TellEmptySchedule();
    ui_->chkNext->setFocus();
}

void frmPreSchedGame::TellEmptySchedule() {
    ui_->lblProgress->clear();
    if (book_.Games().empty())
        ui_->lblProgress->setText(
            tr("There are no scheduled games for this season. Click Edit Schedule to set up or "
               "import scheduled games."));
    else if (book_.UnplayedCount() == 0)
        ui_->lblProgress->setText(tr("All regular season games have been played."));
}

void frmPreSchedGame::FillRow(int row, const ScheduleEntry& entry) {
    QTableWidget* grid = ui_->grdSched;
    const auto score = [&](Side side) { return entry.played ? std::to_string(entry.score[side]) : std::string(); };
    grid->setItem(row, kSaved, GridCell(entry.saved ? "Y" : "", Qt::AlignHCenter));
    grid->setItem(row, kVisitor, GridCell(book_.TeamName(entry.game.teamIdx[Side::Visitor])));
    grid->setItem(row, kVisitorScore, GridCell(score(Side::Visitor), Qt::AlignRight));
    grid->setItem(row, kHome, GridCell(book_.TeamName(entry.game.teamIdx[Side::Home])));
    grid->setItem(row, kHomeScore, GridCell(score(Side::Home), Qt::AlignRight));
    grid->setItem(row, kStatus, GridCell(entry.played ? "Played" : "Un-played"));
    if (!entry.played) return;
    // The winner stands out.
    const bool home = entry.score[Side::Home] > entry.score[Side::Visitor];
    for (const int column : {home ? kHome : kVisitor, home ? kHomeScore : kVisitorScore}) {
        QFont font = grid->font();
        font.setBold(true);
        grid->item(row, column)->setFont(font);
    }
    for (const int column : {home ? kVisitor : kHome, home ? kVisitorScore : kHomeScore, kStatus})
        grid->item(row, column)->setForeground(theme::kInkSoft);
}

void frmPreSchedGame::ListScheduledGames() {
    QTableWidget* grid = ui_->grdSched;
    const QSignalBlocker quiet(grid);
    shown_ = book_.On(ui_->Calendar->Day());
    ui_->lblDate->setText(ui_->Calendar->DayText());
    grid->clearContents();
    grid->setRowCount(std::max<int>(1, static_cast<int>(shown_.size())));
    int select = -1, played = 0;
    bool saved = false;
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        const ScheduleEntry& entry = book_.Games()[shown_[i]];
        FillRow(static_cast<int>(i), entry);
        if (entry.played) ++played;
        saved = saved || entry.saved;
        if (!entry.played && select < 0) select = static_cast<int>(i);
    }
    if (shown_.empty()) {
        grid->setItem(0, kVisitor, GridCell("None scheduled"));
        grid->setItem(0, kHome, GridCell("None scheduled"));
    }
    grid->setColumnHidden(kSaved, !saved);
    grid->clearSelection();
    if (select >= 0) grid->selectRow(select);
    ui_->lblResultsMsg->setText(QText(book_.CountText()) +
                                (played > 0 ? tr("   -   Double click played game to view results ") : QString()));
    SelectionChanged();
}

std::optional<std::size_t> frmPreSchedGame::Selected() const {
    const QModelIndexList rows = ui_->grdSched->selectionModel()->selectedRows();
    if (rows.isEmpty()) return std::nullopt;
    const auto row = static_cast<std::size_t>(rows.front().row());
    if (row >= shown_.size()) return std::nullopt;
    return shown_[row];
}

// The two teams' own rows decide who manages them; only a team without a mark keeps what the settings say.
void frmPreSchedGame::SelectionChanged() {
    const auto selected = Selected();
    for (const Side side : kBothSides) {
        QLabel* label = side == Side::Visitor ? ui_->lblVisitorTeam : ui_->lblHomeTeam;
        const QString caption = side == Side::Visitor ? tr("Visitors") : tr("Home");
        const Team* team = selected ? book_.FindTeam(book_.Games()[*selected].game.teamIdx[side]) : nullptr;
        label->setText(team == nullptr ? caption
                                       : QText(fmt::format("{}:  {}  ({}-{})", caption.toStdString(), team->fullName,
                                                           team->W, team->L)));
        switches_[side].Show(team == nullptr ? ManagerChoice{options_.computer[side], false}
                                             : ManagerChoiceOf(EntryOf(*team), options_.computer[side]));
    }
}

void frmPreSchedGame::Open(int row) {
    const auto at = static_cast<std::size_t>(row);
    if (run_ || at >= shown_.size()) return;
    const ScheduleEntry& entry = book_.Games()[shown_[at]];
    if (entry.played)
        ShowResults(entry);
    else
        Next();
}

void frmPreSchedGame::ShowResults(const ScheduleEntry& entry) {
    const std::filesystem::path file =
        session_.Paths().GameResults(session_.Seasons().ActiveSeason()) / entry.resultsFile1;
    std::error_code error;
    if (entry.resultsFile1.find_first_not_of(' ') == std::string::npos ||
        !std::filesystem::is_regular_file(file, error)) {
        ui_->lblProgress->setText(tr("No box score was saved for this game."));
        return;
    }
    if (file.extension() == ".txt")
        services_.dialogs.ShowDocument(ReadFile(file), "Box Score");
    else
        services_.browser.Open("file://" + file.string());
}

void frmPreSchedGame::Next() {
    const auto selected = Selected();
    const auto warn = [this](const std::string& text) { services_.dialogs.Warn(text, kPlayOneTitle); };
    if (!selected || book_.Games()[*selected].played) return warn("Please select un-played game");
    const ScheduleEntry& entry = book_.Games()[*selected];
    if (!book_.InTurn(*selected)) return warn("Scheduled games must be played sequentially");
    // A saved game has its managers, and whatever they need, in its file.
    PerSide<SideControl> control;
    if (!entry.saved) control = {{switches_[Side::Visitor].Read(), switches_[Side::Home].Read()}};
    try {
        const ManagerFault fault = CheckScheduledGame(session_, entry.game, control);
        if (fault.Any()) {
            services_.dialogs.Warn(fault.text, fault.title);
            return;
        }
        if (entry.saved) {
            Q_EMIT ResumeGame(book_.SaveFile(entry.game.GameID));
            return;
        }
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const GamePtr setup = PrepareScheduledGame(session_, entry.game, control);
        QGuiApplication::restoreOverrideCursor();
        Q_EMIT GameReady(setup);
    } catch (const UserError& error) {
        QGuiApplication::restoreOverrideCursor();
        warn(error.what());
    }
}

bool frmPreSchedGame::MayClose() {
    if (!run_) return true;
    closeAfterRun_ = true;
    run_->Stop();
    Tick();
    return false;
}

void frmPreSchedGame::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    const double pixels = TextPixels(width(), height());
    ui_->Calendar->SetTextPixels(pixels);
    FitGrid(*ui_->grdSched, pixels);
}

}  // namespace tarvane
