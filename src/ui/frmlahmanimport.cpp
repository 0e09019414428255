#include "ui/frmlahmanimport.h"

#include <fmt/core.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QTimer>

#include "base/error.h"
#include "base/text.h"
#include "ui/qtext.h"
#include "ui_frmlahmanimport.h"

namespace tarvane {

namespace {

constexpr std::array<const char*, 5> kTitles{
    "Select Teams to Import, then click Next.",
    "All Team ID'S must be unique. Please enter unique Team ID for one of the teams below, then click Ok.",
    "Choose Season Name, filters and options, then click Next.", "Confirm import options, then click Import.",
    "Final Step. Choose options to complete Lahman import for your season."};
constexpr std::array<const char*, 5> kNextTexts{"&Next", "&Ok", "&Next", "&Import", "&Finish"};
constexpr std::array<const char*, 5> kNextNames{"cmdNext", "cmdOk", "cmdNext", "cmdImport", "cmdFinish"};

}  // namespace

// The bar of the screen as the watcher of the work. The screen lives while it runs: it is painted and hears Cancel.
class frmLahmanImport::Bar final : public Progress {
  public:
    explicit Bar(frmLahmanImport& screen) : screen_(screen) {}
    bool Report(std::string_view what, int done, int total) override {
        if (!what.empty()) screen_.ui_->lblProgress->setText(QText(std::string(what)));
        screen_.ui_->barProgress->setRange(0, std::max(total, 0));  // 0: nobody knows how much there is
        screen_.ui_->barProgress->setValue(done);
        QCoreApplication::processEvents();
        return !screen_.stop_;
    }

  private:
    frmLahmanImport& screen_;
};

template <class Work>
bool frmLahmanImport::Run(const QString& what, const char* title, Work work) {
    running_ = true;
    stop_ = false;
    ui_->lblProgress->setText(what);
    ui_->barProgress->setValue(0);
    ui_->barProgress->show();
    for (QWidget* control : {static_cast<QWidget*>(ui_->pages), static_cast<QWidget*>(ui_->cmdBack)})
        control->setEnabled(false);
    QPushButton* next = ui_->cmdNext;
    next->setEnabled(false);
    bool done = false;
    try {
        Bar bar(*this);
        work(bar);
        done = true;
    } catch (const Cancelled& stopped) {
        ui_->lblProgress->setText(QText(stopped.what()));
    } catch (const std::exception& failure) {
        services_.dialogs.Warn(failure.what(), title);
    }
    running_ = false;
    ui_->barProgress->hide();
    if (done) ui_->lblProgress->clear();
    ui_->pages->setEnabled(true);
    next->setEnabled(true);
    ui_->cmdBack->setEnabled(ui_->pages->currentIndex() != Clubs);
    return done;
}

frmLahmanImport::frmLahmanImport(Session& session, Services services, const std::filesystem::path& source,
                                 QWidget* parent)
    : Screen(parent),
      session_(session),
      services_(services),
      wizard_(session, source),
      ui_(std::make_unique<Ui::frmLahmanImport>()) {
    ui_->setupUi(this);
    eraLabels_ = {ui_->lblEra1, ui_->lblEra2, ui_->lblEra3};
    eras_ = {ui_->cmbEra1, ui_->cmbEra2, ui_->cmbEra3};
    const FinishSettings defaults;
    ui_->txtPitcherOut->setText(QString::number(defaults.PitcherOutFactor.value_or(1)));
    ui_->txtLHBvsLHP->setText(QString::number(defaults.LHBAdjust.value_or(0)));
    ui_->txtRHBvsLHP->setText(QString::number(defaults.RHBAdjust.value_or(0)));
    Connect();
    Open(Clubs);
}

frmLahmanImport::~frmLahmanImport() = default;

void frmLahmanImport::Connect() {
    connect(ui_->cmdNext, &QPushButton::clicked, this, &frmLahmanImport::Next);
    connect(ui_->cmdBack, &QPushButton::clicked, this, &frmLahmanImport::Back);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->txtFind, &QLineEdit::textChanged, this, &frmLahmanImport::FillLists);
    connect(ui_->cmdAdd, &QPushButton::clicked, this, &frmLahmanImport::Choose);
    connect(ui_->cmdDrop, &QPushButton::clicked, this, &frmLahmanImport::Drop);
    connect(ui_->lstTeams, &QListWidget::itemActivated, this, &frmLahmanImport::Choose);
    connect(ui_->lstDroppedItems, &QListWidget::itemActivated, this, &frmLahmanImport::Drop);
    connect(ui_->lstDroppedItems, &DragList::Dropped, this, &frmLahmanImport::Choose);
    connect(ui_->lstTeams, &DragList::Dropped, this, &frmLahmanImport::Drop);
    connect(ui_->cmdAddAll, &QPushButton::clicked, this, [this] {
        wizard_.Choose(wizard_.Listed(ui_->txtFind->text().toStdString()));
        FillLists();
    });
    connect(ui_->chkAlign, &QCheckBox::toggled, this, &frmLahmanImport::ShowEras);
    for (QComboBox* era : eras_) connect(era, &QComboBox::currentIndexChanged, this, &frmLahmanImport::ShowPAFactor);
    const std::array<QCheckBox*, 3> lineups{ui_->chkIncludeDH, ui_->chkNoDH, ui_->chkDHAndNoDH};
    for (QCheckBox* chosen : lineups)
        connect(chosen, &QCheckBox::toggled, this, [lineups, chosen](bool on) {
            for (QCheckBox* other : lineups)
                if (on && other != chosen) other->setChecked(false);
        });
}

void frmLahmanImport::Begin() {
    const bool read = Run(tr("Reading the teams of the database - please wait ..."), kImportTitle,
                          [this](Progress& bar) { wizard_.ReadTeams(&bar); });
    if (!read) {
        close();
        return;
    }
    FillLists();
    ui_->txtFind->setFocus();
}

void frmLahmanImport::Open(Page page) {
    ui_->pages->setCurrentIndex(page);
    ui_->lblTitle->setText(QLatin1String(kTitles[page]));
    ui_->cmdNext->setText(QLatin1String(kNextTexts[page]));
    ui_->cmdNext->setObjectName(QLatin1String(kNextNames[page]));
    ui_->cmdBack->setEnabled(page != Clubs);
    ui_->lblProgress->clear();
}

void frmLahmanImport::Next() {
    switch (ui_->pages->currentIndex()) {
        case Clubs: LeaveClubs(); break;
        case Codes: LeaveCodes(); break;
        case Form: LeaveForm(); break;
        case Confirm: Import(); break;
        default: Finish(); break;
    }
}

// The choices stay as they are; after the import the way back leads to the form, and the season is filled anew.
void frmLahmanImport::Back() {
    const int page = ui_->pages->currentIndex();
    Open(page == Confirm || page == Last ? Form : Clubs);
}

bool frmLahmanImport::Fault(const std::optional<FormFault>& fault, const char* title) {
    if (!fault) return false;
    services_.dialogs.Warn(fault->message, title);
    if (auto* control = findChild<QWidget*>(QText(fault->control))) control->setFocus();
    return true;
}

bool frmLahmanImport::MayClose() {
    if (!running_) return true;
    stop_ = true;  // the work ends at its next word; then the user is back on the page
    return false;
}

// --- The clubs ---

void frmLahmanImport::FillLists() {
    const std::vector<LahmanTeam>& teams = wizard_.Teams();
    const auto fill = [&](DragList& list, const std::vector<std::size_t>& places) {
        list.clear();
        for (const std::size_t place : places) list.AddLine(QText(TeamEntryText(teams[place])), place);
    };
    fill(*ui_->lstTeams, wizard_.Listed(ui_->txtFind->text().toStdString()));
    fill(*ui_->lstDroppedItems, wizard_.Chosen());
    const std::size_t count = wizard_.Chosen().size();
    ui_->lblTeamCount->setText(QText(fmt::format("{} {} for import", count, count == 1 ? "team" : "teams")));
    ui_->cmdAddAll->setEnabled(ui_->lstTeams->count() > 0);
}

void frmLahmanImport::Choose() {
    wizard_.Choose(ui_->lstTeams->Marked());
    FillLists();
}

void frmLahmanImport::Drop() {
    wizard_.Drop(ui_->lstDroppedItems->Marked());
    FillLists();
}

void frmLahmanImport::LeaveClubs() {
    if (wizard_.Duplicates()) return OpenCodes();
    if (Fault(CheckSelection(wizard_.ChosenTeams()), kImportTitle)) return;
    OpenForm();
}

void frmLahmanImport::OpenCodes() {
    const auto pair = wizard_.Duplicates();
    if (!pair) return;
    const auto show = [this](QLabel* label, QLineEdit* code, std::size_t place) {
        const LahmanTeam& team = wizard_.Teams()[place];
        label->setText(QText(fmt::format("{} {}", team.yearID, team.name)));
        code->setText(QText(team.KorvTeamID));
    };
    show(ui_->lblDupeID1, ui_->txtTeamID1, pair->first);
    show(ui_->lblDupeID2, ui_->txtTeamID2, pair->second);
    ui_->lblDupe->setText(
        QText(fmt::format("Both clubs have the code {} now.", wizard_.Teams()[pair->first].KorvTeamID)));
    Open(Codes);
    ui_->txtTeamID1->setFocus();
    ui_->txtTeamID1->selectAll();
}

void frmLahmanImport::LeaveCodes() {
    const std::string first = ui_->txtTeamID1->text().toStdString(), second = ui_->txtTeamID2->text().toStdString();
    if (const std::string wrong = wizard_.GiveCodes(first, second); !wrong.empty()) {
        services_.dialogs.Warn(wrong, kImportTitle);
        return;
    }
    FillLists();
    Open(Clubs);
    LeaveClubs();  // further pairs, or on
}

// --- Name, filters and confirmation ---

void frmLahmanImport::OpenForm() {
    const std::vector<LahmanTeam> teams = wizard_.ChosenTeams();
    if (ui_->txtLeagueName->text().trimmed().isEmpty()) ui_->txtLeagueName->setText(QText(wizard_.ProposedName()));
    QStringList names;
    for (const LahmanTeam& team : teams)
        names << QText(TeamEntryText(team).substr(0, TeamEntryText(team).find(')') + 1));
    ui_->lblTeams->setText(names.join(QLatin1Char('\n')));
    Open(Form);
    ui_->txtLeagueName->setFocus();
    ui_->txtLeagueName->selectAll();
}

void frmLahmanImport::LeaveForm() {
    ImportSettings& settings = wizard_.settings;
    if (Fault(ReadSeasonForm(ui_->txtLeagueName->text().toStdString(), ui_->txtMinIP->text().toStdString(),
                             ui_->txtMinAB->text().toStdString(), settings),
              kImportTitle))
        return;
    settings.setTeamColors = ui_->chkColors->isChecked();
    settings.yearInName = ui_->chkIncludeYear->isChecked();
    settings.freeAgents = ui_->chkFreeAgents->isChecked();
    if (wizard_.SeasonExists(settings.seasonName) &&
        services_.dialogs.Ask(kOverwriteQuestion, kImportTitle) != Reply::Yes)
        return;
    OpenConfirm();
}

void frmLahmanImport::OpenConfirm() {
    const std::array<QLabel*, 6> lines{ui_->lblConfirm1, ui_->lblConfirm2, ui_->lblConfirm3,
                                       ui_->lblConfirm4, ui_->lblConfirm5, ui_->lblConfirm6};
    const std::vector<std::string> texts = ConfirmationLines(wizard_.settings);
    for (std::size_t i = 0; i < lines.size(); ++i) lines[i]->setText(i < texts.size() ? QText(texts[i]) : QString());
    ui_->lblConfirmTeams->setText(ui_->lblTeamCount->text());
    Open(Confirm);
    ui_->cmdNext->setFocus();
}

void frmLahmanImport::Import() {
    ImportCounts counts;
    const bool done = Run(tr("Import starting - please wait ... "), kImportTitle,
                          [&](Progress& bar) { counts = wizard_.Fill(&bar); });
    if (!done) return;
    OpenLast();
    std::string text =
        fmt::format("{} teams, {} batters and {} pitchers are read.", counts.teams, counts.batters, counts.pitchers);
    for (const std::string& note : counts.notes) text += " " + note;
    ui_->lblProgress->setText(QText(text));
}

// --- The last page ---

void frmLahmanImport::OpenLast() {
    ui_->chkAlign->setVisible(CanAlign(wizard_.settings.teams));
    ui_->chkRetro->setEnabled(wizard_.RetroAvailable());
    for (QComboBox* combo : eras_) {
        const QSignalBlocker quiet(combo);
        combo->clear();
        combo->addItem(tr("(none)"));
        for (const LahmanWizard::Era& era : wizard_.Eras()) combo->addItem(QText(era.text), era.EraID);
    }
    ShowEras();
    Open(Last);
    ui_->cmdNext->setFocus();
}

void frmLahmanImport::ShowEras() {
    const bool align = ui_->chkAlign->isChecked() && CanAlign(wizard_.settings.teams);
    const std::vector<std::string> captions = wizard_.EraCaptions(align);
    const std::vector<std::optional<std::int32_t>> proposed = wizard_.ProposedEras(align);
    const std::size_t leagues = LeagueCount(wizard_.settings.teams, align);
    for (std::size_t i = 0; i < eras_.size(); ++i) {
        const bool needed = i < leagues;
        eraLabels_[i]->setVisible(needed);
        eras_[i]->setVisible(needed);
        if (!needed) continue;
        eraLabels_[i]->setText(QText(leagues == 1 && captions.size() != 1 ? "Set Year Effect" : captions[i]));
        const QSignalBlocker quiet(eras_[i]);
        const int at = i < proposed.size() && proposed[i] ? eras_[i]->findData(*proposed[i]) : 0;
        eras_[i]->setCurrentIndex(std::max(at, 0));
    }
    ShowPAFactor();
}

void frmLahmanImport::ShowPAFactor() {
    std::vector<std::int32_t> chosen;
    for (const QComboBox* era : eras_)
        if (!era->isHidden() && era->currentData().isValid()) chosen.push_back(era->currentData().toInt());
    ui_->txtPAFactor->setText(QText(fmt::format("{:.3f}", wizard_.ProposedPAFactor(chosen))));
}

FinishSettings frmLahmanImport::Settings() const {
    const auto number = [](const QLineEdit* field) { return ParseDouble(Trim(field->text().toStdString())); };
    FinishSettings finish;
    for (std::size_t i = 0; i < eras_.size(); ++i)
        if (!eras_[i]->isHidden() && eras_[i]->currentData().isValid())
            finish.eras[i] = eras_[i]->currentData().toInt();
    finish.align = ui_->chkAlign->isChecked() && CanAlign(wizard_.settings.teams);
    finish.genLRSplits = ui_->chkGenLRSplits->isChecked();
    finish.genRatings = ui_->chkGenRatings->isChecked();
    finish.genBatterPitcherCells = ui_->chkGenBatterPitcherCells->isChecked();
    finish.assignImages = ui_->chkAssignImages->isChecked();
    finish.genComputerMgr = ui_->chkGenComputerMgr->isChecked();
    finish.PAFactor = number(ui_->txtPAFactor);
    finish.PitcherOutFactor = number(ui_->txtPitcherOut);
    finish.LHBAdjust = number(ui_->txtLHBvsLHP);
    finish.RHBAdjust = number(ui_->txtRHBvsLHP);
    finish.randomNoSplit = ui_->chkRandomDoNotSplit->isChecked();
    finish.retro = ui_->chkRetro->isChecked() && ui_->chkRetro->isEnabled();
    finish.lineups = {ui_->chkIncludeDH->isChecked(), ui_->chkNoDH->isChecked(), ui_->chkDHAndNoDH->isChecked(),
                      ui_->chkGenBasedOnUsage->isChecked()};
    return finish;
}

void frmLahmanImport::Finish() {
    const FinishSettings finish = Settings();
    if (Fault(CheckFinish(finish, LeagueCount(wizard_.settings.teams, finish.align)), kFinishTitle)) return;
    std::int64_t made = 0;
    session_.Seasons().CloseSeason();  // the new one may take its place
    const bool done = Run(tr("Building League Data ... Please Wait"), kFinishTitle,
                          [&](Progress& bar) { made = wizard_.Finish(finish, &bar); });
    session_.Seasons().CheckActiveSeason();
    if (!done) return;
    // Who makes a season wants to play it.
    session_.Seasons().SetActiveSeason(made);
    close();
}

}  // namespace tarvane
