#pragma once

#include <vector>

namespace tarvane {

// A mean over replays and its standard error, 0 where one replay alone can't tell it.
struct Estimate {
    double mean = 0, error = 0;
};
Estimate MeanOf(const std::vector<double>& values);

// How far a replayed rate lies from the real one, in units of the noise that dice alone make: the standard deviation
// sqrt(p (1 - p) / trials) of a share of that many trials whose chance is the real rate p. A man who really never did
// it is taken to have done it half a time. 0 without trials.
double NoiseScore(double realCount, double realTrials, double count, double trials);

// Mean and standard deviation of scores. Perfect charts give 0 and 1.
struct Spread {
    double mean = 0, deviation = 0;
};
Spread SpreadOf(const std::vector<double>& scores);

// Root of the mean square.
double RootMeanSquare(const std::vector<double>& values);

}  // namespace tarvane
