#include "accuracy/noise.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tarvane {

namespace {

double Average(const std::vector<double>& values) {
    if (values.empty()) return 0;
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

// Of the single values, from their own mean.
double Deviation(const std::vector<double>& values, double mean) {
    if (values.size() < 2) return 0;
    double squares = 0;
    for (const double value : values) squares += (value - mean) * (value - mean);
    return std::sqrt(squares / static_cast<double>(values.size() - 1));
}

}  // namespace

Estimate MeanOf(const std::vector<double>& values) {
    const double mean = Average(values);
    return {mean, values.empty() ? 0 : Deviation(values, mean) / std::sqrt(static_cast<double>(values.size()))};
}

double NoiseScore(double realCount, double realTrials, double count, double trials) {
    if (realTrials <= 0 || trials <= 0) return 0;
    const double real = realCount / realTrials;
    const double chance = std::clamp(realCount, 0.5, std::max(realTrials - 0.5, 0.5)) / realTrials;
    return (count / trials - real) / std::sqrt(chance * (1 - chance) / trials);
}

Spread SpreadOf(const std::vector<double>& scores) {
    const double mean = Average(scores);
    return {mean, Deviation(scores, mean)};
}

double RootMeanSquare(const std::vector<double>& values) {
    double squares = 0;
    for (const double value : values) squares += value * value;
    return values.empty() ? 0 : std::sqrt(squares / static_cast<double>(values.size()));
}

}  // namespace tarvane
