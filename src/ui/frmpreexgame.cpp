#include "ui/frmpreexgame.h"

#include <QComboBox>

#include "base/error.h"
#include "data/session.h"
#include "savegame/savefile.h"
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
    switches_ = {{ManagerSwitches(*this, Side::Visitor), ManagerSwitches(*this, Side::Home)}};
    combo_ = {{ui_->cmbVisitorTeam, ui_->cmbHomeTeam}};
    for (const Side side : kBothSides) {
        for (const TeamEntry& team : teams_) combo_[side]->addItem(QString::fromStdString(team.fullName));
        combo_[side]->setCurrentIndex(-1);
        switches_[side].Show({options_.computer[side], false});
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
    switches_[side].Show(ManagerChoiceOf(team, options_.computer[side]));
    if (side == Side::Home) ui_->cmbParks->setCurrentIndex(ParkOf(team, parks_));
}

void frmPreExGame::OfferSavedGame() {
    if (seasons_.Store() == nullptr) return;
    const Session& store = *seasons_.Store();
    const std::filesystem::path file =
        SaveGameFile(store.Paths().SeasonFolder(seasons_.ActiveSeason()), kExhibitionGameID);
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) return;
    if (services_.dialogs.Ask("A saved exhibition game file exists. Do you want to resume the saved exhibition game?\n"
                              "Click Yes to resume the saved exhibition game, otherwise Click No.",
                              "Play Exibition Game") == Reply::Yes)
        Q_EMIT ResumeGame(file);
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
                                                   {{switches_[Side::Visitor].Read(), switches_[Side::Home].Read()}}});
        if (ManagersReady(*setup)) Q_EMIT GameReady(setup);
    } catch (const UserError& error) {
        services_.dialogs.Warn(error.what(), kExhibitionTitle);
    }
}

// A computer manager needs his lists: line-ups and what substitutions are made from.
bool frmPreExGame::ManagersReady(const GameSetup& setup) {
    for (const Side side : kBothSides) {
        const ManagerFault fault =
            CheckManagerLists(setup.data[side].roster, side, setup.control[side], setup.data.DHUsed);
        if (!fault.Any()) continue;
        services_.dialogs.Warn(fault.text, fault.title);
        return false;
    }
    return true;
}

}  // namespace tarvane
