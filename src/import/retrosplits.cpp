#include "import/retrosplits.h"

#include "base/rounding.h"
#include "base/text.h"

namespace tarvane {

namespace {

constexpr int kNameColumn = 2, kTeamColumn = 8, kFirstRow = 3, kLastRow = 1000;

struct SplitColumn {
    int SplitLine::*field;
    int vsLeft, vsRight;
};
constexpr SplitColumn kColumns[]{{&SplitLine::AB, 25, 38},      {&SplitLine::H, 26, 39},  {&SplitLine::Doubles, 27, 40},
                                 {&SplitLine::Triples, 28, 41}, {&SplitLine::HR, 29, 42}, {&SplitLine::RBI, 30, 43},
                                 {&SplitLine::BB, 31, 44},      {&SplitLine::SO, 32, 45}, {&SplitLine::HBP, 33, 46},
                                 {&SplitLine::SH, 35, 48},      {&SplitLine::SF, 36, 49}};

std::string CellText(const XlsCell& cell) {
    const auto* text = std::get_if<std::string>(&cell);
    return text == nullptr ? std::string() : *text;
}

// A count; a blank cell, or one that can't be a count, is 0.
int CellCount(const XlsCell& cell) {
    const auto* text = std::get_if<std::string>(&cell);
    const auto* stored = std::get_if<double>(&cell);
    const double number = stored != nullptr ? *stored : text != nullptr ? ParseDouble(*text).value_or(0) : 0;
    return number >= 0 && number <= 32767 ? static_cast<int>(RoundHalfEven(number)) : 0;
}

}  // namespace

RetroSheet::RetroSheet(XlsSheet sheet) : sheet_(std::move(sheet)) {
    const int last = std::min(sheet_.LastRow(), kLastRow);
    for (int row = kFirstRow; row <= last; ++row) {
        const std::string name = CellText(sheet_.At(row, kNameColumn));
        if (!name.empty()) rowsByName_[ToLower(name)].push_back(row);
    }
}

std::optional<RetroLine> RetroSheet::Find(std::string_view playerName, std::string_view teamID) {
    const auto found = rowsByName_.find(ToLower(playerName));
    if (found == rowsByName_.end()) return std::nullopt;
    for (const int row : found->second) {
        if (CellText(sheet_.At(row, kTeamColumn)).find(teamID) == std::string::npos) continue;
        RetroLine line;
        for (const SplitColumn& column : kColumns) {
            line.vsLeft.*column.field = CellCount(sheet_.At(row, column.vsLeft));
            line.vsRight.*column.field = CellCount(sheet_.At(row, column.vsRight));
        }
        return line;
    }
    return std::nullopt;
}

std::unique_ptr<RetroSheet> ReadRetroSplits(const std::filesystem::path& workbook, std::string_view season) {
    const XlsWorkbook book(workbook);
    if (!book.HasSheet(season)) return nullptr;
    return std::make_unique<RetroSheet>(book.ReadSheet(season));
}

}  // namespace tarvane
