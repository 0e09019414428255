#include "engine/dice.h"

#include <cassert>
#include <utility>

namespace tarvane {

namespace {

constexpr std::array<std::uint8_t, 217> MakeRollTable() {
    std::array<std::uint8_t, 217> table{};
    std::size_t raw = 1;
    for (std::size_t row = 0; row < kChartRows; ++row)
        for (int n = 0; n < kCellWeight[row]; ++n) table[raw++] = static_cast<std::uint8_t>(kFirstRoll + row);
    return table;
}
constexpr std::array<std::uint8_t, 217> kRollTable = MakeRollTable();
static_assert(kRollTable[1] == kFirstRoll && kRollTable[216] == kLastRoll);

constexpr std::array<std::uint8_t, 37> MakeErrorColumns() {
    std::array<std::uint8_t, 37> table{};
    for (std::size_t draw = 1; draw <= 36; ++draw)
        table[draw] = draw <= 12 ? 1 : draw <= 23 ? 2 : draw <= 32 ? 3 : draw <= 35 ? 4 : 5;
    return table;
}
constexpr std::array<std::uint8_t, 37> kErrorColumns = MakeErrorColumns();

std::uint8_t Percent(Random& random) {
    return static_cast<std::uint8_t>(random.RandomPercent());
}
std::uint8_t HiddenRoll(Random& random) {
    return kRollTable[static_cast<std::size_t>(random.RandomRoll216())];
}

// The pairs of units dice: the first die of the lowest pair for each sum, and whether the first die counts up or down
// from pair to pair. Six units digits have pairs of equal share; the upper bounds of the raw roll stand beside.
struct UnitsPairs {
    int first, step, pairs;
    std::array<int, 4> upTo;
};
constexpr std::array<UnitsPairs, 10> kUnitsPairs{{{0, 1, 1, {216, 216, 216, 216}},
                                                  {1, -1, 2, {107, 216, 216, 216}},
                                                  {0, 1, 3, {72, 143, 216, 216}},
                                                  {0, 1, 4, {54, 107, 161, 216}},
                                                  {0, 1, 5, {43, 86, 129, 172}},
                                                  {5, -1, 5, {43, 86, 129, 172}},
                                                  {5, -1, 4, {54, 107, 161, 216}},
                                                  {5, -1, 3, {72, 143, 216, 216}},
                                                  {5, -1, 2, {107, 216, 216, 216}},
                                                  {5, 1, 1, {216, 216, 216, 216}}}};

}  // namespace

int ChartRollFromRaw(int rawRoll) {
    assert(rawRoll >= 1 && rawRoll <= 216);
    return kRollTable[static_cast<std::size_t>(rawRoll)];
}

PlayValues DrawPlayValues(Random& random) {
    PlayValues values;
    values.NarrationRoll = Percent(random);
    values.RunnerRoll = Percent(random);
    values.CoverRoll = Percent(random);
    values.FieldingRoll = HiddenRoll(random);
    values.ErrorRoll = HiddenRoll(random);
    values.ErrorColumn = kErrorColumns[static_cast<std::size_t>(random.RandomError36())];
    values.FlyFielderRoll = Percent(random);
    values.ErrorSpotRoll = Percent(random);
    values.SpareRoll = Percent(random);
    values.InfieldRoll = Percent(random);
    values.ErrorKindRoll = HiddenRoll(random);
    return values;
}

std::array<int, 2> ShowDice(int chartRoll, int rawRoll) {
    const int units = chartRoll % 10;
    const UnitsPairs& row = kUnitsPairs[static_cast<std::size_t>(units)];
    int place = 0;
    while (place + 1 < row.pairs && rawRoll > row.upTo[static_cast<std::size_t>(place)]) ++place;
    const int first = row.first + row.step * place;
    return {first, units - first};
}

}  // namespace tarvane
