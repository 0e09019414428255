#pragma once

#include <QColor>
#include <optional>

#include "records/settings.h"

class QWidget;

namespace tarvane {

// A colour as the preferences hold it, red in the low byte, and back.
QColor ColorOf(std::int32_t stored);
std::int32_t StoredColor(const QColor& color);

// The user's own ground and text; none while both are 0, which means the colours of the house.
struct UserColors {
    QColor back, fore;
};
std::optional<UserColors> ColorsOf(std::int32_t back, std::int32_t fore);

// A colour for one of a pair that has none of its own yet: the other one keeps what is seen.
void BeginPair(std::int32_t& back, std::int32_t& fore, const UserColors& house);

// What the user changed of the look of the screens.
struct UserLook {
    std::optional<UserColors> scoreBoard, playByPlay, reports, mainGrids;
    double scoreBoardScale = 1, playByPlayScale = 1, reportsScale = 1;  // of the house's own letters
};
UserLook LookFrom(const GameSettings& settings);

// Gives a widget the colours, or its own again.
void WearColors(QWidget& widget, const std::optional<UserColors>& colors);

}  // namespace tarvane
