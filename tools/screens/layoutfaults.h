#pragma once

#include <QStringList>

class QWidget;

namespace tarvane {

// What is wrong with a screen as it stands, a line each: text that doesn't fit its control, controls that lie over
// each other, controls that neither Tab nor an ALT key reaches, ALT keys that two controls share. Empty for a sound one.
QStringList LayoutFaults(const QWidget& screen);

}  // namespace tarvane
