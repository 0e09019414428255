#pragma once

#include <QPixmap>
#include <string>

namespace tarvane {

// A picture of the user's own, made to fit into the room and kept for the next time; null for an empty name and for a
// file that isn't there or isn't a picture, which is nobody's fault.
QPixmap OwnPicture(const std::string& file, QSize room);

}  // namespace tarvane
