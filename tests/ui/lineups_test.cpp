#include <gmock/gmock.h>

#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QTest>

#include "engine/boxtext.h"
#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/lineupfigures.h"
#include "ui/mangrid.h"
#include "ui/openlineups.h"

namespace tarvane {
namespace {

using demo::ClickOn;
using demo::OpenLineups;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr PlayerRef kNobody{};
PlayerRef Hitter(int index) {
    return {'B', static_cast<std::int16_t>(index)};
}
PlayerRef Arm(int index) {
    return {'P', static_cast<std::int16_t>(index)};
}

// A stored list of the fixture's regulars for one hand.
LineupList Stored(const TeamRoster& roster, bool left, bool dh) {
    LineupList list;
    list.LineupName = left ? "#1 vs Left" : "#1 vs Right";
    list.BattingvsL = left ? 1 : 0;
    list.BattingvsR = left ? 0 : 1;
    for (std::size_t i = 0; i < 8; ++i)
        list.slot[i] = {roster.batters[left ? 7 - i : i].playerID, fixture::kFieldOrder[left ? 7 - i : i], 'B'};
    if (dh)
        list.slot[8] = {roster.batters[16].playerID, Position::DH, 'B'};
    else
        list.slot[8] = {roster.pitchers[0].playerID, Position::P, 'P'};
    return list;
}

struct Lineups : ::testing::Test {
    demo::DemoSeasons seasons;
    std::shared_ptr<PreparedGame> setup = seasons.MakeSetup();
    GameState state;

    TeamRoster& Roster(Side side) { return setup->data.team[side].roster; }
    std::string Name(Side side, PlayerRef man) {
        return man.type == 'P' ? Roster(side).pitchers[static_cast<std::size_t>(man.index)].playerName
                               : Roster(side).batters[static_cast<std::size_t>(man.index)].playerName;
    }
    void StartTheGame() {
        ASSERT_EQ(StartGame(setup->data, setup->lineup[Side::Visitor], setup->lineup[Side::Home], state), Reject::None);
        state.sheet = SheetCode::P;
        state.StaminaCheckPending = false;
    }
};

TEST_F(Lineups, EachFaultOfAStartingLineupIsNamedInTurn) {
    const Side side = Side::Home;
    setup->control[Side::Visitor].lineups = true;
    Roster(side).batters[9].injury.InjuredDaysRemaining = 3;
    Roster(side).batters[10].Inactive = true;
    Roster(side).pitchers[2].PitchedOnDay = 100;
    Roster(side).pitchers[2].PitcherRestDays = 3;
    setup->data.dayNumber = 102;
    LineupModel model(*setup);
    const auto fault = [&] {
        const LineupNotice notice = model.Fault();
        EXPECT_TRUE(notice.title == kLineupsTitle || !notice.Any());
        return notice.text;
    };
    EXPECT_EQ(fault(), "Choose Lineup for Home Team");
    model.TakeList(side, 0);
    EXPECT_EQ(fault(), "");
    model.Remove(side, 3);
    EXPECT_EQ(fault(), "Player missing in Home Lineup.");
    model.Place(side, 3, Hitter(4));
    EXPECT_EQ(fault(), "Duplicate player in Home lineup. ( " + Name(side, Hitter(4)) + ")");
    model.Place(side, 3, Hitter(9));
    EXPECT_EQ(fault(), "Selected Home batter " + Name(side, Hitter(9)) + " is injured - cannot start game.");
    EXPECT_EQ(model.MarkText(side, Hitter(9)), "injured 3 days");
    model.Place(side, 3, Hitter(10));
    EXPECT_EQ(fault(), "Selected Home batter " + Name(side, Hitter(10)) + " is inactive - cannot start game.");
    model.Place(side, 3, Hitter(3));
    EXPECT_EQ(model.Place(side, 8, Hitter(11)), "Selected player cannot pitch.");
    model.Place(side, 8, Arm(7));
    EXPECT_EQ(fault(), "Selected Home Relief Pitcher cannot start a game");
    model.Place(side, 8, Arm(2));
    EXPECT_EQ(fault(), "Selected Home Pitcher " + Name(side, Arm(2)) + " is resting - cannot start a game");
    EXPECT_EQ(model.MarkText(side, Arm(2)), "resting 2 days");
    EXPECT_EQ(model.Roster(side, LineupModel::Filters()[2]).back(), Arm(2)) << "those of no use stand last";
    model.Undo(side);
    EXPECT_EQ(fault(), "Choose Lineup for Home Team");
    model.TakeList(side, 0);
    setup->data.year.EraName.clear();
    EXPECT_THAT(fault(), HasSubstr("Must define Year Effect for league."));
}

TEST_F(Lineups, AStoredListBringsItsMenAndAListForTheOtherKindOfGameLosesTheManItCantUse) {
    const Side side = Side::Visitor;
    Roster(side).lists = {Stored(Roster(side), true, false), Stored(Roster(side), false, false), {}};
    LineupModel model(*setup);
    EXPECT_THAT(model.ListNames(side), SizeIs(3)) << "an empty list is none";
    EXPECT_EQ(model.ListAgainst(side, true), 1);
    model.TakeList(side, 1);
    EXPECT_EQ(model.Lineup(side).player[0], Hitter(7));
    EXPECT_EQ(model.Lineup(side).player[8], model.Lineup(side).pitcher) << "the starter of the day pitches";
    Roster(Side::Home).lists = {Stored(Roster(Side::Home), true, true)};
    setup->control[side].lineups = true;
    LineupModel other(*setup);
    other.TakeList(Side::Home, 1);
    EXPECT_EQ(other.Lineup(Side::Home).position[8], Position::P);
    EXPECT_EQ(other.Lineup(Side::Home).player[8], other.Lineup(Side::Home).pitcher);
    EXPECT_EQ(other.Fault().text, "");

    setup->data.DHUsed = true;
    LineupModel dh(*setup);
    dh.TakeList(side, 1);
    EXPECT_EQ(dh.Lineup(side).position[8], Position::DH);
    EXPECT_EQ(dh.Lineup(side).player[8], kNobody);
    EXPECT_THAT(dh.Rows(side), SizeIs(10));
    dh.Place(side, 8, Hitter(16));
    dh.Place(side, kPitcherRow, Arm(1));
    EXPECT_EQ(dh.Place(side, kPitcherRow, Hitter(12)), "Selected player cannot pitch.");
    EXPECT_EQ(CheckStartingLineup(setup->data, dh.Lineup(side)), Reject::None);
}

// Whatever the moves are, the model never takes a line-up for good that the engine refuses, and the other way round.
TEST_F(Lineups, ChangesInAGameHoldToItsRules) {
    StartTheGame();
    const Side batting = Side::Visitor, fielding = Side::Home;
    LineupModel model(*setup, state);
    EXPECT_THAT(model.Changes(), IsEmpty());
    EXPECT_TRUE(model.AsksForPinch(batting, 4, Position::PH));
    EXPECT_FALSE(model.AsksForPinch(batting, 0, Position::PH));
    EXPECT_EQ(model.PinchHit(fielding, Hitter(12)), "Only the team at bat can send a pinch hitter.");
    EXPECT_NE(model.PinchRun(batting, 0, Hitter(12)), "") << "nobody is on base";
    EXPECT_EQ(model.PinchHit(batting, Hitter(12)), "");
    // A double switch: the reliever bats fifth, a new left fielder ninth.
    EXPECT_EQ(model.Place(fielding, 4, Arm(6)), "");
    EXPECT_EQ(model.SetPosition(fielding, 4, Position::P), "");
    EXPECT_EQ(model.Fault().text, "") << "he may stay as a shortstop";
    EXPECT_EQ(model.Place(fielding, 8, Hitter(12)), "");
    EXPECT_EQ(model.Fault().text, "");
    EXPECT_EQ(model.Lineup(fielding).pitcher, Arm(6));
    EXPECT_EQ(model.Lineup(fielding).position[8], Position::SS);
    ASSERT_THAT(model.Changes(), SizeIs(2));
    // In the field nobody can stand as a pinch hitter, and two shortstops are one too many.
    model.SetPosition(fielding, 2, Position::PH);
    EXPECT_EQ(model.Fault().text, "Home Team Lineup positions are Incomplete");
    model.Undo(fielding);
    model.Place(fielding, 2, Hitter(6));
    EXPECT_THAT(model.Fault().text, HasSubstr("Duplicate player in Home lineup."));
    model.Undo(fielding);
    model.Swap(fielding, 1, 2);
    EXPECT_EQ(model.Lineup(fielding).position[1], Position::B2);
    EXPECT_EQ(model.Lineup(fielding).player[1], Hitter(1)) << "the order stands";
    EXPECT_EQ(model.Fault().text, "");

    for (const LineupInput& change : model.Changes())
        ASSERT_EQ(Advance(setup->data, state, change, nullptr), Reject::None);
    LineupModel after(*setup, state);
    EXPECT_THAT(after.Gone(batting), ::testing::ElementsAre(Hitter(0)));
    EXPECT_EQ(after.MarkText(batting, Hitter(0)), "out of the game");
    EXPECT_THAT(after.Place(batting, 3, Hitter(0)), HasSubstr("has left the game"));
    EXPECT_THAT(after.Rows(batting)[0].name, HasSubstr(" >"));
    EXPECT_EQ(after.Rows(batting)[0].position, "PH");
}

TEST_F(Lineups, FiguresAreTheMansOwnForTheHandAndTheSeasonAskedFor) {
    Batter& batter = Roster(Side::Home).batters[3];
    batter.vsLChance = {0.1, 0.05, 0.01, 0.04, 0.1, 0.2};
    batter.total.AB = 200;
    batter.total.H = 50;
    batter.vsLeft.AB = 40;
    batter.vsLeft.H = 20;
    LahmanRecord real;
    real.playerID = batter.LahmanPlayerID;
    real.total.counts.AB = 400;
    real.total.counts.H = 200;
    setup->real[Side::Home].batters = {real};
    const TeamRoster& roster = Roster(Side::Home);
    EXPECT_THAT(ChanceTexts(roster, Hitter(3), {true}), ::testing::ElementsAre("20.0", "4.0", "10.0", "5.0", "1.0"));
    EXPECT_EQ(ChanceTexts(roster, Hitter(3), {false})[0], "0.0");
    EXPECT_EQ(StatTexts(*setup, Side::Home, Hitter(3), {})[0], ".250");
    EXPECT_EQ(StatTexts(*setup, Side::Home, Hitter(3), {true, false, false, true})[0], ".500");
    EXPECT_EQ(StatTexts(*setup, Side::Home, Hitter(3), {false, false, true, false})[3], "400");
    EXPECT_THAT(StatTexts(*setup, Side::Home, Hitter(4), {false, false, true, false}), IsEmpty());
    EXPECT_EQ(ManChart(roster, Hitter(3), {true}).cell[0], batter.vsL);
    EXPECT_EQ(ManChart(roster, Arm(1), {false, true}).cell[0], roster.pitchers[1].Bat);
}

// --- The screen ------------------------------------------------------------------------------------------------------

void Drop(ManGrid& from, int fromRow, ManGrid& onto, int row) {
    const std::unique_ptr<QMimeData> carried(from.DragData(fromRow));
    const QPoint at = onto.visualItemRect(onto.item(row, 1)).center();
    QDragEnterEvent enter(at, Qt::CopyAction, carried.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(onto.viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(at, Qt::CopyAction, carried.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(onto.viewport(), &drop);
}

TEST_F(Lineups, MenAreDraggedIntoPlaceAndKeysDoTheSame) {
    demo::Outside outside;
    frmGameLineups screen(setup, {}, outside.Get());
    screen.resize(1024, 768);
    screen.show();
    GamePtr ready;
    QObject::connect(&screen, &frmGameLineups::GameReady, [&](const GamePtr& game) { ready = game; });
    auto* order = screen.findChild<ManGrid*>(QStringLiteral("grdLineups"));
    auto* roster = screen.findChild<ManGrid*>(QStringLiteral("grdPlayers"));
    auto* filter = screen.findChild<QComboBox*>(QStringLiteral("cmbShowByPos"));
    const auto lineup = [&] { return screen.Model().Lineup(Side::Visitor); };
    ClickOn(screen, "cmdPlay");
    EXPECT_EQ(outside.dialogs.warnings.back().text, "Choose Lineup for Visitor Team");
    for (const char* name : {"optHomeTeam", "chkComputer", "optVisitorTeam", "chkComputer"}) ClickOn(screen, name);
    Drop(*roster, 0, *order, 2);  // the first man without a place
    EXPECT_EQ(lineup().player[2], Hitter(8));
    Drop(*order, 2, *order, 5);
    EXPECT_EQ(lineup().player[5], Hitter(8));
    EXPECT_EQ(lineup().position[5], Position::B2) << "before a game a man takes his position along";
    QTest::keyClick(order, Qt::Key_3);  // the selected slot, the sixth, goes third
    EXPECT_EQ(lineup().player[2], Hitter(8));
    filter->setCurrentText(QStringLiteral("2B"));
    QTest::keyClick(roster, Qt::Key_Down);  // to the man in the line-up no longer: batter 2 is free again
    while (roster->item(roster->currentRow(), 0)->text().toStdString().rfind(Name(Side::Visitor, Hitter(2)), 0) != 0)
        QTest::keyClick(roster, roster->currentRow() > 0 ? Qt::Key_Up : Qt::Key_Down);
    QTest::keyClick(roster, Qt::Key_3);
    EXPECT_EQ(lineup().player[2], Hitter(2));
    QTest::keyClick(order, Qt::Key_Delete);
    EXPECT_EQ(lineup().player[2], kNobody);
    QTest::keyClick(roster, Qt::Key_Return);  // into the selected slot
    EXPECT_EQ(lineup().player[2], Hitter(2));
    QTest::keyClick(roster, Qt::Key_P);
    EXPECT_EQ(outside.dialogs.warnings.back().text, "Selected player cannot pitch.");
    Drop(*order, 2, *roster, 0);
    EXPECT_EQ(lineup().player[2], kNobody);
    ClickOn(screen, "cmdPlay");
    EXPECT_EQ(outside.dialogs.warnings.back().text, "Player missing in Visitor Lineup.");
    EXPECT_FALSE(ready);
    Drop(*roster, 0, *order, 2);
    ClickOn(screen, "cmdPlay");
    ASSERT_TRUE(ready);
    EXPECT_EQ(ready->lineup[Side::Visitor].player, lineup().player);
}

// A person's game with everything that a manager does, by the names of the controls.
struct WholeGame : ::testing::Test {
    demo::Outside outside;
    demo::DemoSeasons seasons;
    std::unique_ptr<frmGame> game;

    const GameState& State() { return game->Session().State(); }
    frmGameLineups* Open() {
        ClickOn(*game, "chkLineup");
        return OpenLineups();
    }
    // The man of the roster who stands first when only those of this kind are shown.
    static void ShowMen(frmGameLineups& screen, const char* kind) {
        screen.findChild<QComboBox*>(QStringLiteral("cmbShowByPos"))->setCurrentText(QString::fromLatin1(kind));
        screen.findChild<ManGrid*>(QStringLiteral("grdPlayers"))->selectRow(0);
    }
    static void Key(frmGameLineups& screen, const char* grid, Qt::Key key) {
        QTest::keyClick(screen.findChild<ManGrid*>(QString::fromLatin1(grid)), key);
    }
    void PinchHit() {
        const PlayerRef before = State().AtBat().player;
        frmGameLineups* screen = Open();
        ASSERT_NE(screen, nullptr);
        ShowMen(*screen, "All Batters");
        ClickOn(*screen, "cmdPinchHit");
        ClickOn(*screen, "cmdPlay");
        EXPECT_NE(State().AtBat().player, before);
        EXPECT_EQ(State().AtBat().position, Position::PH);
    }
    void ChangePitcherAndFielders() {
        ClickOn(*game, "chkOpp");
        const Side side = State().FieldingSide();
        const PlayerRef before = State()[side].pitcher;
        frmGameLineups* screen = Open();
        ASSERT_NE(screen, nullptr);
        ASSERT_EQ(screen->SideShown(), side);
        ShowMen(*screen, "Relief Pitchers");
        Key(*screen, "grdPlayers", Qt::Key_P);
        screen->findChild<ManGrid*>(QStringLiteral("grdLineups"))->selectRow(5);  // left and right field change over
        screen->findChild<QComboBox*>(QStringLiteral("cmbPos"))->setCurrentText(QStringLiteral("RF"));
        ClickOn(*screen, "cmdPlay");
        EXPECT_NE(State()[side].pitcher, before);
        EXPECT_EQ(State()[side].lineup[5].position, Position::RF);
        EXPECT_EQ(State()[side].lineup[7].position, Position::LF);
        ClickOn(*game, "chkOpp");
    }
    // Whether a command that the screen offers now is to be given; half of them are, up to four in a game.
    bool Wanted(const char* command, int& given) {
        const auto* button = game->findChild<QPushButton*>(QString::fromLatin1(command));
        if (!button->isEnabled() || given >= 4 || State().steps % 2 == 0) return false;
        ++given;
        return true;
    }
    // A change that the game waits for: the first man who can stand there, then whatever else is open.
    void AnswerForced() {
        frmGameLineups* screen = OpenLineups();
        ASSERT_NE(screen, nullptr);
        QTest::keyClick(screen, Qt::Key_Escape);
        ASSERT_EQ(OpenLineups(), screen) << "no way out but a change";
        ClickOn(*screen, "cmdPlay");
        ASSERT_EQ(OpenLineups(), screen);
        Key(*screen, "grdPlayers", Qt::Key_Return);
        ClickOn(*screen, "cmdPlay");
        if (OpenLineups() != nullptr) demo::AnswerLineups();
        ASSERT_EQ(OpenLineups(), nullptr);
    }
};

TEST_F(WholeGame, APersonPlaysItByOneClickWithStealsBuntsPinchHitterNewPitcherNewDefenceAndAnInjury) {
    int injuries = 0, pinchHitters = 0, pitchers = 0, positions = 0, bunts = 0, steals = 0;
    outside.dialogs.defaultReply = Reply::Yes;
    outside.dialogs.choice = 0;
    GameOptions options;
    options.ComputerMgrAutoClick = true;
    for (std::uint64_t seed = 11; seed < 60 && (injuries == 0 || positions == 0); ++seed) {
        injuries = pinchHitters = pitchers = positions = bunts = steals = 0;
        outside.dialogs.reminders.clear();
        game = std::make_unique<frmGame>(seasons.Setup(), options, seed, outside.Get());
        game->show();
        for (int clicks = 0; clicks < 5000 && !State().GameOverFlag; ++clicks) {
            ASSERT_EQ(StateOk(game->Session().Data(), State()), "");
            // A new pitcher's stamina is rolled for by itself, a moment after the screen is back.
            if (State().sheet == SheetCode::PS) QTest::qWait(1);
            if (State().awaited.kind == Await::LineupChange) {
                ++(State().awaited.cause == LineupCause::Positions ? positions : injuries);
                AnswerForced();
            } else if (State().sheet == SheetCode::P && State().Inning == 6 && pinchHitters == 0) {
                ++pinchHitters;
                PinchHit();
            } else if (State().sheet == SheetCode::P && State().Inning == 7 && pitchers == 0) {
                ++pitchers;
                ChangePitcherAndFielders();
            } else if (Wanted("chkSteal", steals)) {
                ClickOn(*game, "chkSteal");
            } else if (Wanted("chkBunt", bunts)) {
                ClickOn(*game, "chkBunt");
            } else {
                ClickOn(*game, "cmdPlay");
            }
        }
        ASSERT_TRUE(State().GameOverFlag)
            << "waits for " << static_cast<int>(State().awaited.kind) << " on sheet " << static_cast<int>(State().sheet)
            << " in inning " << int{State().Inning} << ", the play button "
            << (game->findChild<QPushButton*>(QStringLiteral("cmdPlay"))->isEnabled() ? "enabled" : "off");
        EXPECT_TRUE(ProveBox(State()).Proves());
    }
    EXPECT_GE(std::min(steals, bunts), 2);
    EXPECT_GT(injuries, 0);
    EXPECT_GT(positions, 0) << "the pinch hitter needs a place in the field";
    EXPECT_EQ(pinchHitters, 1);
    EXPECT_EQ(pitchers, 1);
    std::vector<std::string> titles;
    for (const auto& reminder : outside.dialogs.reminders) titles.push_back(reminder.title);
    EXPECT_THAT(titles, ::testing::Contains(HasSubstr("Injured")));
    EXPECT_GE(State()[Side::Visitor].box.PitchersUsed + State()[Side::Home].box.PitchersUsed, 3);
}

}  // namespace
}  // namespace tarvane
