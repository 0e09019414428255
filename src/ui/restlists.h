#pragma once

#include <QStringList>
#include <array>
#include <optional>
#include <string>

#include "records/rules.h"

namespace tarvane {

// The lists of innings and days on the rules screen. An inning value reads as whole innings, a point and thirds; the
// place in a list is a count of outs.
QStringList InningTexts(int fromOuts);  // up to "15.0", then "15+"

// A bracket as its three lists hold it: places, 0 for empty.
struct RestChoice {
    int from = 0, to = 0, days = 0;
};
QStringList RestInningTexts();  // empty, "0", "0.1", ... "15+"
QStringList RestDayTexts();     // empty, "0", "1", ...

RestChoice ChoiceOf(const PitcherRestRow& row);
// A row whose lists are empty has no effect: -1 in all three.
PitcherRestRow RowOf(const RestChoice& choice, char pitcherType);

// What is wrong with the five brackets of a role, from the first to the last, and in which of them.
enum class RestList { From, To, Days };
struct RestFault {
    std::size_t row = 0;
    RestList list = RestList::From;  // the one to mend
    std::string text;
};
std::optional<RestFault> FindRestFault(const std::array<RestChoice, 5>& choices);

// The rest that most leagues play by: the ten rows, relievers first.
std::array<PitcherRestRow, 10> DefaultRest();
inline constexpr std::int16_t kDefaultRelieverMaxIPOuts = 15;

// The place of a reliever's limit in its list, which starts at 3 outs, and back; 999 is "15+".
int PlaceOfLimit(std::int16_t outs);
std::int16_t LimitAt(int place);

}  // namespace tarvane
