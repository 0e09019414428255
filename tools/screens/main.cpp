// tarvane-screens OUTDIR: renders each screen to PNG files at 1024x768 and 1920x1080, without a display.

#include <fmt/format.h>

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <clocale>
#include <functional>

#include "ui/demo.h"
#include "ui/frmgame.h"
#include "ui/frmmain.h"
#include "ui/frmpreexgame.h"
#include "ui/frmseasons.h"
#include "ui/frmsplash.h"
#include "ui/theme.h"

namespace {

using namespace tarvane;

class Camera {
  public:
    explicit Camera(QString folder) : folder_(std::move(folder)) {}

    // A picture of the widget in both sizes; false once one could not be written.
    void Take(QWidget& screen, const QString& name) {
        for (const QSize& size : {QSize(1024, 768), QSize(1920, 1080)}) {
            screen.resize(size);
            screen.show();
            QApplication::processEvents();
            const QString file =
                QStringLiteral("%1/%2-%3x%4.png").arg(folder_, name).arg(size.width()).arg(size.height());
            if (!screen.grab().save(file)) {
                fmt::print(stderr, "{} could not be written. Is there room, and may you write there?\n",
                           file.toStdString());
                failed = true;
                continue;
            }
            fmt::print("{}\n", file.toStdString());
        }
        screen.hide();
    }
    bool failed = false;

  private:
    QString folder_;
};

void Press(QWidget& screen, const char* name, int times) {
    auto* button = screen.findChild<QPushButton*>(QString::fromLatin1(name));
    for (int i = 0; i < times && button != nullptr && button->isEnabled(); ++i) button->click();
}

void TakeGame(Camera& camera, demo::DemoSeasons& seasons, demo::Outside& outside) {
    GameOptions options;
    options.ManualDiceRolls = true;
    frmGame game(seasons.Setup(), options, 1975, outside.Get());
    camera.Take(game, QStringLiteral("frmGame-start"));
    Press(game, "cmdPlay", 60);
    camera.Take(game, QStringLiteral("frmGame-play"));
    while (game.Session().State().sheet != SheetCode::B && !game.Session().Over()) Press(game, "cmdPlay", 1);
    camera.Take(game, QStringLiteral("frmGame-batter"));
    Press(game, "chkcurrPrev", 1);
    camera.Take(game, QStringLiteral("frmGame-previous"));
    Press(game, "chkcurrPrev", 1);
    Press(game, "cmdPlay", 2000);
    camera.Take(game, QStringLiteral("frmGame-over"));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        fmt::print(stderr, "usage: tarvane-screens OUTDIR\n");
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
    demo::Outside outside;
    demo::DemoSeasons seasons;
    frmMain menu(seasons, outside.Get(), {});
    camera.Take(menu, QStringLiteral("frmMain"));
    frmSplash splash;
    camera.Take(splash, QStringLiteral("frmSplash"));
    frmSeasons list(seasons, outside.Get());
    camera.Take(list, QStringLiteral("frmSeasons"));
    frmPreExGame exhibition(seasons, outside.Get(), {});
    camera.Take(exhibition, QStringLiteral("frmPreExGame"));
    TakeGame(camera, seasons, outside);
    return camera.failed ? 1 : 0;
}
