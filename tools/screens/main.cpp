// tarvane-screens OUTDIR [--data-dir DIR [--lahman SOURCE]]: renders each screen to PNG files at 1024x768 and
// 1920x1080, without a display. With a data folder the first two teams of its active season play (the first season,
// which becomes active, if none is); else two invented clubs do. With a statistics database the import's pages are
// there too.

#include <fmt/format.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <clocale>
#include <functional>

#include "base/error.h"
#include "data/session.h"
#include "engine/boxtext.h"
#include "layoutfaults.h"
#include "ui/demo.h"
#include "ui/frmboxscore.h"
#include "ui/frmchoice.h"
#include "ui/frmcomputermgr.h"
#include "ui/frmdocument.h"
#include "ui/frmgame.h"
#include "ui/frmgamelineups.h"
#include "ui/frmgameover.h"
#include "ui/frmlahmanimport.h"
#include "ui/frmleaders.h"
#include "ui/frmmain.h"
#include "ui/frmpreexgame.h"
#include "ui/frmpreschedgame.h"
#include "ui/frmprogress2.h"
#include "ui/frmquickplay.h"
#include "ui/frmschedreport.h"
#include "ui/frmschedulelineup.h"
#include "ui/frmscheduler.h"
#include "ui/frmseasons.h"
#include "ui/frmsettingsgame.h"
#include "ui/frmsettingsleague.h"
#include "ui/frmsettingssound.h"
#include "ui/frmsplash.h"
#include "ui/frmstandings.h"
#include "ui/frmteamvsteam.h"
#include "ui/frmviewlineup.h"
#include "ui/icon.h"
#include "ui/openlineups.h"
#include "ui/storedseasons.h"
#include "ui/theme.h"

namespace {

using namespace tarvane;

class Camera {
  public:
    explicit Camera(QString folder) : folder_(std::move(folder)) {}

    // A picture of the widget in both sizes.
    void Take(QWidget& screen, const QString& name) {
        screen.show();  // a hidden window doesn't shrink with its letters
        for (const QSize& size : {QSize(1024, 768), QSize(1920, 1080)}) {
            for (int pass = 0; pass < 4; ++pass) {  // smaller letters let it shrink further
                screen.resize(size);
                QApplication::processEvents();
            }
            TakeAsIs(screen, QStringLiteral("%1-%2x%3").arg(name).arg(size.width()).arg(size.height()));
        }
        screen.hide();
    }
    // A picture in the size that it has.
    void TakeAsIs(QWidget& screen, const QString& name) {
        screen.show();
        QApplication::processEvents();
        for (const QString& fault : LayoutFaults(screen)) {
            fmt::print(stderr, "{}: {}\n", name.toStdString(), fault.toStdString());
            failed = true;
        }
        const QString file = QStringLiteral("%1/%2.png").arg(folder_, name);
        if (screen.grab().save(file)) {
            fmt::print("{}\n", file.toStdString());
            return;
        }
        fmt::print(stderr, "{} could not be written. Is there room, and may you write there?\n", file.toStdString());
        failed = true;
    }
    const QString& Folder() const { return folder_; }
    bool failed = false;

  private:
    QString folder_;
};

void Press(QWidget& screen, const char* name, int times) {
    auto* button = screen.findChild<QPushButton*>(QString::fromLatin1(name));
    for (int i = 0; i < times && button != nullptr && button->isEnabled(); ++i) button->click();
}

// Clicks of the game's play button; a change that the game waits for is the computer's.
void PlayOn(frmGame& game, int times) {
    for (int i = 0; i < times && !game.Session().Over(); ++i) {
        Press(game, "cmdPlay", 1);
        demo::AnswerLineups();
    }
}

void TakeGame(Camera& camera, const GamePtr& setup, demo::Outside& outside) {
    GameOptions options;
    options.ManualDiceRolls = true;
    frmGame game(setup, options, 1975, outside.Get());
    camera.Take(game, QStringLiteral("frmGame-start"));
    PlayOn(game, 60);
    camera.Take(game, QStringLiteral("frmGame-play"));
    while (game.Session().State().sheet != SheetCode::B && !game.Session().Over()) PlayOn(game, 1);
    camera.Take(game, QStringLiteral("frmGame-batter"));
    frmGame resumed(game.Session().Saved(), {}, options, 1975, outside.Get());
    camera.Take(resumed, QStringLiteral("frmGame-resumed"));
    Press(game, "chkcurrPrev", 1);
    camera.Take(game, QStringLiteral("frmGame-previous"));
    Press(game, "chkcurrPrev", 1);
    PlayOn(game, 5000);
    camera.Take(game, QStringLiteral("frmGame-over"));
    frmBoxScore box(game.Played());
    camera.Take(box, QStringLiteral("frmBoxScore"));
    frmScoreSheet sheet(game.Played());
    camera.Take(sheet, QStringLiteral("frmScoreSheet"));
    frmDocument document(BoxScoreText(game.Session().Data(), game.Session().State()), "Box Score");
    camera.Take(document, QStringLiteral("frmDocument-boxscore"));
}

void Show(QWidget& screen, const char* combo, int index) {
    screen.findChild<QComboBox*>(QString::fromLatin1(combo))->setCurrentIndex(index);
}

// A person's game up to a pitcher's sheet late in it, or to the first injury.
void PlayOn(GameSession& session, bool toInjury) {
    if (session.Start() != Reject::None) return;
    while (!session.Over() && session.State().awaited.kind != Await::LineupChange) {
        if (!toInjury && session.State().Inning >= 7 && session.State().sheet == SheetCode::P &&
            session.State().Batting().runner[1].On())
            return;
        if (!session.Roll() && !session.Answer(true)) return;
    }
}

// The line-ups before a game, in it, and where it waits for a change.
void TakeLineups(Camera& camera, const GamePtr& setup, demo::Outside& outside) {
    frmGameLineups before(setup, {}, outside.Get());
    camera.Take(before, QStringLiteral("frmGameLineups-open"));
    Press(before, "chkComputer", 1);
    camera.Take(before, QStringLiteral("frmGameLineups-batters"));
    Show(before, "cmbShowByPos", 1);
    Show(before, "cmbChartType", 1);
    camera.Take(before, QStringLiteral("frmGameLineups-pitchers"));
    Show(before, "cmbShowByPos", 0);
    Show(before, "cmbChartType", 2);
    camera.Take(before, QStringLiteral("frmGameLineups-results"));
    frmViewLineup both(before.Model());
    camera.Take(both, QStringLiteral("frmViewLineup"));
    GameSession session(setup, {}, 4);
    PlayOn(session, false);
    frmGameLineups during(session, session.State().BattingSide, outside.Get());
    Show(during, "cmbChartType", 1);
    Press(during, "cmdPinchHit", 1);
    camera.Take(during, QStringLiteral("frmGameLineups-during"));
    for (std::uint64_t seed = 1; seed < 60; ++seed) {
        GameSession hurt(setup, {}, seed);
        PlayOn(hurt, true);
        if (hurt.Over()) continue;
        frmGameLineups forced(hurt, hurt.State().awaited.side, outside.Get());
        camera.Take(forced, QStringLiteral("frmGameLineups-forced"));
        return;
    }
}

// The first two teams of a season in the home team's park.
GamePtr FirstGame(SeasonAccess& seasons) {
    const std::vector<TeamEntry> teams = seasons.Teams();
    if (teams.size() < 2) throw UserError("The active season has fewer than two teams: nobody can play.");
    return seasons.Exhibition({teams[0].teamID, teams[1].teamID, teams[1].ParkID, {}});
}

// Screens over what a season's database holds.
void TakeStored(Camera& camera, Session& session, demo::Outside& outside) {
    frmStandings standings(session, outside.Get());
    camera.Take(standings, QStringLiteral("frmStandings"));
    standings.findChild<QCheckBox*>(QStringLiteral("chkExpanded"))->setChecked(true);
    camera.Take(standings, QStringLiteral("frmStandings-expanded"));
    frmTeamVsTeam versus(session, outside.Get());
    camera.Take(versus, QStringLiteral("frmTeamVsTeam"));
    frmLeadersBatting batting(session, outside.Get());
    camera.Take(batting, QStringLiteral("frmLeadersBatting"));
    frmLeadersPitching pitching(session, outside.Get());
    camera.Take(pitching, QStringLiteral("frmLeadersPitching"));
    frmSettingsLeague rules(session, outside.Get());
    camera.Take(rules, QStringLiteral("frmSettingsLeague"));
    for (int tab = 0; tab < 3; ++tab) {
        frmSettingsGame preferences(session, outside.Get());
        preferences.findChild<QTabBar*>(QStringLiteral("tabs"))->setCurrentIndex(tab);
        camera.Take(preferences, QStringLiteral("frmSettingsGame-%1").arg(tab + 1));
    }
    frmSettingsSound sounds(session, outside.Get());
    camera.Take(sounds, QStringLiteral("frmSettingsSound"));
    frmComputerMgr manager(session, outside.Get());
    camera.Take(manager, QStringLiteral("frmComputerMgr"));
}

void TakeAll(Camera& camera, SeasonAccess& seasons) {
    demo::Outside outside;
    frmMain menu(seasons, outside.Get(), {});
    camera.Take(menu, QStringLiteral("frmMain"));
    if (!HouseIcon().pixmap(256).save(camera.Folder() + QStringLiteral("/icon-256.png"))) camera.failed = true;
    frmSplash splash;
    camera.Take(splash, QStringLiteral("frmSplash"));
    frmSeasons list(seasons, outside.Get());
    camera.Take(list, QStringLiteral("frmSeasons"));
    frmPreExGame exhibition(seasons, outside.Get(), {});
    exhibition.findChild<QComboBox*>(QStringLiteral("cmbVisitorTeam"))->setCurrentIndex(0);
    exhibition.findChild<QComboBox*>(QStringLiteral("cmbHomeTeam"))->setCurrentIndex(1);
    camera.Take(exhibition, QStringLiteral("frmPreExGame"));
    TakeGame(camera, FirstGame(seasons), outside);
    TakeLineups(camera, FirstGame(seasons), outside);
    frmChoice choice(
        "Base runners on 1B and 3B. Choose sacrifice bunt or suicide squeeze. Batter Bunt Rating: A\n"
        "Click either Sacrifice or Squeeze, otherwise Click Cancel.",
        "Choose Bunt Option", "Sacrifice", "Squeeze");
    camera.TakeAsIs(choice, QStringLiteral("frmChoice"));
    if (seasons.Store() != nullptr) TakeStored(camera, *seasons.Store(), outside);
}

// The screens around a scheduled game, of the season as it stands; nothing is written.
void TakeScheduled(Camera& camera, Session& session) {
    demo::Outside outside;
    frmPreSchedGame setup(session, outside.Get(), OptionsFrom(session));
    camera.Take(setup, QStringLiteral("frmPreSchedGame"));
    frmPreSchedGame running(session, outside.Get(), OptionsFrom(session));
    frmProgress2& progress = *running.findChild<frmProgress2*>(QStringLiteral("fraProgress2"));
    QuickPlayProgress part{412, 1044, "1975-07-19", {{1, 2}}, 0.9};
    progress.Show(part, "July 19:  a game of that day", false);
    running.findChild<QStackedWidget*>(QStringLiteral("stkLower"))->setCurrentIndex(1);
    camera.Take(running, QStringLiteral("frmProgress2"));
    frmScheduler editor(session, outside.Get());
    camera.Take(editor, QStringLiteral("frmScheduler"));
    frmSchedReport report(session);
    camera.Take(report, QStringLiteral("frmSchedReport"));
    frmScheduleLineup lineups(session, outside.Get());
    camera.Take(lineups, QStringLiteral("frmScheduleLineup"));
    GamePtr game;
    QObject::connect(&setup, &frmPreSchedGame::GameReady, [&](const GamePtr& ready) { game = ready; });
    Press(setup, "chkNext", 1);
    if (!game) return;
    GameSession played(game, OptionsFrom(session), 1975);
    played.Start();
    frmQuickPlay quick(QuickPlayChoices(played.State()), outside.Get());
    quick.findChild<QComboBox*>()->setCurrentIndex(0);
    camera.Take(quick, QStringLiteral("frmQuickPlay"));
    played.QuickPlay(0);
    frmGameOver over({game, played.State(), played.Sheet(), 4}, &session, outside.Get());
    camera.Take(over, QStringLiteral("frmGameOver"));
}

// The import up to its last step, which isn't taken: nothing of it stays.
void TakeImport(Camera& camera, Session& session, const std::filesystem::path& source) {
    demo::Outside outside;
    frmLahmanImport import(session, outside.Get(), source);
    import.Begin();
    if (!outside.dialogs.warnings.empty()) throw UserError(outside.dialogs.warnings.back().text);
    import.findChild<QLineEdit*>(QStringLiteral("txtFind"))->setText(QStringLiteral("(NYA"));
    import.findChild<QListWidget*>(QStringLiteral("lstTeams"))->setCurrentRow(30);
    Press(import, "cmdAdd", 1);
    import.findChild<QLineEdit*>(QStringLiteral("txtFind"))->setText(QStringLiteral("1975"));
    Press(import, "cmdAddAll", 1);
    const auto take = [&](const char* page, const char* next) {
        camera.Take(import, QString::fromLatin1(page));
        Press(import, next, 1);
    };
    take("frmLahmanImport2", "cmdNext");
    if (import.findChild<QStackedWidget*>(QStringLiteral("pages"))->currentIndex() == 1) {
        import.findChild<QLineEdit*>(QStringLiteral("txtTeamID1"))->setText(QStringLiteral("ONE"));
        take("frmLahmanImportDupeID", "cmdOk");
    }
    import.findChild<QLineEdit*>(QStringLiteral("txtLeagueName"))->setText(QStringLiteral("Pictures"));
    take("frmLahmanImport3", "cmdNext");
    take("frmLahmanImport4", "cmdImport");
    camera.Take(import, QStringLiteral("frmLahmanImport5"));
}

class Printer : public MessageSink {
  public:
    void Warn(const std::string& title, const std::string& text) override {
        fmt::print(stderr, "{}: {}\n", title, text);
    }
    void Inform(const std::string& title, const std::string& text) override { Warn(title, text); }
};

void TakeFrom(Camera& camera, const char* dataFolder, const char* source) {
    Printer printer;
    Session session(printer);
    StartupEnvironment environment;
    environment.dataFolder = dataFolder;
    if (session.StartUp(environment) != StartResult::Running) throw UserError("The data folder can't be used.");
    StoredSeasons seasons(session);
    const std::vector<SeasonEntry> all = seasons.Seasons();
    if (seasons.ActiveSeason().empty() && !all.empty()) seasons.SetActive(all.front().LeagueID);
    if (seasons.ActiveSeason().empty())
        throw UserError(std::string(dataFolder) + " has no season to open. Make one with tarvane-replay new-season.");
    TakeAll(camera, seasons);
    TakeScheduled(camera, session);
    if (source != nullptr) TakeImport(camera, session, source);
}

}  // namespace

int main(int argc, char** argv) {
    const bool given = (argc == 4 || argc == 6) && std::string_view(argv[2]) == "--data-dir";
    const bool lahman = given && argc == 6 && std::string_view(argv[4]) == "--lahman";
    if (argc != 2 && (!given || lahman != (argc == 6))) {
        fmt::print(stderr, "usage: tarvane-screens OUTDIR [--data-dir DIR [--lahman SOURCE]]\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationVersion(QStringLiteral("0.1.0"));
    ApplyTheme(application);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(folder);
    Camera camera(folder);
    try {
        demo::DemoSeasons seasons;
        if (given)
            TakeFrom(camera, argv[3], lahman ? argv[5] : nullptr);
        else
            TakeAll(camera, seasons);
    } catch (const std::exception& error) {
        fmt::print(stderr, "{}\n", error.what());
        return 1;
    }
    return camera.failed ? 1 : 0;
}
