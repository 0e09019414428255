#include "parkfences.h"

#include "base/csv.h"
#include "base/text.h"
#include "facttable.h"

namespace tarvane::calibrate {

namespace {

constexpr int kShortest = 240, kLongest = 520;
constexpr std::size_t kName = 0, kPlace = 1, kFrom = 2, kTo = 3, kFirstDistance = 4, kFields = 9;

}  // namespace

ParkFences::ParkFences(const std::filesystem::path& file) {
    const std::string text = ReadWhole(file);
    CsvReader reader(text, file.string(), {',', true});
    std::vector<std::string_view> cells;
    reader.Next(cells);
    if (cells.size() != kFields) reader.Fail("the heading has another number of fields");
    const std::vector<std::string> columns(cells.begin(), cells.end());
    while (reader.Next(cells)) {
        if (cells.size() != kFields) reader.Fail("a line has another number of fields than the heading");
        const auto number = [&](std::size_t at) { return static_cast<int>(ParseInt(cells[at]).value_or(0)); };
        Span span{number(kFrom), number(kTo), {}};
        if (span.from < 1871 || span.to < span.from) reader.Fail("the years are the wrong way round");
        for (std::size_t at = kFirstDistance; at < kFields; ++at) {
            if (cells[at].empty()) continue;
            const int feet = number(at);
            if (feet < kShortest || feet > kLongest) reader.Fail("no park had such a distance: " + std::string(cells[at]));
            span.distances[columns[at]] = feet;
        }
        auto& spans = parks_[{std::string(cells[kName]), std::string(cells[kPlace])}];
        for (const Span& other : spans)
            if (span.from <= other.to && other.from <= span.to) reader.Fail("the park has these years already");
        spans.push_back(std::move(span));
    }
}

const ParkFences::Distances& ParkFences::Of(const std::string& stadium, const std::string& location, int year) const {
    static const Distances unknown;
    const auto park = parks_.find({stadium, location});
    if (park == parks_.end()) return unknown;
    for (const Span& span : park->second)
        if (span.from <= year && year <= span.to) return span.distances;
    return unknown;
}

}  // namespace tarvane::calibrate
