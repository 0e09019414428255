#include "engine/result.h"

#include <array>

namespace tarvane {

namespace {

constexpr std::array<std::string_view, kResultCount> kResultTexts{
    "",   "1",  "1*", "1+",  "(1)", "(1+)",  "2",      "2*",      "(2)",     "3",          "HR",  "G",        "G*",
    "FC", "DP", "F",  "(F)", "SF",  "(SF)",  "K",      "BB",      "HBP",     "WP",         "PB",  "BK",       "E",
    "SH", "SB", "CS", "CSE", "PK",  "Swing", "SwingK", "SwingHR", "YellowX", "YellowXInj", "Inj", "BuntMiss", "D"};

constexpr std::array<std::string_view, 10> kSheetTexts{"", "P", "B", "BBSO", "PS", "Bt", "S", "M", "X", "XI"};

}  // namespace

std::string_view ResultText(Result result) {
    return kResultTexts[static_cast<std::size_t>(result)];
}

Result ResultFromText(std::string_view text) {
    for (std::size_t i = 1; i < kResultTexts.size(); ++i)
        if (kResultTexts[i] == text) return static_cast<Result>(i);
    return Result::None;
}

std::string_view SheetCodeText(SheetCode sheet) {
    return kSheetTexts[static_cast<std::size_t>(sheet)];
}

SheetCode SheetCodeFromText(std::string_view text) {
    for (std::size_t i = 1; i < kSheetTexts.size(); ++i)
        if (kSheetTexts[i] == text) return static_cast<SheetCode>(i);
    return SheetCode::None;
}

}  // namespace tarvane
