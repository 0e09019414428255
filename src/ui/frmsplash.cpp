#include "ui/frmsplash.h"

#include <QCoreApplication>

#include "ui_frmsplash.h"

namespace tarvane {

frmSplash::frmSplash(QWidget* parent) : QWidget(parent, Qt::SplashScreen), ui_(std::make_unique<Ui::frmSplash>()) {
    ui_->setupUi(this);
    ui_->lblVersion->setText(
        tr("Season replay with charts and dice     Version %1").arg(QCoreApplication::applicationVersion()));
}

frmSplash::~frmSplash() = default;

}  // namespace tarvane
