// Somebody clicks and types at random. Nothing may crash, block, close the way back to the menu, or spoil a season.
//   TARVANE_MONKEY_SECONDS=3600 TARVANE_MONKEY_SEED=3 build/sanitize/bin/test_ui --gtest_filter='RandomUse.*'
// makes visits for an hour; without them it makes one.

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <thread>

#include "base/file.h"
#include "season/seasonaudit.h"
#include "ui/frmmain.h"
#include "ui/monkey.h"
#include "ui/openlineups.h"
#include "ui/screen.h"
#include "ui/seasonfolder.h"
#include "ui/storedseasons.h"

namespace tarvane {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kDeedsOfAVisit = 3000;
constexpr int kLongestDeed = 60;  // seconds; quick play of a season runs beside the screen and never blocks so long

int FromEnvironment(const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoi(text);
}

// Ends the program with the story of what was done when a deed doesn't come back.
class Watchdog {
  public:
    explicit Watchdog(const testing::Monkey& monkey) : monkey_(monkey), thread_([this] { Watch(); }) {}
    ~Watchdog() {
        {
            const std::lock_guard lock(mutex_);
            over_ = true;
        }
        wake_.notify_all();
        thread_.join();
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    void Alive() { ++deeds_; }

  private:
    void Watch() {
        std::unique_lock lock(mutex_);
        for (int before = -1; !over_;) {
            wake_.wait_for(lock, std::chrono::seconds(kLongestDeed), [this] { return over_; });
            if (over_ || deeds_ != before) {
                before = deeds_;
                continue;
            }
            fmt::print(stderr, "The screen is stuck. What was done last:\n{}\n", monkey_.Memory());
            std::abort();
        }
    }

    const testing::Monkey& monkey_;
    std::atomic<int> deeds_ = 0;
    bool over_ = false;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::thread thread_;
};

// One visit: a fresh season, the program, and somebody who doesn't know it.
struct Visit {
    explicit Visit(std::uint64_t seed) : chance(seed) {
        menu.SetSeed(seed);
        menu.resize(1024, 768);
        dialogs.told = [this](const std::string& what) { monkey.Remember(what); };
    }

    testing::SeasonFolder folder;
    std::unique_ptr<Session> session = folder.Start();
    StoredSeasons seasons{*session};
    Random chance;
    testing::RandomDialogs dialogs{chance, Files()};
    demo::NoSound sound;
    demo::NoBrowser browser;
    frmMain menu{seasons, {dialogs, sound, browser}, {}};
    testing::Monkey monkey{chance};

    // What a user might point at: good statistics, a damaged file, nothing at all.
    std::vector<std::filesystem::path> Files() const {
        WriteFile(folder.root / "damaged.mdb", std::string(5000, '\7'));
        return {folder.root / "league", folder.root / "damaged.mdb", folder.root / "nothing", folder.root};
    }
    void Deed() {
        if (menu.Open() == nullptr && !menu.isVisible()) menu.show();  // it was closed, as one leaves the program
        // Chance alone seldom fills two line-ups, and so would hardly see a game.
        if (auto* lineups = demo::OpenLineups(); lineups != nullptr && chance.Below(50) == 0) {
            monkey.Remember("both teams with the computer's choice");
            menu.Open() == lineups ? demo::PlayWithComputersLineups(*lineups) : demo::AnswerLineups();
        } else {
            monkey.Act();
        }
    }
    // Escape, and Yes to what is asked then, leads back to the menu from wherever one is; from a line-up that a game waits
    // for, the computer's choice and then Escape.
    bool BackToTheMenu() {
        dialogs.always = Reply::Yes;
        for (int i = 0; i < 100 && menu.Open() != nullptr; ++i) {
            const std::vector<QWidget*> windows = testing::Monkey::Windows();
            if (windows.empty()) break;
            monkey.Remember(fmt::format("Escape on {}", windows.back()->metaObject()->className()));
            QTest::keyClick(windows.back(), Qt::Key_Escape);
            // A line-up that the game can't go on without has another way out.
            if (i % 10 == 9 && demo::OpenLineups() != nullptr) demo::AnswerLineups();
            QTest::qWait(i < 10 ? 0 : 50);  // a run under way ends after its game
        }
        dialogs.always.reset();
        return menu.Open() == nullptr;
    }
};

// The screens in front of which no other screen lies: lists that drop down and dialogs don't count.
std::vector<std::string> OpenScreens() {
    std::vector<std::string> open;
    for (const QWidget* window : testing::Monkey::Windows())
        if (qobject_cast<const Screen*>(window) != nullptr || qobject_cast<const frmMain*>(window) != nullptr)
            open.push_back(
                QString::fromLatin1(window->metaObject()->className()).section(QStringLiteral("::"), -1).toStdString());
    return open;
}

TEST(RandomUse, LeavesTheProgramAliveAndTheSeasonWhole) {
    const int seconds = FromEnvironment("TARVANE_MONKEY_SECONDS", 0);
    auto seed = static_cast<std::uint64_t>(FromEnvironment("TARVANE_MONKEY_SEED", 1));
    for (QWidget* left : QApplication::topLevelWidgets()) left->hide();  // by tests before this one
    std::map<std::string, int> seen;
    QElapsedTimer clock;
    clock.start();
    int deeds = 0;
    do {
        Visit visit(seed++);
        Watchdog watchdog(visit.monkey);
        for (int i = 0; i < kDeedsOfAVisit; ++i, ++deeds) {
            visit.Deed();
            watchdog.Alive();
            const std::vector<std::string> open = OpenScreens();
            for (const std::string& name : open) ++seen[name];
            if (visit.menu.Open() != nullptr || visit.menu.isVisible()) {
                ASSERT_THAT(open, SizeIs(1)) << "seed " << seed - 1 << ", after\n" << visit.monkey.Memory();
            }
        }
        ASSERT_TRUE(visit.BackToTheMenu()) << "seed " << seed - 1 << ", after\n" << visit.monkey.Memory();
        EXPECT_THAT(AuditSeason(visit.session->Seasons().Season()), IsEmpty()) << "seed " << seed - 1 << ", after\n"
                                                                               << visit.monkey.Memory();
    } while (clock.elapsed() < seconds * 1000LL && !::testing::Test::HasFailure());
    std::string tour;
    for (const auto& [name, times] : seen) tour += fmt::format(" {} {},", name, times);
    fmt::print("{} deeds in {} s:{}\n", deeds, clock.elapsed() / 1000, tour);
    EXPECT_GT(seen.size(), 5U) << "it saw too few screens for its word to count";
}

}  // namespace
}  // namespace tarvane
