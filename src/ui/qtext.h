#pragma once

#include <QString>
#include <string>

namespace tarvane {

// The program's texts are UTF-8; Qt's are not.
inline QString QText(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace tarvane
