#include "documents/page.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/text.h"

namespace tarvane {

namespace {

constexpr int kLeastColumn = 4;

constexpr const char* kStyle = R"(
body { font: 15px/1.35 Georgia, "Times New Roman", serif; color: #26251f; background: #fbf8ec; margin: 2em auto;
  max-width: 62em; padding: 0 1em; }
h1 { font-size: 1.5em; margin: 0; }
h2 { font-size: 1.15em; margin: 1.6em 0 .3em; }
h2 img { height: 1.6em; vertical-align: middle; }
.place, .elapsed { color: #5f594b; margin: .2em 0 1.2em; }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; }
th, td { padding: .12em .45em; text-align: right; white-space: nowrap; }
th:first-child, td:first-child { text-align: left; padding-left: 0; white-space: pre; }
thead th { border-bottom: 1px solid #8a3d1e; font-weight: bold; }
tbody tr:nth-child(even) { background: #f3ecd6; }
tfoot td { border-top: 1px solid #8a3d1e; font-weight: bold; }
.batting td:nth-child(2), .batting th:nth-child(2) { text-align: left; }
.pitching { margin-top: .8em; }
.sheet td:nth-child(n+3) { text-align: center; border-left: 1px solid #d8cdae; min-width: 2.2em; }
.note { margin: .1em 0; }
@media print { body { background: none; margin: 0; max-width: none; font-size: 10pt; }
  section { break-inside: avoid; } tbody tr:nth-child(even) { background: none; } }
)";

std::string Row(const std::vector<std::string>& cells, std::string_view tag) {
    std::string row = "<tr>";
    for (const std::string& cell : cells) row += fmt::format("<{0}>{1}</{0}>", tag, EscapeHtml(cell));
    return row + "</tr>\n";
}

}  // namespace

int FirstColumnWidth(const DocumentTable& table) {
    int width = table.heads.empty() ? 0 : TextWidth(table.heads.front());
    for (const auto& row : table.rows) width = std::max(width, TextWidth(row.front()));
    return width;
}

std::string TableText(const DocumentTable& table, int firstWidth) {
    std::vector<int> widths(table.heads.size(), kLeastColumn);
    widths[0] = std::max(firstWidth, FirstColumnWidth(table));
    for (std::size_t i = 1; i < widths.size(); ++i) {
        widths[i] = std::max(widths[i], TextWidth(table.heads[i]) + 1);
        for (const auto& row : table.rows) widths[i] = std::max(widths[i], TextWidth(row[i]) + 1);
    }
    const auto line = [&](const std::vector<std::string>& cells) {
        std::string text = PadRight(cells[0], widths[0]);
        for (std::size_t i = 1; i < cells.size(); ++i)
            text +=
                i == 1 && table.heads[1] == "POS" ? ' ' + PadRight(cells[i], widths[i]) : PadLeft(cells[i], widths[i]);
        while (!text.empty() && text.back() == ' ') text.pop_back();
        return text + '\n';
    };
    std::string text = line(table.heads);
    for (const auto& row : table.rows) text += line(row);
    return text;
}

std::string EscapeHtml(std::string_view text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            case '\'': out += "&#39;"; break;
            default: out += c;
        }
    }
    return out;
}

std::string TableHtml(const DocumentTable& table, std::string_view cssClass) {
    std::string html =
        fmt::format("<table class=\"{}\">\n<thead>{}</thead>\n<tbody>\n", cssClass, Row(table.heads, "th"));
    const std::size_t last = table.rows.size() - (table.totals && !table.rows.empty() ? 1 : 0);
    for (std::size_t i = 0; i < last; ++i) html += Row(table.rows[i], "td");
    html += "</tbody>\n";
    if (last < table.rows.size()) html += fmt::format("<tfoot>{}</tfoot>\n", Row(table.rows[last], "td"));
    return html + "</table>\n";
}

std::string PageHtml(const std::string& title, const std::string& body) {
    return fmt::format(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<meta name=\"viewport\" "
        "content=\"width=device-width\">\n<title>{}</title>\n<style>{}</style>\n</head>\n<body>\n{}</body>\n</html>\n",
        EscapeHtml(title), kStyle, body);
}

}  // namespace tarvane
