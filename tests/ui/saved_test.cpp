// Games that are left and taken up again: by the session that plays them, and from the screens.

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

#include <algorithm>

#include "base/file.h"
#include "engine/replaylog.h"
#include "savegame/savefile.h"
#include "season/seasonhash.h"
#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/frmgameover.h"
#include "ui/frmmain.h"
#include "ui/frmpreexgame.h"
#include "ui/frmpreschedgame.h"
#include "ui/menugrid.h"
#include "ui/openlineups.h"
#include "ui/seasonfolder.h"
#include "ui/storedseasons.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

// --- The session -----------------------------------------------------------------------------------------------------

std::string Documents(const GameSession& session) {
    const BoxDocument box = MakeBoxDocument(session.Data(), session.State());
    return BoxScoreText(box, {}) + ScoreSheetText(session.Sheet(), box);
}

// A person's clicks: every question gets the answer that a counter of all inputs so far says.
void Click(GameSession& session) {
    const bool yes = session.State().steps % 2 == 0;
    if (session.Proposed()) {
        session.Confirm(yes);
    } else if (session.State().awaited.kind == Await::Decision) {
        ASSERT_TRUE(session.Answer(yes));
    } else if (session.AwaitsHuman()) {
        LineupInput lineup;
        Manager plain;
        ASSERT_TRUE(plain.ForcedLineup(session.Data(), session.State(), session.State().awaited.side, lineup));
        ASSERT_EQ(session.ChangeLineups({lineup}), Reject::None);
    } else {
        ASSERT_TRUE(session.Roll());
    }
}

TEST(SavedSession, PutAwayAfterEachClickItGoesOnAsIfItHadNotBeenAlsoWithAMoveThatWaitsForAWord) {
    GameOptions options;
    options.computer[Side::Visitor] = {true, true, true};
    options.AuxChartsAutoClick = options.DisplayCompMgrChanges = true;  // moves of the visitors are put to the user
    const demo::DemoSeasons seasons;
    GameSession whole(seasons.Setup(), options, 5);
    auto unbroken = std::make_unique<GameSession>(seasons.Setup(), options, 5);
    ASSERT_EQ(unbroken->Start(), Reject::None);
    while (!unbroken->Over()) ASSERT_NO_FATAL_FAILURE(Click(*unbroken));
    ASSERT_EQ(whole.Start(), Reject::None);
    int proposals = 0;
    for (int clicks = 0; !whole.Over(); ++clicks) {
        ASSERT_NO_FATAL_FAILURE(Click(whole));
        if (whole.Proposed()) ++proposals;
        if (whole.Over() || (clicks % 12 != 0 && !whole.Proposed())) continue;
        const std::string text = WriteSaveGame(whole.Saved());
        GameSession resumed(ReadSaveGame(text, "ExhGame.txt",
                                         [&](const SaveHead&, PreparedGame& game) {
                                             game.data.rules = whole.Data().rules;
                                             game.data.charts = whole.Data().charts;
                                         }),
                            GameOptions(options), 1234);
        ASSERT_EQ(resumed.Start(), Reject::None);
        EXPECT_EQ(resumed.Proposed().has_value(), whole.Proposed().has_value());
        EXPECT_THAT(resumed.RunningText(), StartsWith(whole.RunningText()));
        EXPECT_THAT(resumed.RunningText(),
                    HasSubstr("Welcome back to Harbour Park for the resumption of a ballgame between"));
        while (!resumed.Over()) ASSERT_NO_FATAL_FAILURE(Click(resumed));
        ASSERT_EQ(HashState(resumed.State()), HashState(unbroken->State())) << "after click " << clicks;
        ASSERT_EQ(Documents(resumed), Documents(*unbroken)) << "after click " << clicks;
    }
    EXPECT_GT(proposals, 2);
}

TEST(SavedSession, ItTellsWhereTheGameStands) {
    GameSession session(demo::DemoSeasons().Setup(), {}, 3);
    ASSERT_EQ(session.Start(), Reject::None);
    session.QuickPlay(5);
    GameSession resumed(session.Saved(), {}, 1);
    ASSERT_EQ(resumed.Start(), Reject::None);
    const GameState& state = session.State();
    EXPECT_THAT(resumed.RunningText(),
                HasSubstr(fmt::format("It's the top of the 6th. The score: Visitors {}, Homers {}.",
                                      state[Side::Visitor].Runs, state[Side::Home].Runs)));
}

// --- The screens -----------------------------------------------------------------------------------------------------

// The program on a data folder of its own.
struct Program {
    testing::SeasonFolder folder;
    std::unique_ptr<Session> session = folder.Start();
    StoredSeasons seasons{*session};
    demo::Outside outside;
    frmMain menu;

    explicit Program(const GameOptions& options = {}) : menu(seasons, outside.Get(), options) {
        menu.SetSeed(7);
        menu.show();
    }
    template <class T>
    T* Find(const char* name) {
        T* found = menu.Open() == nullptr ? nullptr : menu.Open()->findChild<T*>(QString::fromLatin1(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return found;
    }
    void Click(const char* name) { Find<QAbstractButton>(name)->click(); }
    frmGame* Game() { return qobject_cast<frmGame*>(menu.Open()); }
    fs::path SaveFile(int GameID) const { return SaveGameFile(session->Paths().SeasonFolder("Test"), GameID); }
    void OpenSchedule() { QTest::keyClick(menu.findChild<MenuGrid*>(QStringLiteral("grdGamePlay")), Qt::Key_Return); }
    // The first game of the schedule, the visitors the computer's.
    void BeginGame() {
        OpenSchedule();
        Click("optRdCompSubs");
        Click("optRdCompGame");
        Click("chkNext");
        demo::PlayWithComputersLineups(dynamic_cast<frmGameLineups&>(*menu.Open()));
    }
    // Rolls until the game is over or so many inputs have been taken; every other question is answered with Yes.
    void Play(std::uint32_t steps) {
        while (Game() != nullptr && Game()->Session().State().steps < steps) {
            outside.dialogs.defaultReply = Game()->Session().State().steps % 2 == 0 ? Reply::Yes : Reply::No;
            Click("cmdPlay");
            demo::AnswerLineups();
            QCoreApplication::processEvents();
        }
    }
    void SaveAndLeave() {
        outside.dialogs.defaultReply = Reply::Yes;
        Click("cmdQuit");
    }
    void Resume() {
        OpenSchedule();
        Click("chkNext");
    }
    std::uint64_t Finish() {
        Find<QCheckBox>("chkBoxScore")->setChecked(true);
        Find<QCheckBox>("chkScoreSheet")->setChecked(true);
        Click("optText");
        Click("chkFinished");
        return HashSeason(session->Seasons().Season());
    }
    // The two documents of the first game, without the line that tells the time.
    std::string Documents() {
        Statement row =
            session->Seasons().Season().Prepare("SELECT ResultsFile1, ResultsFile2 FROM Schedule WHERE GameID = 1");
        if (!row.Step()) return {};
        const fs::path results = session->Paths().GameResults("Test");
        std::string box = ReadFile(results / row.Text(0));
        const std::size_t time = box.find("Time to play game");
        if (time != std::string::npos) box.erase(time, box.find('\n', time) - time);
        return box + ReadFile(results / row.Text(1));
    }
};

TEST(SavedScreens, AGameOfTheScheduleLeftTenTimesEndsAndIsPostedAsTheUnbrokenOne) {
    Program unbroken;
    unbroken.BeginGame();
    unbroken.Play(100000);
    const std::uint64_t hash = unbroken.Finish();
    const std::string documents = unbroken.Documents();
    ASSERT_THAT(documents, HasSubstr("Totals"));

    Program left;
    left.BeginGame();
    int saves = 0;
    for (std::uint32_t steps = 7; saves < 10; steps += 11, ++saves) {
        left.Play(steps);
        ASSERT_NE(left.Game(), nullptr) << "the game is over after " << saves << " saves: take them earlier";
        const GameState before = left.Game()->Session().State();
        left.SaveAndLeave();
        EXPECT_EQ(left.outside.dialogs.questions.back().text,
                  "Do you want to save the game in progress?\nClick Yes to save game in progress. \n"
                  "Saved game must be completed before advancing to next game date from the schedule.\n"
                  "Click No to quit game and do not save game in progress. All game results will be lost.");
        ASSERT_EQ(left.menu.Open(), nullptr);
        EXPECT_TRUE(left.menu.isVisible());
        EXPECT_TRUE(fs::exists(left.SaveFile(1)));
        left.Resume();
        ASSERT_NE(left.Game(), nullptr);
        EXPECT_TRUE(left.Game()->Session().State() == before);
        EXPECT_FALSE(left.Find<QPushButton>("chkcurrPrev")->isEnabled()) << "no chart has been read in this sitting";
    }
    EXPECT_THAT(left.Find<QPlainTextEdit>("txtPlayByPlay")->toPlainText().toStdString(), HasSubstr("Welcome back to"));
    left.Play(100000);
    ASSERT_NE(qobject_cast<frmGameOver*>(left.menu.Open()), nullptr);
    EXPECT_TRUE(fs::exists(left.SaveFile(1))) << "it serves until the game is finished";
    EXPECT_EQ(left.Finish(), hash);
    EXPECT_EQ(left.Documents(), documents);
    EXPECT_FALSE(fs::exists(left.SaveFile(1)));
    EXPECT_THAT(left.outside.dialogs.warnings, IsEmpty());
}

TEST(SavedScreens, TheScheduleShowsASavedGameWaitsForItAndADamagedFileIsToldOfAndKept) {
    Program program;
    program.BeginGame();
    program.Play(20);
    program.SaveAndLeave();
    program.OpenSchedule();
    auto* grid = program.Find<QTableWidget>("grdSched");
    EXPECT_EQ(grid->item(0, 0)->text(), QStringLiteral("Y"));
    grid->selectRow(1);
    program.Click("chkPlayTo");
    ASSERT_THAT(program.outside.dialogs.warnings, SizeIs(1));
    EXPECT_EQ(program.outside.dialogs.warnings[0].text, "Please complete saved game(s) before using Quick Play.");

    const std::string text = ReadFile(program.SaveFile(1));
    WriteFile(program.SaveFile(1), text.substr(0, text.size() / 2));
    grid->selectRow(0);
    program.Click("chkNext");
    ASSERT_THAT(program.outside.dialogs.warnings, SizeIs(2));
    EXPECT_EQ(program.outside.dialogs.warnings[1].title, "Resume Saved Game");
    EXPECT_THAT(program.outside.dialogs.warnings[1].text, HasSubstr("SaveGame1.txt, line "));
    EXPECT_NE(qobject_cast<frmPreSchedGame*>(program.menu.Open()), nullptr) << "the screen stays";
    EXPECT_EQ(ReadFile(program.SaveFile(1)).size(), text.size() / 2);

    std::string other = text;  // the file of another game
    other.replace(other.find(",93,1,0,"), 5, ",93,2");
    WriteFile(program.SaveFile(1), other);
    program.Click("chkNext");
    ASSERT_THAT(program.outside.dialogs.warnings, SizeIs(3));
    EXPECT_THAT(program.outside.dialogs.warnings[2].text, HasSubstr("holds game 2 and not the game of its name"));

    WriteFile(program.SaveFile(1), text);
    program.Click("chkNext");
    ASSERT_NE(program.Game(), nullptr);
    program.outside.dialogs.defaultReply = Reply::No;  // given up: its file goes too
    program.Click("cmdQuit");
    EXPECT_EQ(program.menu.Open(), nullptr);
    EXPECT_FALSE(fs::exists(program.SaveFile(1)));
}

// Ratings made anew and another game of a club leave a saved game alone, and it is posted on top of what came since.
TEST(SavedScreens, AGameGoesOnWithItsCopiesAndIsPostedOnTopOfWhatCameSince) {
    Program unbroken;
    unbroken.BeginGame();
    unbroken.Play(100000);
    unbroken.Finish();

    Program program;
    program.BeginGame();
    program.Play(40);
    program.SaveAndLeave();
    Database& season = program.session->Seasons().Season();
    season.Execute("UPDATE KorvBatters SET vsL25 = 'HR', vsR25 = 'HR', vsL24 = 'HR', vsR24 = 'HR'");
    season.Execute("UPDATE KorvBatters SET AB = 100, H = 10");
    program.Resume();
    program.Play(100000);
    program.Finish();
    const auto number = [](Program& of, const std::string& sql) {
        Statement row = of.session->Seasons().Season().Prepare(sql);
        return row.Step() ? row.Int(0) : -1;
    };
    EXPECT_EQ(number(program, "SELECT VisitorScore * 100 + HomeScore FROM Schedule WHERE GameID = 1"),
              number(unbroken, "SELECT VisitorScore * 100 + HomeScore FROM Schedule WHERE GameID = 1"));
    const std::string played =
        "SELECT sum({0}) FROM KorvBatters WHERE playerID IN (SELECT PlayerID FROM "
        "KorvBatterResultsLog WHERE GameID = 1)";
    const std::string men = "SELECT count(DISTINCT PlayerID) FROM KorvBatterResultsLog WHERE GameID = 1";
    EXPECT_EQ(number(program, fmt::format(fmt::runtime(played), "AB")),
              number(unbroken, fmt::format(fmt::runtime(played), "AB")) + 100 * number(program, men));
    EXPECT_EQ(number(program, fmt::format(fmt::runtime(played), "H")),
              number(unbroken, fmt::format(fmt::runtime(played), "H")) + 10 * number(program, men));
}

TEST(SavedScreens, TheOneSavedExhibitionIsOfferedAndGoesWithTheGame) {
    Program program;
    const auto open = [&] { program.menu.OpenScreen(MenuScreen::PreExGame); };
    open();
    EXPECT_THAT(program.outside.dialogs.questions, IsEmpty());
    program.Find<QComboBox>("cmbVisitorTeam")->setCurrentIndex(0);
    program.Find<QComboBox>("cmbHomeTeam")->setCurrentIndex(1);
    program.Click("cmdNext");
    demo::PlayWithComputersLineups(dynamic_cast<frmGameLineups&>(*program.menu.Open()));
    program.Play(30);
    const GameState before = program.Game()->Session().State();
    program.SaveAndLeave();
    EXPECT_THAT(program.outside.dialogs.questions.back().text, ::testing::Not(HasSubstr("must be completed")));
    ASSERT_TRUE(fs::exists(program.SaveFile(kExhibitionGameID)));

    program.outside.dialogs.replies = {Reply::No};
    open();
    EXPECT_EQ(program.outside.dialogs.questions.back().text,
              "A saved exhibition game file exists. Do you want to resume the saved exhibition game?\n"
              "Click Yes to resume the saved exhibition game, otherwise Click No.");
    EXPECT_NE(qobject_cast<frmPreExGame*>(program.menu.Open()), nullptr);
    program.menu.Open()->close();
    program.outside.dialogs.replies = {Reply::Yes};
    open();
    ASSERT_NE(program.Game(), nullptr);
    EXPECT_TRUE(program.Game()->Session().State() == before);
    program.Play(100000);
    program.Click("chkFinished");
    EXPECT_EQ(program.menu.Open(), nullptr);
    EXPECT_FALSE(fs::exists(program.SaveFile(kExhibitionGameID)));
    EXPECT_THAT(program.outside.dialogs.warnings, IsEmpty());
}

TEST(SavedScreens, SongsBetweenInningsAreNotPlayedASecondTimeAfterASave) {
    GameOptions options;
    options.sounds.BetweenInningsSounds = true;
    for (std::string& song : options.sounds.Sound) song = "Song.wav";
    Program program(options);
    program.BeginGame();
    const auto songs = [&] {
        const SavedGame saved =
            ResumeSavedGame(program.session->Common(), program.session->Seasons().Season(), program.SaveFile(1));
        return std::count(saved.MusicClipPlayed.begin(), saved.MusicClipPlayed.end(), true);
    };
    program.Play(60);
    program.SaveAndLeave();
    const auto first = songs();
    EXPECT_GT(first, 0);
    program.Resume();
    program.SaveAndLeave();
    EXPECT_EQ(songs(), first);
    program.Resume();
    program.Play(110);
    program.SaveAndLeave();
    EXPECT_GT(songs(), first);
}

TEST(SavedScreens, AGameThatCantBeWrittenStaysOnTheScreen) {
    Program program;
    program.BeginGame();
    program.Play(10);
    fs::create_directories(program.SaveFile(1) / "in the way");
    program.SaveAndLeave();
    ASSERT_THAT(program.outside.dialogs.warnings, SizeIs(1));
    EXPECT_THAT(program.outside.dialogs.warnings[0].text, HasSubstr("SaveGame1.txt can't be written"));
    ASSERT_NE(program.Game(), nullptr);
    EXPECT_TRUE(program.Game()->isVisible());
    fs::remove_all(program.SaveFile(1));
    program.SaveAndLeave();
    EXPECT_EQ(program.menu.Open(), nullptr);
    EXPECT_TRUE(fs::exists(program.SaveFile(1)));
}

}  // namespace
}  // namespace tarvane
