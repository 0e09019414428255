// tarvane: the desktop program. It has no command-line options.

#include <QApplication>
#include <QLockFile>
#include <QScreen>
#include <QTimer>
#include <clocale>

#include "data/session.h"
#include "data/settings.h"
#include "ui/frmmain.h"
#include "ui/frmsplash.h"
#include "ui/qtservices.h"
#include "ui/soundplayer.h"
#include "ui/storedseasons.h"
#include "ui/theme.h"

namespace {

using namespace tarvane;

constexpr int kSplashMilliseconds = 2000;
constexpr std::int16_t kMaximised = 2;

// The program's messages as boxes.
class BoxSink : public MessageSink {
  public:
    explicit BoxSink(Dialogs& dialogs) : dialogs_(dialogs) {}
    void Warn(const std::string& title, const std::string& text) override { dialogs_.Warn(text, title); }
    void Inform(const std::string& title, const std::string& text) override { dialogs_.Remind(text, title); }

  private:
    Dialogs& dialogs_;
};

StartResult Start(Session& session, std::unique_ptr<QLockFile>& lock) {
    StartupEnvironment environment;
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    environment.screen = ScreenSize{screen.width(), screen.height()};
    environment.anotherInstanceRuns = [&lock](const DataPaths& paths) {
        lock = std::make_unique<QLockFile>(QString::fromStdString((paths.Data08() / "Tarvane.lock").string()));
        lock->setStaleLockTime(0);
        return !lock->tryLock(0) && lock->error() == QLockFile::LockFailedError;
    };
    return session.StartUp(environment);
}

void RestorePlace(frmMain& menu, const ScreenPlace& place) {
    const QSize room = menu.screen()->availableSize();
    const QSize size = place.W > 0 && place.H > 0 ? QSize(place.W, place.H) : QSize(1024, 768);
    menu.resize(size.boundedTo(room));
    menu.move(menu.screen()->availableGeometry().center() - menu.rect().center());
    if (place.S == kMaximised) menu.setWindowState(Qt::WindowMaximized);
}

void SavePlace(const frmMain& menu, Session& session) {
    ScreenPlace& place = session.Screens().place["Main"];
    place.S = menu.isMaximized() ? kMaximised : std::int16_t{0};
    if (!menu.isMaximized()) {
        place.H = static_cast<std::int16_t>(menu.height());
        place.W = static_cast<std::int16_t>(menu.width());
    }
    try {
        SaveScreenSettings(session.Common(), session.Screens());
    } catch (const std::exception& failure) {
        session.Log().LogRuntimeError("frmMain,SaveScreenSettings", failure);
    }
}

int Run(Session& session, Services services) {
    StoredSeasons seasons(session);
    frmMain menu(seasons, services, OptionsFrom(session));
    menu.SetPicture(QString::fromStdString(MainMenuImageFile(session.Paths(), session.Settings()).string()));
    RestorePlace(menu, session.Screens().place["Main"]);
    frmSplash splash;
    splash.move(menu.screen()->availableGeometry().center() - splash.rect().center());
    splash.show();
    if (session.Settings().MiscSounds && !session.Settings().IntroSound.empty())
        services.sound.Play(SoundFile(session.Paths(), session.Settings().IntroSound));
    QTimer::singleShot(kSplashMilliseconds, &menu, [&] {
        splash.close();
        menu.show();
    });
    QObject::connect(&menu, &frmMain::Left, &menu, [&] {
        SavePlace(menu, session);
        QApplication::quit();
    });
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");  // numbers in our files never follow the user's language
    QApplication::setApplicationName(QStringLiteral("Tarvane PC Baseball"));
    QApplication::setApplicationVersion(QStringLiteral(TARVANE_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);  // a screen is hidden before the next one shows
    ApplyTheme(application);
    QtDialogs dialogs;
    BoxSink messages(dialogs);
    Session session(messages);
    std::unique_ptr<QLockFile> lock;
    if (Start(session, lock) != StartResult::Running) return 1;
    const std::unique_ptr<SoundPlayer> sound = MakeSoundPlayer();
    DesktopBrowser browser;
    const int result = Run(session, {dialogs, *sound, browser});
    session.Exit();
    return result;
}
