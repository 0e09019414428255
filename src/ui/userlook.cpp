#include "ui/userlook.h"

#include <QWidget>

namespace tarvane {

QColor ColorOf(std::int32_t stored) {
    return QColor(stored & 0xFF, (stored >> 8) & 0xFF, (stored >> 16) & 0xFF);
}

std::int32_t StoredColor(const QColor& color) {
    return color.red() | (color.green() << 8) | (color.blue() << 16);
}

std::optional<UserColors> ColorsOf(std::int32_t back, std::int32_t fore) {
    if (back == 0 && fore == 0) return std::nullopt;
    return UserColors{ColorOf(back), ColorOf(fore)};
}

void BeginPair(std::int32_t& back, std::int32_t& fore, const UserColors& house) {
    if (back != 0 || fore != 0) return;
    back = StoredColor(house.back);
    fore = StoredColor(house.fore);
}

UserLook LookFrom(const GameSettings& settings) {
    static const GameSettings house;
    UserLook look;
    look.scoreBoard = ColorsOf(settings.ScoreBoardBackColor, settings.ScoreBoardForeColor);
    look.playByPlay = ColorsOf(settings.PlayByPlayBackColor, settings.PlayByPlayForeColor);
    look.reports = ColorsOf(settings.ReportGridsBackColor, settings.ReportGridsForeColor);
    look.mainGrids = ColorsOf(settings.MainGridsBackColor, settings.MainGridsForeColor);
    const auto scale = [](int size, int own) { return size <= 0 ? 1.0 : static_cast<double>(size) / own; };
    look.scoreBoardScale = scale(settings.ScoreBoardFontSize, house.ScoreBoardFontSize);
    look.playByPlayScale = scale(settings.PlayByPlayFontSize, house.PlayByPlayFontSize);
    look.reportsScale = scale(settings.ReportsFontSize, house.ReportsFontSize);
    return look;
}

void WearColors(QWidget& widget, const std::optional<UserColors>& colors) {
    widget.setStyleSheet(
        colors ? QStringLiteral("background: %1; color: %2;").arg(colors->back.name(), colors->fore.name())
               : QString());
}

}  // namespace tarvane
