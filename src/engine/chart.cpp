#include "engine/chart.h"

#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvane {

namespace {

constexpr std::string_view kErrorLetters = "ABCDEFGHJKLMNPRSTUVWXYZ";
constexpr int kUnratedErrorRow = 18;  // V, the average fielder

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

struct NamedText {
    std::string_view text;
    CellText cell;
};

// Words of a chart that are no result codes. A word that is both (K, D) is listed here: the class tells the sheets
// apart, the result stands in the cell as well.
constexpr NamedText kNamedTexts[]{{"D", CellText::D},
                                  {"K", CellText::K},
                                  {"H", CellText::H},
                                  {"X", CellText::X},
                                  {"(hr)", CellText::HRReduced},
                                  {"(HR)", CellText::HRReduced},
                                  {"(3)", CellText::TripleReduced},
                                  {"2K", CellText::TwoK},
                                  {"*", CellText::Star},
                                  {"I", CellText::I},
                                  {"IC", CellText::InsideCorner},
                                  {"IM", CellText::InfieldMiddle},
                                  {"OF", CellText::OutfieldPull},
                                  {"tbd", CellText::Tbd}};

// Codes past the steals are the engine's own words and name nothing on a chart.
Result ChartResult(std::string_view text) {
    if (text == "H") return Result::HBP;
    const Result result = ResultFromText(text);
    return result <= Result::PK || result == Result::Defence ? result : Result::None;
}

CellText ClassOf(std::string_view exact, const Cell& cell, bool isNumber) {
    if (Trimmed(exact).empty()) return CellText::Blank;
    for (const NamedText& named : kNamedTexts)
        if (named.text == exact) return named.cell;
    if (cell.result != Result::None) return CellText::Result;
    if (cell.position != Position::None) return CellText::PositionName;
    return isNumber ? CellText::Number : CellText::Other;
}

template <std::size_t N>
void CompileRows(const std::vector<GameChartRow>& rows, std::array<Chart, N>& charts, const char* table) {
    if (rows.size() > N) throw std::length_error(std::string("more rows than the chart holds in ") + table);
    const Cell blank{CellText::Blank, CellColor::White, Result::None, Position::None, 0};
    for (Chart& chart : charts) chart.fill(blank);
    for (std::size_t i = 0; i < rows.size(); ++i) charts[i] = CompileChart(rows[i].cell);
}

template <std::size_t N>
void TakeChances(const std::vector<GameChartRow>& rows, std::array<double, N>& chances) {
    chances.fill(0);
    for (std::size_t i = 0; i < rows.size() && i < N; ++i) chances[i] = rows[i].SuccessChance;
}

}  // namespace

CellColor CellColorFromWord(std::int32_t word) {
    switch (word) {
        case kGreenWord: return CellColor::Green;
        case kRedWord: return CellColor::Red;
        case kBlueWord: return CellColor::Blue;
        case kYellowWord:
        case kStoredYellowWord: return CellColor::Yellow;
        case kWhiteWord: return CellColor::White;
        default: return CellColor::Other;
    }
}

std::int32_t ColorWord(CellColor color) {
    switch (color) {
        case CellColor::Green: return kGreenWord;
        case CellColor::Red: return kRedWord;
        case CellColor::Blue: return kBlueWord;
        case CellColor::Yellow: return kStoredYellowWord;
        case CellColor::White:
        case CellColor::Other: break;
    }
    return kWhiteWord;
}

Cell CompileCell(const ChartCell& stored) {
    Cell cell;
    cell.color = CellColorFromWord(stored.color);
    cell.result = ChartResult(stored.text);
    cell.position = PositionFromText(stored.text);
    const std::string_view digits = Trimmed(stored.text);
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), cell.number);
    const bool isNumber = parsed.ec == std::errc() && parsed.ptr == digits.data() + digits.size();
    if (!isNumber) cell.number = 0;
    cell.text = ClassOf(stored.text, cell, isNumber);
    return cell;
}

Chart CompileChart(const ChartCells& cells) {
    Chart chart;
    for (std::size_t i = 0; i < kChartRows; ++i) chart[i] = CompileCell(cells[i]);
    return chart;
}

CompiledGameCharts CompileGameCharts(const GameCharts& charts) {
    CompiledGameCharts compiled;
    CompileRows(charts.MgrDec, compiled.MgrDec, "KorvMgrDecChart");
    CompileRows(charts.Bunt, compiled.Bunt, "KorvBuntChart");
    CompileRows(charts.StolenBase, compiled.StolenBase, "KorvStolenBaseChart");
    CompileRows(charts.Fielding, compiled.Fielding, "KorvFieldingDetermination");
    CompileRows(charts.YellowXInjuries, compiled.YellowXInjuries, "KorvYellowXChartInjuries");
    std::array<Chart, 1> basic{};
    CompileRows(charts.YellowXBasic, basic, "KorvYellowXChartBasic");
    compiled.YellowXBasic = basic[0];
    TakeChances(charts.MgrDec, compiled.MgrDecChance);
    TakeChances(charts.Bunt, compiled.BuntChance);
    TakeChances(charts.StolenBase, compiled.StolenBaseChance);
    if (charts.ErrorRating.size() > compiled.ErrorStands.size())
        throw std::length_error("more rows than the chart holds in KorvErrorRating");
    for (auto& row : compiled.ErrorStands) row.fill(true);
    for (std::size_t row = 0; row < charts.ErrorRating.size(); ++row)
        for (std::size_t column = 0; column < 5; ++column)
            compiled.ErrorStands[row][column] =
                CellColorFromWord(charts.ErrorRating[row].cell[column].color) != CellColor::Green;
    return compiled;
}

int ErrorRatingRowOf(char letter) {
    const std::size_t place = kErrorLetters.find(letter);
    return place == std::string_view::npos ? kUnratedErrorRow : static_cast<int>(place);
}

}  // namespace tarvane
