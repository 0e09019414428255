#include "ui/restlists.h"

#include <algorithm>

namespace tarvane {

namespace {
constexpr int kLongestOuts = 45;  // "15.0"
constexpr int kAnyOuts = 999;     // "15+"
constexpr int kShortestLimit = 3;
constexpr int kMostDays = 15;

int PlaceOf(int outs) {
    return outs < 0 ? 0 : std::min(outs, kLongestOuts + 1) + 1;
}
int OutsAt(int place) {
    return place == 0 ? -1 : place - 1 > kLongestOuts ? kAnyOuts : place - 1;
}
}  // namespace

QStringList InningTexts(int fromOuts) {
    QStringList texts;
    for (int outs = fromOuts; outs <= kLongestOuts; ++outs)
        texts.append(outs == 0 ? QStringLiteral("0") : QStringLiteral("%1.%2").arg(outs / 3).arg(outs % 3));
    texts.append(QStringLiteral("15+"));
    return texts;
}

QStringList RestInningTexts() {
    return QStringList(QString()) + InningTexts(0);
}

QStringList RestDayTexts() {
    QStringList texts{QString()};
    for (int days = 0; days <= kMostDays; ++days) texts.append(QString::number(days));
    return texts;
}

RestChoice ChoiceOf(const PitcherRestRow& row) {
    if (row.IPOutsFrom < 0) return {};
    return {PlaceOf(row.IPOutsFrom), PlaceOf(row.IPOutsTo), std::clamp<int>(row.RestDays, -1, kMostDays) + 1};
}

PitcherRestRow RowOf(const RestChoice& choice, char pitcherType) {
    const auto small = [](int value) { return static_cast<std::int16_t>(value); };
    if (choice.from == 0 && choice.to == 0) return {pitcherType, -1, -1, -1};
    return {pitcherType, small(OutsAt(choice.from)), small(OutsAt(choice.to)), small(choice.days - 1)};
}

std::optional<RestFault> FindRestFault(const std::array<RestChoice, 5>& choices) {
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const RestChoice& row = choices[i];
        if (row.from > 0 && row.to > 0 && row.to < row.from)
            return RestFault{i, RestList::To, "Invalid IP Range - Must be equal or greater than From Setting."};
        if ((row.from > 0) != (row.to > 0))
            return RestFault{i, row.from > 0 ? RestList::To : RestList::From,
                             "Invalid IP Range - Both To and From must be set."};
        if (row.from == 0) continue;
        if (i > 0 && (choices[i - 1].to == 0 || row.from != choices[i - 1].to + 1))
            return RestFault{i, RestList::From,
                             "Invalid IP Range - Must be 1/3 Inning greater than previous To Setting."};
        if (row.days == 0) return RestFault{i, RestList::Days, "Please specify number of Days Rest."};
    }
    return std::nullopt;
}

std::array<PitcherRestRow, 10> DefaultRest() {
    return {{{'R', 0, 5, 0},
             {'R', 6, 11, 1},
             {'R', 12, 15, 2},
             {'R', -1, -1, -1},
             {'R', -1, -1, -1},
             {'S', 0, 5, 1},
             {'S', 6, 11, 2},
             {'S', 12, 35, 3},
             {'S', 36, kAnyOuts, 4},
             {'S', -1, -1, -1}}};
}

int PlaceOfLimit(std::int16_t outs) {
    return std::clamp(static_cast<int>(outs), kShortestLimit, kLongestOuts + 1) - kShortestLimit;
}

std::int16_t LimitAt(int place) {
    const int outs = place + kShortestLimit;
    return static_cast<std::int16_t>(outs > kLongestOuts ? kAnyOuts : outs);
}

}  // namespace tarvane
