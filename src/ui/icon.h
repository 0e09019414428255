#pragma once

#include <QIcon>

namespace tarvane {

// The program's mark: a ball on the green.
QIcon HouseIcon();

}  // namespace tarvane
