#include "ui/frmmain.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTimer>
#include <random>

#include "base/error.h"
#include "data/settings.h"
#include "savegame/savefile.h"
#include "ui/frmcomputermgr.h"
#include "ui/frmgame.h"
#include "ui/frmgamelineups.h"
#include "ui/frmgameover.h"
#include "ui/frmlahmanimport.h"
#include "ui/frmleaders.h"
#include "ui/frmpreexgame.h"
#include "ui/frmpreschedgame.h"
#include "ui/frmseasons.h"
#include "ui/frmsettingsgame.h"
#include "ui/frmsettingsleague.h"
#include "ui/frmsettingssound.h"
#include "ui/frmstandings.h"
#include "ui/frmteamvsteam.h"
#include "ui/qtext.h"
#include "ui/storedseasons.h"
#include "ui/theme.h"
#include "ui_frmmain.h"

namespace tarvane {

namespace {

bool FindSpreadsheet() {
    for (const char* program : {"localc", "soffice", "libreoffice", "gnumeric"})
        if (!QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty()) return true;
    return false;
}

}  // namespace

frmMain::frmMain(SeasonAccess& seasons, Services services, const GameOptions& options, QWidget* parent)
    : QMainWindow(parent),
      seasons_(seasons),
      services_(services),
      options_(options),
      spreadsheet_(FindSpreadsheet()),
      ui_(std::make_unique<Ui::frmMain>()) {
    ui_->setupUi(this);
    SetPicture(QString());
    Connect(ui_->grdGamePlay, MenuRow::GamePlay);
    Connect(ui_->grdReports, MenuRow::Reports);
    Connect(ui_->grdSettings, MenuRow::Settings);
    Connect(ui_->grdLeagues, MenuRow::Leagues);
    Connect(ui_->grdCharts, MenuRow::Charts);
    connect(ui_->chkExit, &QPushButton::clicked, ui_->cmdExit, &QPushButton::click);
    connect(ui_->cmdExit, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->mnuTarvaneBaseballHelp, &QAction::triggered, this,
            [this] { Say(tr("This screen is not built yet.")); });
    connect(ui_->mnuAbout, &QAction::triggered, this, [this] {
        services_.dialogs.Remind("Tarvane PC Baseball " + QCoreApplication::applicationVersion().toStdString() +
                                     "\nReal statistics, dice charts, one game after another.",
                                 "About Tarvane PC Baseball");
    });
    BuildCommandGrids();
    if (seasons_.Store() != nullptr) WearPreferences();
    ui_->grdGamePlay->setFocus();
}

frmMain::~frmMain() = default;

void frmMain::Connect(MenuGrid* grid, MenuRow row) {
    connect(grid, &MenuGrid::Chosen, this, [this, row](int column) { Choose(row, column); });
}

MenuContext frmMain::Context() const {
    const bool active = !seasons_.ActiveSeason().empty();
    const LeagueRules rules = active ? seasons_.Rules() : LeagueRules{};
    return {active, rules.TourneyMode, rules.TourneyType, false, spreadsheet_};
}

void frmMain::BuildCommandGrids() {
    const MenuContext context = Context();
    ui_->grdGamePlay->SetCommands(MenuCommands(MenuRow::GamePlay, context));
    ui_->grdReports->SetCommands(MenuCommands(MenuRow::Reports, context));
    ui_->grdSettings->SetCommands(MenuCommands(MenuRow::Settings, context));
    ui_->grdLeagues->SetCommands(MenuCommands(MenuRow::Leagues, context));
    ui_->grdCharts->SetCommands(MenuCommands(MenuRow::Charts, context));
    ui_->lblActiveSeason->setText(QString::fromStdString(ActiveSeasonLabel(seasons_.ActiveSeason())));
    ui_->lblActiveSeason->setVisible(context.activeSeason);
}

void frmMain::Choose(MenuRow row, int column) {
    Say({});
    const MenuContext context = Context();
    const MenuCommand command = MenuCommands(row, context).at(static_cast<std::size_t>(column));
    const std::string refusal = MenuRefusal(command, context);
    if (!refusal.empty())
        services_.dialogs.Warn(refusal, command.refusalTitle);
    else
        OpenScreen(command.opens);
}

void frmMain::OpenScreen(MenuScreen screen) {
    switch (screen) {
        case MenuScreen::Seasons: Show(new frmSeasons(seasons_, services_)); break;
        case MenuScreen::PreExGame: OpenExhibition(); break;
        case MenuScreen::Standings: OpenStored<frmStandings>(); break;
        case MenuScreen::TeamVsTeam: OpenStored<frmTeamVsTeam>(); break;
        case MenuScreen::LeadersBatting: OpenStored<frmLeadersBatting>(); break;
        case MenuScreen::LeadersPitching: OpenStored<frmLeadersPitching>(); break;
        case MenuScreen::Team: OpenStored<frmComputerMgr>(); break;
        case MenuScreen::PreSchedGame: OpenScheduled(); break;
        case MenuScreen::LahmanImport: OpenImport(); break;
        case MenuScreen::SettingsGame: OpenSettings<frmSettingsGame>(); break;
        case MenuScreen::SettingsSound: OpenSettings<frmSettingsSound>(); break;
        case MenuScreen::SettingsLeague: OpenSettings<frmSettingsLeague>(); break;
        default: Say(tr("This screen is not built yet.")); break;
    }
}

template <class StoredScreen>
void frmMain::OpenStored() {
    if (seasons_.Store() == nullptr)
        Say(tr("There is no season on the disk to work with."));
    else
        ShowStored(new StoredScreen(*seasons_.Store(), services_));
}

template <class SettingsOf>
void frmMain::OpenSettings() {
    if (seasons_.Store() == nullptr) {
        Say(tr("There are no settings on the disk to work with."));
        return;
    }
    auto* screen = new SettingsOf(*seasons_.Store(), services_);
    connect(screen, &SettingsScreen::Saved, this, &frmMain::TakePreferences);
    Show(screen);
}

void frmMain::TakePreferences() {
    Session& session = *seasons_.Store();
    options_ = OptionsFrom(session);
    WearPreferences();
}

void frmMain::WearPreferences() {
    Session& session = *seasons_.Store();
    SetPicture(QText(MainMenuImageFile(session.Paths(), session.Settings()).string()));
    const auto colors = LookFrom(session.Settings()).mainGrids;
    for (MenuGrid* grid : {ui_->grdGamePlay, ui_->grdReports, ui_->grdSettings, ui_->grdLeagues, ui_->grdCharts})
        grid->SetColors(colors);
}

void frmMain::ShowStored(Screen* screen) {
    if (auto* report = qobject_cast<ReportScreen*>(screen))
        connect(report, &ReportScreen::OpenReport, this, &frmMain::OpenScreen);
    Show(screen);
}

void frmMain::Show(Screen* screen) {
    Screen* before = open_;
    open_ = screen;
    screen->setAttribute(Qt::WA_DeleteOnClose);
    connect(screen, &Screen::Closed, this, [this, screen] {
        if (open_ != screen) return;  // it gave way to the next screen
        open_ = nullptr;
        BuildCommandGrids();
        show();
    });
    screen->setGeometry(geometry());
    screen->setWindowState(windowState());
    screen->show();
    hide();
    if (before != nullptr) before->close();
}

void frmMain::OpenExhibition() {
    auto* screen = new frmPreExGame(seasons_, services_, options_);
    connect(screen, &frmPreExGame::GameReady, this, &frmMain::Play);
    connect(screen, &frmPreExGame::ResumeGame, this, &frmMain::Resume);
    Show(screen);
    screen->OfferSavedGame();
}

void frmMain::OpenScheduled() {
    if (seasons_.Store() == nullptr || seasons_.Rules().TourneyMode) {
        Say(tr("This screen is not built yet."));
        return;
    }
    auto* screen = new frmPreSchedGame(*seasons_.Store(), services_, options_, seed_);
    connect(screen, &frmPreSchedGame::GameReady, this, &frmMain::Play);
    connect(screen, &frmPreSchedGame::ResumeGame, this, &frmMain::Resume);
    Show(screen);
}

void frmMain::OpenImport() {
    if (seasons_.Store() == nullptr) {
        Say(tr("There is no data folder to make a season in."));
        return;
    }
    const auto source = services_.dialogs.OpenFile(
        "Specify Lahman Database File", seasons_.Store()->Paths().root,
        "Tarvane PC Baseball Import Stats (lahman*.mdb);;Lahman database as text files (*.csv)");
    if (!source) return;
    try {
        auto* screen = new frmLahmanImport(*seasons_.Store(), services_, *source);
        Show(screen);
        screen->Begin();
    } catch (const UserError& failure) {
        services_.dialogs.Warn(failure.what(), kImportTitle);
    }
}

void frmMain::Play(const GamePtr& setup) {
    GameOptions options = options_;
    options.computer = setup->control;
    const std::uint64_t seed = NextSeed();
    if (options.QuickPlayMode && options.ComputerPlaysBoth()) {
        QElapsedTimer clock;
        clock.start();
        GameSession unseen(setup, options, seed);
        const Reject reject = unseen.Start();
        if (reject == Reject::None) {
            unseen.QuickPlay(0);
            EndOf({setup, unseen.State(), unseen.Sheet(), static_cast<long>(clock.elapsed() / 1000)});
            return;
        }
    }
    auto* lineups = new frmGameLineups(setup, options, services_);
    connect(lineups, &frmGameLineups::GameReady, this,
            [this, options, seed](const GamePtr& ready) { Begin(ready, options, seed); });
    Show(lineups);
}

void frmMain::Begin(const GamePtr& setup, const GameOptions& options, std::uint64_t seed) {
    auto* game = new frmGame(setup, options, seed, services_);
    game->SaveTo(SaveFileOf(*setup));
    ShowGame(game);
}

void frmMain::ShowGame(frmGame* game) {
    connect(game, &frmGame::Finished, this, [this, game] { EndOf(game->Played()); });
    connect(game, &frmGame::Saved, this,
            [this] { Say(tr("The game is saved. It goes on from where it was set up.")); });
    if (seasons_.Store() != nullptr) game->UseSettings(*seasons_.Store());
    connect(game, &frmGame::PreferencesChanged, this, &frmMain::TakePreferences);
    Show(game);
}

void frmMain::Resume(const std::filesystem::path& file) {
    Session& store = *seasons_.Store();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    std::optional<SavedGame> saved;
    std::string failure;
    try {
        saved = ResumeSavedGame(store.Common(), store.Seasons().Season(), file);
    } catch (const UserError& error) {
        failure = error.what();
    }
    QGuiApplication::restoreOverrideCursor();
    if (saved)
        ShowGame(new frmGame(*saved, file, options_, NextSeed(), services_));
    else
        services_.dialogs.Warn(failure, "Resume Saved Game");
}

// In the season's folder; nowhere without one.
std::filesystem::path frmMain::SaveFileOf(const PreparedGame& game) {
    if (seasons_.Store() == nullptr) return {};
    const std::filesystem::path folder = seasons_.Store()->Paths().SeasonFolder(seasons_.ActiveSeason());
    return SaveGameFile(folder, game.scheduled ? game.scheduled->GameID : kExhibitionGameID);
}

std::uint64_t frmMain::NextSeed() const {
    if (seed_ != 0) return seed_;
    std::random_device system;
    return (static_cast<std::uint64_t>(system()) << 32) + system();
}

void frmMain::EndOf(const PlayedGame& game) {
    Show(new frmGameOver(game, seasons_.Store(), services_));
}

void frmMain::SetPicture(const QString& file) {
    ui_->imgMain->SetPicture({});
    ui_->imgMain->SetPicture(QCoreApplication::applicationDirPath() + QStringLiteral("/background_12.jpg"));
    if (!file.isEmpty()) ui_->imgMain->SetPicture(file);
}

void frmMain::Say(const QString& text) {
    ui_->lblStatus->setText(text);
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT Left();
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    ScaleFonts(*this, TextPixels(width(), height()));
}

}  // namespace tarvane
