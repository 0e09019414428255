#include "ui/frmgamelineups.h"

#include <fmt/format.h>

#include <QEvent>
#include <QKeyEvent>

#include "ui/frmviewlineup.h"
#include "ui/mangrid.h"
#include "ui/names.h"
#include "ui/qtext.h"
#include "ui_frmgamelineups.h"

namespace tarvane {

frmGameLineups::frmGameLineups(GamePtr setup, const GameOptions& options, Services services, QWidget* parent)
    : Screen(parent),
      setup_(std::move(setup)),
      options_(options),
      services_(services),
      model_(std::make_unique<LineupModel>(*setup_)),
      ui_(std::make_unique<Ui::frmGameLineups>()) {
    // The team whose line-up is still to be chosen comes first.
    const bool visitorsDone = setup_->control[Side::Visitor].lineups && !setup_->control[Side::Home].lineups;
    side_ = visitorsDone ? Side::Home : Side::Visitor;
    Build();
}

frmGameLineups::frmGameLineups(GameSession& session, Side side, Services services, QWidget* parent)
    : Screen(parent),
      session_(&session),
      options_(session.Options()),
      services_(services),
      model_(std::make_unique<LineupModel>(session.Game(), session.State())),
      ui_(std::make_unique<Ui::frmGameLineups>()),
      side_(side) {
    Build();
}

frmGameLineups::~frmGameLineups() = default;

void frmGameLineups::Build() {
    ui_->setupUi(this);
    const GameData& game = model_->Data();
    ui_->optVisitorTeam->setText(tr("&Visitors: %1").arg(QText(TeamName(game, Side::Visitor))));
    ui_->optHomeTeam->setText(tr("Ho&me: %1").arg(QText(TeamName(game, Side::Home))));
    const bool during = model_->DuringGame();
    for (QWidget* before : {static_cast<QWidget*>(ui_->lblTeamLineups), static_cast<QWidget*>(ui_->cmbTeamLineups),
                            static_cast<QWidget*>(ui_->cmdRemove)})
        before->setVisible(!during);
    for (QWidget* inGame : {static_cast<QWidget*>(ui_->cmdPinchHit), static_cast<QWidget*>(ui_->cmdPinchRun),
                            static_cast<QWidget*>(ui_->lblGone), static_cast<QWidget*>(ui_->grdGone)})
        inGame->setVisible(during);
    filling_ = true;
    ui_->cmbChartType->addItems({tr("Legacy Chart"), tr("Probability Chart"), tr("Results Chart")});
    ui_->cmbChartType->setCurrentIndex(options_.DefaultChartType == 'P' ? 1 : options_.DefaultChartType == 'R' ? 2 : 0);
    BuildShowByPosComboBox();
    BuildPosComboBox();
    SetUpGrids();
    filling_ = false;
    ConnectControls();
    ShowSide(side_);
    PresetForced();
    ui_->grdLineups->setFocus();
}

void frmGameLineups::BuildShowByPosComboBox() {
    for (const RosterFilter& filter : LineupModel::Filters()) ui_->cmbShowByPos->addItem(QText(filter.text).trimmed());
}

void frmGameLineups::BuildPosComboBox() {
    positions_ = model_->Positions();
    for (const Position position : positions_)
        ui_->cmbPos->addItem(QText(std::string(PositionText(position))).trimmed());
}

// A change that the game waits for shows the place concerned and the men for it.
void frmGameLineups::PresetForced() {
    const auto forced = model_->ForcedSide();
    if (!forced) return;
    const Awaited& awaited = session_->State().awaited;
    const bool pitcher = awaited.position == Position::P || awaited.cause == LineupCause::RelieverLimit;
    const std::vector<RosterFilter> filters = LineupModel::Filters();
    for (std::size_t i = 0; i < filters.size(); ++i)
        if (pitcher ? filters[i].role == 'R' : IsFielder(awaited.position) && filters[i].position == awaited.position)
            ui_->cmbShowByPos->setCurrentIndex(static_cast<int>(i));
    const int row = pitcher ? PitcherRow() : awaited.slot - 1;
    if (row >= 0) ui_->grdLineups->selectRow(row);
}

void frmGameLineups::ConnectControls() {
    const auto click = [this](QPushButton* button, auto slot) { connect(button, &QPushButton::clicked, this, slot); };
    click(ui_->optVisitorTeam, [this] { ShowSide(Side::Visitor); });
    click(ui_->optHomeTeam, [this] { ShowSide(Side::Home); });
    click(ui_->cmdPlace, [this] { PlaceMan(SelectedRow(), SelectedMan()); });
    click(ui_->cmdRemove, [this] { Tell(model_->Remove(side_, SelectedRow())); });
    click(ui_->cmdPinchHit, [this] { Pinch(false); });
    click(ui_->cmdPinchRun, [this] { Pinch(true); });
    click(ui_->chkComputer, [this] {
        Tell(model_->LetComputerChoose(side_) ? "" : "The computer manager finds nobody who could play there.");
    });
    click(ui_->chkViewLineup, [this] { OpenOver(new frmViewLineup(*model_)); });
    click(ui_->cmdUndo, [this] {
        model_->Undo(side_);
        Refresh();
    });
    click(ui_->cmdPlay, &frmGameLineups::Play);
    click(ui_->chkCancel, [this] { close(); });
    connect(ui_->cmbTeamLineups, &QComboBox::currentIndexChanged, this, [this](int list) {
        if (filling_) return;
        model_->TakeList(side_, list);
        Refresh();
    });
    connect(ui_->cmbPos, &QComboBox::currentIndexChanged, this, &frmGameLineups::PositionChosen);
    connect(ui_->cmbShowByPos, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
    connect(ui_->cmbChartType, &QComboBox::currentIndexChanged, this, [this] { ShowFigures(); });
    connect(ui_->optvsLeft, &QRadioButton::toggled, this, [this](bool left) {
        if (filling_) return;
        // A side that goes by one of its lists goes over to the one for the other hand.
        const int list = model_->ListAgainst(side_, left);
        const bool byList =
            model_->ChosenList(side_) < 0 || model_->ChosenList(side_) == model_->ListAgainst(side_, !left);
        if (!model_->DuringGame() && byList && list >= 0) model_->TakeList(side_, list);
        Refresh();
    });
    for (QCheckBox* box : {ui_->chkToggleActual, ui_->chkToggleStats, ui_->chkShowPitcherBat})
        connect(box, &QCheckBox::toggled, this, [this] { ShowFigures(); });
    connect(ui_->grdLineups, &ManGrid::Dropped, this, &frmGameLineups::DropOnLineup);
    connect(ui_->grdPlayers, &ManGrid::Dropped, this, [this](int, const ManDrag& drag) { DropOnRoster(drag); });
    connect(ui_->grdLineups, &QTableWidget::itemSelectionChanged, this, [this] {
        if (!filling_) ShowButtons();
    });
    connect(ui_->grdPlayers, &QTableWidget::itemSelectionChanged, this, [this] {
        if (!filling_) ShowChartOfMan();
    });
    for (ManGrid* grid : {ui_->grdPlayers, ui_->grdProb, ui_->grdResults, ui_->grdLineups})
        grid->installEventFilter(this);
}

// --- Moves -----------------------------------------------------------------------------------------------------------

void frmGameLineups::Tell(const std::string& refusal) {
    if (!refusal.empty()) services_.dialogs.Warn(refusal, kLineupsTitle);
    Refresh();
}

int frmGameLineups::PitcherRow() const {
    if (model_->Data().DHUsed) return kPitcherRow;
    const auto& positions = model_->Lineup(side_).position;
    for (std::size_t i = 0; i < positions.size(); ++i)
        if (positions[i] == Position::P) return static_cast<int>(i);
    return -1;
}

void frmGameLineups::PlaceMan(int row, PlayerRef man) {
    if (row < 0 || man.Nobody()) return Tell("Select a player of the roster and his place in the lineup.");
    Tell(model_->Place(side_, row, man));
    ui_->grdLineups->selectRow(row);
}

void frmGameLineups::DropOnLineup(int row, const ManDrag& drag) {
    if (row < 0) return;
    if (drag.row < 0) return PlaceMan(row, drag.man);
    Tell(model_->Swap(side_, drag.row, row));
    ui_->grdLineups->selectRow(row);
}

void frmGameLineups::DropOnRoster(const ManDrag& drag) {
    if (drag.row >= 0) Tell(model_->Remove(side_, drag.row));
}

void frmGameLineups::PositionChosen(int index) {
    const int row = SelectedRow();
    if (filling_ || index < 0 || row < 0) return;
    const Position position = positions_[static_cast<std::size_t>(index)];
    if (model_->AsksForPinch(side_, row, position) &&
        services_.dialogs.Ask("The pinch hitter specified is for lineup slot not currently up in the batting order. "
                              "Please confirm that you want to set the pinch hitter in that slot.\nClick Yes to set "
                              "the pinch hitter anyway.\nOtherwise Click No to keep current position.",
                              "Choose Player Position") != Reply::Yes)
        return Refresh();
    Tell(model_->SetPosition(side_, row, position));
}

void frmGameLineups::Pinch(bool runner) {
    const PlayerRef man = SelectedMan();
    if (man.Nobody()) return Tell("Select a player of the roster.");
    int row = runner ? SelectedRow() : model_->SlotAtBat(side_);
    Tell(runner ? model_->PinchRun(side_, row, man) : model_->PinchHit(side_, man));
    if (row >= 0) ui_->grdLineups->selectRow(row);
}

// Digits, and P for the pitcher's place, put the selected man there; Enter puts him into the selected place.
bool frmGameLineups::RosterKey(int key) {
    if (key >= Qt::Key_1 && key <= Qt::Key_9)
        PlaceMan(key - Qt::Key_1, SelectedMan());
    else if (key == Qt::Key_0 || key == Qt::Key_P)
        PlaceMan(PitcherRow(), SelectedMan());
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        PlaceMan(SelectedRow(), SelectedMan());
    else
        return false;
    return true;
}

// A digit moves the selected slot there; Delete empties it.
bool frmGameLineups::LineupKey(int key) {
    if (key >= Qt::Key_1 && key <= Qt::Key_9)
        DropOnLineup(key - Qt::Key_1, {{}, SelectedRow()});
    else if (key == Qt::Key_Delete)
        Tell(model_->Remove(side_, SelectedRow()));
    else
        return false;
    return true;
}

bool frmGameLineups::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool plain = (key->modifiers() & (Qt::AltModifier | Qt::ControlModifier)) == 0;
        if (key->key() == Qt::Key_Escape) {
            close();
            return true;
        }
        if (plain && (watched == ui_->grdLineups ? LineupKey(key->key()) : RosterKey(key->key()))) return true;
    }
    return Screen::eventFilter(watched, event);
}

// --- The end ---------------------------------------------------------------------------------------------------------

void frmGameLineups::Play() {
    const LineupNotice fault = model_->Fault();
    if (fault.Any()) {
        services_.dialogs.Warn(fault.text, fault.title);
        return;
    }
    if (session_ != nullptr) return PlayChanges();
    auto ready = std::make_shared<PreparedGame>(*setup_);
    for (const Side side : kBothSides) ready->lineup[side] = model_->Lineup(side);
    done_ = true;
    Q_EMIT GameReady(ready);
}

void frmGameLineups::PlayChanges() {
    const Reject reject = session_->ChangeLineups(model_->Changes());
    if (reject != Reject::None) {
        services_.dialogs.Warn(std::string(RejectText(reject)), kLineupsTitle);
        return;
    }
    done_ = true;
    close();
}

bool frmGameLineups::MayClose() {
    return done_ || !model_->ForcedSide();
}

}  // namespace tarvane
