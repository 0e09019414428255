#include <gmock/gmock.h>

#include <QApplication>
#include <clocale>

#include "ui/theme.h"

// All screens run without a display.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    tarvane::ApplyTheme(application);
    return RUN_ALL_TESTS();
}
