#include "reports/table.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace tarvane {

namespace {

double NumberOf(const Value& cell) {
    if (const auto* whole = std::get_if<std::int64_t>(&cell)) return static_cast<double>(*whole);
    const auto* number = std::get_if<double>(&cell);
    return number ? *number : 0;
}

// A quotient that is exactly a half may lie a hair below it.
std::string Decimals(double value, int places) {
    constexpr double kHair = 1e-9;
    const double scale = std::pow(10.0, places);
    return fmt::format("{:.{}f}", std::floor(std::abs(value) * scale + 0.5 + kHair) / scale * (value < 0 ? -1 : 1),
                       places);
}

std::string RateText(double value) {
    std::string text = Decimals(value, 3);
    const std::size_t zero = text.find('0');
    if (zero == text.find_first_not_of('-') && text[zero + 1] == '.') text.erase(zero, 1);
    return text;
}

std::string InningsText(std::int64_t outs) {
    return outs % 3 == 0 ? fmt::format("{}", outs / 3) : fmt::format("{}.{}", outs / 3, outs % 3);
}

// The value without any dress, for CSV and JSON.
std::string PlainText(const Value& cell) {
    if (const auto* text = std::get_if<std::string>(&cell)) return *text;
    if (const auto* whole = std::get_if<std::int64_t>(&cell)) return fmt::format("{}", *whole);
    if (const auto* number = std::get_if<double>(&cell)) return FormatDouble(*number);
    return {};
}

std::string Padded(const std::string& text, std::size_t width, bool left) {
    const std::size_t length = Utf8Length(text);
    const std::string blanks(width > length ? width - length : 0, ' ');
    return left ? text + blanks : blanks + text;
}

std::string Line(const ReportTable& table, const std::vector<std::string>& cells,
                 const std::vector<std::size_t>& widths) {
    std::string line;
    for (std::size_t c = 0; c < cells.size(); ++c) {
        if (c > 0) line += "  ";
        line += Padded(cells[c], widths[c], table.columns[c].format == CellFormat::Text);
    }
    return line;
}

// The table's lines, title first, all of one width.
std::vector<std::string> TextBlock(const ReportTable& table) {
    std::vector<std::vector<std::string>> cells;
    const bool headed = std::any_of(table.columns.begin(), table.columns.end(),
                                    [](const ReportColumn& column) { return !column.title.empty(); });
    if (headed) cells.emplace_back();
    for (const ReportColumn& column : table.columns)
        if (headed) cells[0].push_back(column.title);
    for (const auto& row : table.rows) {
        std::vector<std::string>& line = cells.emplace_back();
        for (std::size_t c = 0; c < row.size(); ++c) line.push_back(FieldText(row[c], table.columns[c].format));
    }
    std::vector<std::size_t> widths(table.columns.size(), 0);
    for (const auto& line : cells)
        for (std::size_t c = 0; c < line.size(); ++c) widths[c] = std::max(widths[c], Utf8Length(line[c]));
    std::vector<std::string> lines{table.title};
    for (const auto& line : cells) lines.push_back(Line(table, line, widths));
    std::size_t width = 0;
    for (const std::string& line : lines) width = std::max(width, Utf8Length(line));
    for (std::string& line : lines) line = Padded(line, width, true);
    return lines;
}

std::string RenderText(const std::vector<ReportTable>& tables, std::size_t abreast) {
    std::string text;
    for (std::size_t first = 0; first < tables.size(); first += abreast) {
        std::vector<std::vector<std::string>> blocks;
        std::size_t height = 0;
        for (std::size_t i = first; i < std::min(first + abreast, tables.size()); ++i) {
            blocks.push_back(TextBlock(tables[i]));
            height = std::max(height, blocks.back().size());
        }
        for (std::size_t row = 0; row < height; ++row) {
            std::string line;
            for (const auto& block : blocks) {
                if (&block != &blocks.front()) line += "    ";
                line += row < block.size() ? block[row] : std::string(Utf8Length(block.front()), ' ');
            }
            text += fmt::format("{}\n", TrimRight(line));
        }
        text += "\n";
    }
    return text;
}

std::string CsvCell(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

std::string CsvHead(const ReportTable& table, bool titled) {
    std::string head = titled ? "Table" : "";
    for (const ReportColumn& column : table.columns) head += (head.empty() ? "" : ",") + CsvCell(column.key);
    return head + "\n";
}

std::string RenderCsv(const std::vector<ReportTable>& tables) {
    const bool titled = tables.size() > 1;
    std::string text, lastHead;
    for (const ReportTable& table : tables) {
        const std::string head = CsvHead(table, titled);
        if (head != lastHead) text += (lastHead.empty() ? "" : "\n") + head;
        lastHead = head;
        for (const auto& row : table.rows) {
            std::string line = titled ? CsvCell(table.title) + "," : "";
            for (std::size_t c = 0; c < row.size(); ++c) line += (c > 0 ? "," : "") + CsvCell(PlainText(row[c]));
            text += line + "\n";
        }
    }
    return text;
}

std::string JsonText(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            quoted += {'\\', c};
        else if (static_cast<unsigned char>(c) < 0x20)
            quoted += fmt::format("\\u{:04x}", static_cast<unsigned>(c));
        else
            quoted += c;
    }
    return quoted + "\"";
}

std::string JsonCell(const Value& cell) {
    if (std::holds_alternative<std::monostate>(cell)) return "null";
    const auto* text = std::get_if<std::string>(&cell);
    return text ? JsonText(*text) : PlainText(cell);
}

std::string RenderJson(const std::vector<ReportTable>& tables) {
    std::string text = "[";
    for (std::size_t t = 0; t < tables.size(); ++t) {
        const ReportTable& table = tables[t];
        text += fmt::format("{}\n {{\"title\": {}, \"rows\": [", t > 0 ? "," : "", JsonText(table.title));
        for (std::size_t r = 0; r < table.rows.size(); ++r) {
            text += r > 0 ? ",\n  {" : "\n  {";
            for (std::size_t c = 0; c < table.columns.size(); ++c)
                text += fmt::format("{}{}: {}", c > 0 ? ", " : "", JsonText(table.columns[c].key),
                                    JsonCell(table.rows[r][c]));
            text += "}";
        }
        text += "]}";
    }
    return text + "\n]\n";
}

}  // namespace

std::string FieldText(const Value& cell, CellFormat format) {
    if (std::holds_alternative<std::monostate>(cell)) return {};
    switch (format) {
        case CellFormat::Rate: return RateText(NumberOf(cell));
        case CellFormat::Fixed1: return Decimals(NumberOf(cell), 1);
        case CellFormat::Fixed2: return Decimals(NumberOf(cell), 2);
        case CellFormat::Fixed3: return Decimals(NumberOf(cell), 3);
        case CellFormat::Fixed4: return Decimals(NumberOf(cell), 4);
        case CellFormat::Percent: return fmt::format("{:+.1f} %", NumberOf(cell) * 100);
        case CellFormat::Innings: return InningsText(static_cast<std::int64_t>(NumberOf(cell)));
        default: return PlainText(cell);
    }
}

std::string RenderTables(const std::vector<ReportTable>& tables, ReportForm form, std::size_t abreast) {
    switch (form) {
        case ReportForm::Csv: return RenderCsv(tables);
        case ReportForm::Json: return RenderJson(tables);
        default: return RenderText(tables, std::max<std::size_t>(abreast, 1));
    }
}

}  // namespace tarvane
