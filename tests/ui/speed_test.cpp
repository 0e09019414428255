// How quickly the program answers. The aims are those of an idle machine; a test fails at three times as much.

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>

#include <algorithm>

#include "engine/fixture.h"
#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/frmmain.h"
#include "ui/seasonfolder.h"
#include "ui/storedseasons.h"

namespace tarvane {
namespace {

constexpr double kLoadedMachine = 3;

// The quickest of a few runs, in milliseconds: what else the machine does only ever adds.
template <class Run>
double Quickest(int runs, Run run) {
    double best = 1e9;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer clock;
        clock.start();
        run();
        best = std::min(best, static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }
    return best;
}

void Hold(const char* what, double measured, double aim) {
    fmt::print("{}: {:.1f} ms (aim {:.0f} ms)\n", what, measured, aim);
    EXPECT_LT(measured, aim * kLoadedMachine) << what;
}

TEST(Speed, TheMainMenuIsThereSoonAfterTheStart) {
    testing::SeasonFolder folder;
    demo::Outside outside;
    Hold("start to main menu",
         Quickest(3,
                  [&] {
                      const std::unique_ptr<Session> session = folder.Start();
                      StoredSeasons seasons(*session);
                      frmMain menu(seasons, outside.Get(), OptionsFrom(*session));
                      menu.resize(1024, 768);
                      menu.show();
                      QApplication::processEvents();
                      menu.grab();
                  }),
         1000);
}

TEST(Speed, AGameOpensAtOnceAndATurnAtBatTakesNoTime) {
    demo::DemoSeasons seasons;
    demo::Outside outside;
    GameOptions options;
    for (SideControl& side : options.computer.value) side = {true, true, true};
    options.ComputerMgrAutoClick = true;
    options.PromptSpectatorMode = false;
    const GamePtr setup = seasons.Setup();
    const auto show = [](frmGame& game) {
        game.resize(1920, 1080);
        game.show();
        QApplication::processEvents();
        game.grab();
    };
    Hold("opening frmGame",
         Quickest(3,
                  [&] {
                      frmGame game(setup, options, 1, outside.Get());
                      show(game);
                  }),
         300);
    frmGame game(setup, options, 1, outside.Get());
    show(game);
    auto* play = game.findChild<QPushButton*>(QStringLiteral("cmdPlay"));
    std::vector<double> clicks;
    while (clicks.size() < 60 && !game.Session().Over())
        clicks.push_back(Quickest(1, [&] {
            play->click();
            QApplication::processEvents();
            game.grab();
        }));
    ASSERT_GE(clicks.size(), 50U);
    std::sort(clicks.begin(), clicks.end());
    Hold("1-Click turn at bat, middle one", clicks[clicks.size() / 2], 50);
    fmt::print("1-Click turn at bat, slowest: {:.1f} ms\n", clicks.back());
}

}  // namespace
}  // namespace tarvane
