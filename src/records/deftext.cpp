#include "records/deftext.h"

namespace tarvane {

namespace {

std::string RatingText(int rating) {
    if (rating == 0) return " ";
    return rating > 0 ? '+' + std::to_string(rating) : std::to_string(rating);
}

}  // namespace

std::string PositionsText(const PositionRating* slots, std::size_t count, bool catcherIRating, bool catcherORating,
                          bool useErrorRatings) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        const PositionRating& slot = slots[i];
        if (slot.position == Position::None) continue;
        if (!text.empty()) text += ", ";
        text += std::string(PositionText(slot.position)) + RatingText(slot.rating);
        if (slot.position == Position::C && catcherIRating) text += "(I)";
        if (slot.position == Position::C && catcherORating) text += "(O)";
        if (useErrorRatings) text += slot.errorRating;
    }
    return text;
}

}  // namespace tarvane
