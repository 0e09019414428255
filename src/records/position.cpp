#include "records/position.h"

#include <array>

namespace tarvane {

namespace {
constexpr std::array<std::string_view, kPositionCount> kTexts{"  ", "P ", "C ", "1B", "2B", "3B", "SS",
                                                              "LF", "CF", "RF", "DH", "PH", "PR", "Inj"};
}

std::string_view PositionText(Position position) { return kTexts[static_cast<std::size_t>(position)]; }

Position PositionFromText(std::string_view text) {
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    if (text == "P") return Position::P;
    if (text == "C") return Position::C;
    for (std::size_t i = 3; i < kTexts.size(); ++i)
        if (text == kTexts[i]) return static_cast<Position>(i);
    return Position::None;
}

}  // namespace tarvane
