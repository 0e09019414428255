#include "ui/frmcomputermgr.h"

#include <QCheckBox>
#include <algorithm>

#include "base/error.h"
#include "data/teams.h"
#include "season/managerlists.h"
#include "season/realstats.h"
#include "ui/qtext.h"
#include "ui_frmcomputermgr.h"

namespace tarvane {

namespace {
constexpr const char* kTitle = "Computer Manager";
constexpr const char* kGenerateTitle = "Generate Computer Manager";
}  // namespace

frmComputerMgr::frmComputerMgr(Session& session, Services services, QWidget* parent)
    : Screen(parent), session_(session), services_(services), ui_(std::make_unique<Ui::frmComputerMgr>()) {
    ui_->setupUi(this);
    tendencies_ = {{{ui_->cmbBunting, &ManagerTendencies::Bunting},
                    {ui_->cmbStealing, &ManagerTendencies::BaseStealing},
                    {ui_->cmbRunning, &ManagerTendencies::BaseRunning},
                    {ui_->cmbPinchHit, &ManagerTendencies::PinchHitting},
                    {ui_->cmbPinchRun, &ManagerTendencies::PinchRunning},
                    {ui_->cmbRelief, &ManagerTendencies::RelieverUsage},
                    {ui_->cmbDefSubs, &ManagerTendencies::DefensiveSubs}}};
    const QStringList character{tr("Aggressive"), tr("Average"), tr("Conservative")};
    const QStringList often{tr("More Often"), tr("Average"), tr("Less Often")};
    for (std::size_t i = 0; i < tendencies_.size(); ++i) {
        tendencies_[i].combo->addItems(i < 3 ? character : often);
        connect(tendencies_[i].combo, &QComboBox::currentIndexChanged, this, &frmComputerMgr::Changed);
    }
    const std::array<QCheckBox*, 3> kinds{ui_->chkIncludeDH, ui_->chkNoDH, ui_->chkDHAndNoDH};
    for (QCheckBox* kind : kinds)
        connect(kind, &QCheckBox::toggled, this, [kinds, kind](bool on) {
            for (QCheckBox* other : kinds)
                if (on && other != kind) other->setChecked(false);
        });
    connect(ui_->cmbTeams, &QComboBox::currentIndexChanged, this, &frmComputerMgr::TeamChosen);
    connect(ui_->chkSave, &QPushButton::clicked, this, &frmComputerMgr::Save);
    connect(ui_->chkGenerateMgr, &QPushButton::clicked, this, &frmComputerMgr::Generate);
    connect(ui_->chkClose, &QPushButton::clicked, this, &QWidget::close);
    ListTeams();
}

frmComputerMgr::~frmComputerMgr() = default;

void frmComputerMgr::ListTeams() {
    filling_ = true;
    for (const Team& team : LoadTeamList(session_.Seasons().Season(), session_.Seasons().Rules())) {
        teamIDs_.push_back(team.teamID);
        ui_->cmbTeams->addItem(QText(team.fullName));
    }
    filling_ = false;
    TeamChosen();
}

void frmComputerMgr::TeamChosen() {
    const int row = ui_->cmbTeams->currentIndex();
    if (filling_ || row < 0) return;
    if (!SaveOrDrop()) {
        const auto before = std::find(teamIDs_.begin(), teamIDs_.end(), teamID_);
        filling_ = true;
        ui_->cmbTeams->setCurrentIndex(static_cast<int>(before - teamIDs_.begin()));
        filling_ = false;
        return;
    }
    teamID_ = teamIDs_[static_cast<std::size_t>(row)];
    ui_->lblStatus->clear();
    Load();
}

void frmComputerMgr::Load() {
    filling_ = true;
    try {
        Database& season = session_.Seasons().Season();
        const ManagerTendencies values = LoadTendencies(season, teamID_);
        for (const Tendency& tendency : tendencies_) tendency.combo->setCurrentIndex(values.*tendency.value - 1);
        const TeamRoster roster = LoadTeamRoster(season, teamID_, session_.Seasons().Rules());
        const bool real = LoadRealUse(season, roster).present;
        ui_->chkGenBasedOnUsage->setVisible(real);
        if (!real) ui_->chkGenBasedOnUsage->setChecked(false);
    } catch (const DatabaseError&) {
        services_.dialogs.Warn("Computer Manager data error - contact Tarvane", kTitle);
    } catch (const UserError&) {
        services_.dialogs.Warn("Team data error - contact Tarvane", kTitle);
    }
    filling_ = false;
    changed_ = false;
    ui_->chkSave->setEnabled(false);
}

void frmComputerMgr::Changed() {
    if (filling_) return;
    changed_ = true;
    ui_->chkSave->setEnabled(true);
    ui_->lblStatus->clear();
}

bool frmComputerMgr::Save() {
    ManagerTendencies values;
    for (const Tendency& tendency : tendencies_)
        values.*tendency.value = static_cast<std::uint8_t>(tendency.combo->currentIndex() + 1);
    try {
        SaveTendencies(session_.Seasons().Season(), teamID_, values);
    } catch (const UserError& failure) {
        services_.dialogs.Warn(failure.what(), kTitle);
        return false;
    }
    changed_ = false;
    ui_->chkSave->setEnabled(false);
    ui_->lblStatus->setText(tr("The tendencies are saved."));
    return true;
}

// False if the user would rather stay with what he has changed.
bool frmComputerMgr::SaveOrDrop() {
    if (!changed_) return true;
    switch (services_.dialogs.Ask("Computer Manager data has changed\nClick Yes to save changes.", kTitle, true)) {
        case Reply::Yes: return Save();
        case Reply::No: changed_ = false; return true;
        case Reply::Cancel: break;
    }
    return false;
}

bool frmComputerMgr::MayClose() {
    return SaveOrDrop();
}

GenerateOptions frmComputerMgr::Options() const {
    GenerateOptions options;
    options.lineups = DHLists::None;
    if (ui_->chkGenLineups->isChecked())
        options.lineups = ui_->chkIncludeDH->isChecked() ? DHLists::DH
                          : ui_->chkNoDH->isChecked()    ? DHLists::NoDH
                                                         : DHLists::Both;
    options.depth = ui_->chkGenDepth->isChecked();
    options.starters = ui_->chkGenStarters->isChecked();
    options.relievers = ui_->chkGenRelievers->isChecked();
    options.closers = ui_->chkGenClosers->isChecked();
    options.ignoreInactive = ui_->chkIgnoreInactive->isChecked();
    options.basedOnUsage = ui_->chkGenBasedOnUsage->isChecked();
    return options;
}

std::string frmComputerMgr::OptionsFault() const {
    const bool kind = ui_->chkIncludeDH->isChecked() || ui_->chkNoDH->isChecked() || ui_->chkDHAndNoDH->isChecked();
    const bool lineups = ui_->chkGenLineups->isChecked();
    const bool lists = ui_->chkGenDepth->isChecked() || ui_->chkGenStarters->isChecked() ||
                       ui_->chkGenRelievers->isChecked() || ui_->chkGenClosers->isChecked();
    if (kind && !lineups) return "Must Generate Lineups if Lineup Types box is specified";
    if (lineups && !kind) return "Please specify a Lineup Type box to Generate Lineups";
    if (ui_->chkGenBasedOnUsage->isChecked() && !lineups && !lists)
        return "Please check at least one Generate box when specifying Generate Based on Actual Usage";
    return {};
}

void frmComputerMgr::Generate() {
    if (const std::string fault = OptionsFault(); !fault.empty()) {
        services_.dialogs.Warn(fault, kGenerateTitle);
        return;
    }
    const Reply reply = services_.dialogs.Ask(
        "Click Yes to Generate Computer Manager.\nClick No to retain existing Computer Manager.", kGenerateTitle);
    if (reply != Reply::Yes) return;
    try {
        GenerateTeamManager(session_.Seasons().Season(), teamID_, Options());
    } catch (const UserError& failure) {
        services_.dialogs.Warn(failure.what(), kGenerateTitle);
        return;
    }
    Load();
    ui_->lblStatus->setText(tr("Computer Manager has been Generated."));
}

}  // namespace tarvane
