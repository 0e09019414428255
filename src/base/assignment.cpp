#include "base/assignment.h"

#include <limits>

namespace tarvane {

namespace {

// Rows and columns count from 1 here; 0 stands for the row being placed and for nobody.
struct Matching {
    explicit Matching(const std::vector<std::vector<double>>& values)
        : value(values), rows(values.size()), columns(rows == 0 ? 0 : values.front().size()) {}

    const std::vector<std::vector<double>>& value;
    std::size_t rows, columns;
    std::vector<double> ofRow = std::vector<double>(rows + 1), ofColumn = std::vector<double>(columns + 1);
    std::vector<std::size_t> rowAt = std::vector<std::size_t>(columns + 1);

    double Slack(std::size_t row, std::size_t column) const {
        return -value[row - 1][column - 1] - ofRow[row] - ofColumn[column];
    }
    void Place(std::size_t row);
};

// Finds the cheapest way to seat one more row, others moving over.
void Matching::Place(std::size_t row) {
    constexpr double kFar = std::numeric_limits<double>::infinity();
    std::vector<double> least(columns + 1, kFar);
    std::vector<std::size_t> from(columns + 1);
    std::vector<bool> seen(columns + 1);
    rowAt[0] = row;
    std::size_t at = 0;
    do {
        seen[at] = true;
        double step = kFar;
        std::size_t next = 0;
        for (std::size_t j = 1; j <= columns; ++j) {
            if (seen[j]) continue;
            if (const double slack = Slack(rowAt[at], j); slack < least[j]) least[j] = slack, from[j] = at;
            if (least[j] < step) step = least[j], next = j;
        }
        for (std::size_t j = 0; j <= columns; ++j) {
            if (seen[j])
                ofRow[rowAt[j]] += step, ofColumn[j] -= step;
            else
                least[j] -= step;
        }
        at = next;
    } while (rowAt[at] != 0);
    for (; at != 0; at = from[at]) rowAt[at] = rowAt[from[at]];
}

}  // namespace

std::vector<int> BestAssignment(const std::vector<std::vector<double>>& value) {
    Matching matching(value);
    for (std::size_t row = 1; row <= matching.rows; ++row) matching.Place(row);
    std::vector<int> columnOf(matching.rows, -1);
    for (std::size_t j = 1; j <= matching.columns; ++j)
        if (matching.rowAt[j] != 0) columnOf[matching.rowAt[j] - 1] = static_cast<int>(j) - 1;
    return columnOf;
}

}  // namespace tarvane
