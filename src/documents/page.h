#pragma once

#include <string>
#include <string_view>

#include "documents/boxdocument.h"

namespace tarvane {

// What the documents of a game are set with, in text of equal letters and in HTML.

// The least width that the names of a table need.
int FirstColumnWidth(const DocumentTable& table);
// Names to the left, figures to the right; the first column at least so wide.
std::string TableText(const DocumentTable& table, int firstWidth);

std::string EscapeHtml(std::string_view text);
std::string TableHtml(const DocumentTable& table, std::string_view cssClass);
// A whole page around a body.
std::string PageHtml(const std::string& title, const std::string& body);

}  // namespace tarvane
