#include "base/assignment.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>
#include <set>

#include "base/random.h"

namespace tarvane {
namespace {

using Values = std::vector<std::vector<double>>;

double SumOf(const Values& value, const std::vector<int>& columns) {
    double sum = 0;
    for (std::size_t row = 0; row < value.size(); ++row) sum += value[row][static_cast<std::size_t>(columns[row])];
    return sum;
}

// Every order of the columns, the first as many as there are rows.
double BestByTrying(const Values& value) {
    std::vector<int> order(value.front().size());
    std::iota(order.begin(), order.end(), 0);
    double best = SumOf(value, order);
    while (std::next_permutation(order.begin(), order.end())) best = std::max(best, SumOf(value, order));
    return best;
}

TEST(BestAssignment, IsAsGoodAsTryingThemAll) {
    Random random(5);
    for (int trial = 0; trial < 300; ++trial) {
        const std::size_t rows = 1 + random.Below(5), columns = rows + random.Below(3);
        Values value(rows, std::vector<double>(columns));
        // Few different values, so that there are ties; some that must never be taken.
        for (auto& row : value)
            for (double& v : row) v = random.Below(8) == 0 ? -1e6 : static_cast<double>(random.Below(7)) - 3;
        const std::vector<int> found = BestAssignment(value);
        ASSERT_EQ(std::set<int>(found.begin(), found.end()).size(), rows);
        EXPECT_DOUBLE_EQ(SumOf(value, found), BestByTrying(value)) << "trial " << trial;
    }
    EXPECT_TRUE(BestAssignment({}).empty());
}

}  // namespace
}  // namespace tarvane
