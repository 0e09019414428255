#include "ratings/chart_audit.h"

#include <string_view>

namespace tarvane {

namespace {

constexpr double kDice = 216;

AuditResult MeaningOf(const ChartCell& cell) {
    const char digit =
        cell.text.find_first_of("123") == std::string::npos ? ' ' : cell.text[cell.text.find_first_of("123")];
    if (cell.color == kGreenWord) {
        if (cell.text == "HR") return AuditResult::HomeRun;
        if (digit == '2') return AuditResult::Double;
        if (digit == '3') return AuditResult::Triple;
        return AuditResult::Single;
    }
    if (cell.color == kBlueWord) return AuditResult::Strikeout;
    if (cell.color == kWhiteWord) return AuditResult::Error;
    if (cell.color == kStoredYellowWord || cell.color == kYellowWord) {
        return cell.text == "H" ? AuditResult::HitBatter : AuditResult::Walk;
    }
    return AuditResult::Out;
}

// The share of the dice below a rating: how often a test for a walk or strikeout passes.
double TestPasses(int rating, bool tested) {
    if (!tested || rating <= 0 || rating >= 40) return 1;
    double weight = 0;
    for (int roll = kFirstRoll; roll < rating; ++roll) weight += CellWeight(roll);
    return weight / kDice;
}

double HitsOn(const AuditRates& batter) {
    return At(batter, AuditResult::Single) + At(batter, AuditResult::Double) + At(batter, AuditResult::Triple) +
           At(batter, AuditResult::HomeRun);
}

}  // namespace

PitchingWeights WeightsOfPitchingChart(const ChartCells& cells) {
    PitchingWeights w;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const ChartCell& cell = cells[i];
        double* weight = &w.swing;
        if (cell.color == kGreenWord) {
            if (cell.text == "D") weight = &w.defence;
            if (cell.text == "1+") weight = &w.hit;
            if (cell.text == "HR") weight = &w.homeRunUp;
            if (cell.text == "(HR)" || cell.text == "(hr)") weight = &w.homeRunDown;
        } else if (cell.color == kRedWord) {
            weight = &w.out;
        } else if (cell.color == kBlueWord) {
            weight = &w.strikeout;
        } else if (cell.color == kWhiteWord) {
            weight = &w.error;
        } else if (cell.text == "X" || cell.text == "WP" || cell.text == "PB") {
            weight = &w.yellowX;
        } else {
            weight = cell.text == "H" ? &w.hitBatter : &w.walk;
        }
        *weight += kCellWeight[i];
    }
    return w;
}

AuditRates WeightsOfBattingChart(const ChartCells& cells) {
    AuditRates weights{};
    for (std::size_t i = 0; i < cells.size(); ++i) At(weights, MeaningOf(cells[i])) += kCellWeight[i];
    return weights;
}

AuditRates MeetingRates(const PitchingWeights& p, const AuditRates& batter, int BBRating, int SORating,
                        const AuditSettings& settings) {
    AuditRates rates{};
    const double walks = p.walk * TestPasses(BBRating, settings.BatterBBSORating);
    const double strikeouts = p.strikeout * TestPasses(SORating, settings.BatterBBSORating);
    const double swings =
        p.swing + (p.defence - settings.autoOutWeight) + (p.walk - walks) + (p.strikeout - strikeouts);

    AddTimes(rates, batter, (swings + p.homeRunUp + p.homeRunDown) / kDice);
    // A home run up makes one of every hit; a home run down makes a single of it.
    const double up = p.homeRunUp / kDice;
    for (const AuditResult hit : {AuditResult::Single, AuditResult::Double, AuditResult::Triple}) {
        At(rates, hit) -= At(batter, hit) * up;
    }
    At(rates, AuditResult::HomeRun) += (HitsOn(batter) - At(batter, AuditResult::HomeRun)) * up;
    const double down = At(batter, AuditResult::HomeRun) * p.homeRunDown / kDice;
    At(rates, AuditResult::HomeRun) -= down;
    At(rates, AuditResult::Single) += down + p.hit;
    At(rates, AuditResult::Walk) += walks;
    At(rates, AuditResult::Strikeout) += strikeouts;
    At(rates, AuditResult::Out) += p.out + settings.autoOutWeight;
    At(rates, AuditResult::Error) += p.error;
    At(rates, AuditResult::HitBatter) += p.hitBatter + p.yellowX * settings.hitOnYellowX;

    double total = 0;  // less than 216 by what the Yellow X chart sends back to the dice
    for (const double rate : rates) total += rate;
    for (double& rate : rates) rate /= total;
    return rates;
}

}  // namespace tarvane
