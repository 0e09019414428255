#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "laboratory.h"
#include "chartlayout.h"

namespace tarvane::calibrate {

// What calibration changes of an era, as shares of the facts: factors of what the generators measure players against,
// and what the year chart is to add.
struct Adjustment {
    double AvgHBFP = 1;   // above 1: pitchers count as better, and hits fall
    double AvgSOBFP = 1;  // above 1: fewer strikeouts
    double AvgHRBFP = 1;  // below 1: more pitchers turn hits into home runs, each by his own record
    double BBAvg = 1;     // above 1: fewer walks
    double HBPRate = 1;   // above 1: fewer hit batsmen
    double RBIAvg = 1;    // above 1: fewer sacrifice flies and outs that move runners, and so fewer runs
    double Errors = 1;    // of all ...ErrorsRate; above 1: fewer errors
    ChartWishes chart;
    std::optional<ChartCells> cells;  // the chart that was measured; none for an era between calibrated ones
};

// By EraId, the eras that were calibrated.
using Adjustments = std::map<std::int32_t, Adjustment>;

// The file of adjustments, one line an era. One that isn't there is empty.
Adjustments ReadAdjustments(const std::filesystem::path& file);
void WriteAdjustments(const std::filesystem::path& file, const Adjustments& adjustments);

// The adjustment of any era, calibrated or not: a league's lies between those of its calibrated neighbours in time;
// that of all leagues together, of a third league and of a span is the mean of the two old leagues'.
Adjustment AdjustmentFor(std::int32_t eraID, int year, int lastYear, const Adjustments& adjustments);

// The rates of one era as the record has them.
SheetRates SheetRatesOf(const FactTable& eras, std::int32_t eraID);

// The rates of all eras as the record has them.
class EraTable {
  public:
    explicit EraTable(const std::filesystem::path& file) : facts_(file) {}

    double Fact(std::int32_t eraID, const std::string& column) const { return facts_.Number(eraID, column); }
    SheetRates RatesOf(std::int32_t eraID) const { return SheetRatesOf(facts_, eraID); }
    // The columns that an adjustment changes.
    ChangedRow Adjusted(std::int32_t eraID, const Adjustment& adjustment) const;
    // The seed table: every era with its adjustment, and all comment lines of the facts.
    void WriteSeed(const std::filesystem::path& file, const Adjustments& adjustments) const;

  private:
    FactTable facts_;
};

}  // namespace tarvane::calibrate
