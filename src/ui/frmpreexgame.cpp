#include "ui/frmpreexgame.h"

#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>

#include "base/error.h"
#include "season/managerchecks.h"
#include "ui_frmpreexgame.h"

namespace tarvane {

namespace {
constexpr const char* kExhibitionTitle = "Play Exhibition Game";
}

frmPreExGame::frmPreExGame(SeasonAccess& seasons, Services services, const GameOptions& options, QWidget* parent)
    : Screen(parent),
      seasons_(seasons),
      services_(services),
      options_(options),
      teams_(seasons.Teams()),
      parks_(seasons.Parks()),
      ui_(std::make_unique<Ui::frmPreExGame>()) {
    ui_->setupUi(this);
    switches_[Side::Visitor] = {{ui_->framVisitorLineups, ui_->framVisitorSubs, ui_->framVisitorGame},
                                {ui_->optRdCompLineups, ui_->optRdCompSubs, ui_->optRdCompGame},
                                {ui_->optRdHumanLineups, ui_->optRdHumanSubs, ui_->optRdHumanGame}};
    switches_[Side::Home] = {{ui_->framHomeLineups, ui_->framHomeSubs, ui_->framHomeGame},
                             {ui_->optHomeCompLineups, ui_->optHomeCompSubs, ui_->optHomeCompGame},
                             {ui_->optHomeHumanLineups, ui_->optHomeHumanSubs, ui_->optHomeHumanGame}};
    combo_ = {{ui_->cmbVisitorTeam, ui_->cmbHomeTeam}};
    for (const Side side : kBothSides) {
        for (const TeamEntry& team : teams_) combo_[side]->addItem(QString::fromStdString(team.fullName));
        combo_[side]->setCurrentIndex(-1);
        Show(side, {options_.computer[side], false});
        connect(combo_[side], &QComboBox::currentIndexChanged, this, [this, side] { TeamChosen(side); });
    }
    for (const ParkEntry& park : parks_) ui_->cmbParks->addItem(QString::fromStdString(ParkText(park)));
    ui_->cmbParks->setCurrentIndex(-1);
    connect(ui_->cmdNext, &QPushButton::clicked, this, &frmPreExGame::Next);
    connect(ui_->chkCancel, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->cmdHostInternet, &QPushButton::clicked, this,
            [this] { ui_->lblStatus->setText(tr("This screen is not built yet.")); });
}

frmPreExGame::~frmPreExGame() = default;

void frmPreExGame::TeamChosen(Side side) {
    const int index = combo_[side]->currentIndex();
    if (index < 0) return;
    const TeamEntry& team = teams_[static_cast<std::size_t>(index)];
    Show(side, ManagerChoiceOf(team, options_.computer[side]));
    if (side == Side::Home) ui_->cmbParks->setCurrentIndex(ParkOf(team, parks_));
}

void frmPreExGame::Show(Side side, const ManagerChoice& choice) {
    const std::array<bool, 3> computer{choice.control.lineups, choice.control.subs, choice.control.game};
    Switches& switches = switches_[side];
    for (std::size_t i = 0; i < computer.size(); ++i) {
        (computer[i] ? switches.computer[i] : switches.human[i])->setChecked(true);
        switches.frame[i]->setEnabled(!choice.locked);
    }
}

SideControl frmPreExGame::Read(Side side) const {
    const auto& computer = switches_[side].computer;
    return {computer[0]->isChecked(), computer[1]->isChecked(), computer[2]->isChecked()};
}

void frmPreExGame::Next() {
    const ExhibitionChoice choice{combo_[Side::Visitor]->currentIndex(), combo_[Side::Home]->currentIndex(),
                                  ui_->cmbParks->currentIndex()};
    if (const auto fault = ExhibitionFault(choice)) {
        services_.dialogs.Warn(*fault, kExhibitionTitle);
        return;
    }
    const auto team = [&](Side side) { return teams_[static_cast<std::size_t>(combo_[side]->currentIndex())].teamID; };
    try {
        const GamePtr setup = seasons_.Exhibition({team(Side::Visitor),
                                                   team(Side::Home),
                                                   parks_[static_cast<std::size_t>(choice.park)].parkID,
                                                   {{Read(Side::Visitor), Read(Side::Home)}}});
        if (ManagersReady(*setup)) Q_EMIT GameReady(setup);
    } catch (const UserError& error) {
        services_.dialogs.Warn(error.what(), kExhibitionTitle);
    }
}

// A computer manager needs his lists: line-ups of both sides first, then what substitutions are made from.
bool frmPreExGame::ManagersReady(const GameSetup& setup) {
    const auto fine = [this](const ManagerFault& fault) {
        if (fault.Any()) services_.dialogs.Warn(fault.text, fault.title);
        return !fault.Any();
    };
    for (const Side side : kBothSides)
        if (setup.control[side].lineups &&
            !fine(CheckComputerLineups(setup.data[side].roster, side, setup.data.DHUsed)))
            return false;
    for (const Side side : kBothSides)
        if (setup.control[side].subs && !fine(CheckComputerDepth(setup.data[side].roster, side))) return false;
    return true;
}

}  // namespace tarvane
