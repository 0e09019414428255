// The box score as text and as a page.

#include <fmt/core.h>

#include <algorithm>

#include "base/text.h"
#include "documents/boxdocument.h"
#include "documents/page.h"

namespace tarvane {

namespace {

DocumentTable Condense(const DocumentTable& table) {
    DocumentTable shorter{{}, {}, table.totals};
    const auto keep = [](const std::vector<std::string>& row) {
        std::vector<std::string> kept;
        for (std::size_t i = 0; i < row.size(); ++i)
            if (i < kFieldingFrom || i >= kFieldingTo) kept.push_back(row[i]);
        return kept;
    };
    shorter.heads = keep(table.heads);
    for (const auto& row : table.rows) shorter.rows.push_back(keep(row));
    return shorter;
}

DocumentTable Batting(const BoxSide& side, const DocumentStyle& style) {
    return style.condensed ? Condense(side.batting) : side.batting;
}

}  // namespace

std::string BoxScoreText(const BoxDocument& box, const DocumentStyle& style) {
    std::string text = box.title + '\n';
    if (!box.place.empty()) text += box.place + '\n';
    text += '\n' + TableText(box.lineScore, 0);
    int width = 0;
    for (const BoxSide& side : box.side.value)
        width = std::max({width, FirstColumnWidth(side.batting), FirstColumnWidth(side.pitching)});
    for (const BoxSide& side : box.side.value) {
        text += '\n' + TableText(Batting(side, style), width);
        for (const DocumentNote& note : side.notes) text += fmt::format("{:<4} {}\n", note.label, note.text);
    }
    for (const BoxSide& side : box.side.value) text += '\n' + TableText(side.pitching, width);
    if (!box.elapsed.empty()) text += '\n' + box.elapsed + '\n';
    return text;
}

std::string BoxScoreHtml(const BoxDocument& box, const DocumentStyle& style) {
    std::string body = fmt::format("<h1>{}</h1>\n", EscapeHtml(box.title));
    if (!box.place.empty()) body += fmt::format("<p class=\"place\">{}</p>\n", EscapeHtml(box.place));
    body += TableHtml(box.lineScore, "line");
    for (const BoxSide& side : box.side.value) {
        body += "<section>\n<h2>";
        if (!side.logo.empty()) body += fmt::format("<img src=\"{}\" alt=\"\"> ", EscapeHtml(side.logo));
        body += EscapeHtml(side.team) + "</h2>\n" + TableHtml(Batting(side, style), "batting");
        for (const DocumentNote& note : side.notes)
            body += fmt::format("<p class=\"note\"><b>{}</b> {}</p>\n", EscapeHtml(note.label), EscapeHtml(note.text));
        body += TableHtml(side.pitching, "pitching") + "</section>\n";
    }
    if (!box.elapsed.empty()) body += fmt::format("<p class=\"elapsed\">{}</p>\n", EscapeHtml(box.elapsed));
    return PageHtml(box.title + " - Box Score", body);
}

}  // namespace tarvane
