#include "base/csv.h"

#include <fmt/core.h>

#include "base/error.h"

namespace tarvane {

CsvReader::CsvReader(std::string_view text, std::string name, CsvOptions options)
    : text_(text), name_(std::move(name)), options_(options) {
    if (text_.substr(0, 3) == "\xEF\xBB\xBF") text_.remove_prefix(3);
}

void CsvReader::Fail(std::string_view what) const {
    throw UserError(fmt::format("{}, line {}: {}", name_, line_, what));
}

// Goes past empty lines and comments; false at the end of the text.
bool CsvReader::SkipToRow() {
    while (at_ < text_.size()) {
        const char c = text_[at_];
        if (c == '\n' || c == '\r') {
            nextLine_ += c == '\n' ? 1 : 0;
            ++at_;
        } else if (options_.hashComments && c == '#') {
            at_ = std::min(text_.find('\n', at_), text_.size());
        } else {
            return true;
        }
    }
    return false;
}

std::string_view CsvReader::ReadPlain() {
    const std::size_t start = at_;
    while (at_ < text_.size() && text_[at_] != options_.separator && text_[at_] != '\n') ++at_;
    std::string_view cell = text_.substr(start, at_ - start);
    if (!cell.empty() && cell.back() == '\r' && (at_ == text_.size() || text_[at_] == '\n')) cell.remove_suffix(1);
    return cell;
}

std::string_view CsvReader::ReadQuoted() {
    const std::size_t start = ++at_;
    bool doubled = false;
    for (;; ++at_) {
        if (at_ >= text_.size()) Fail("a quoted text that begins in this row is never closed.");
        if (text_[at_] == '\n') ++nextLine_;
        if (text_[at_] != '"') continue;
        if (at_ + 1 >= text_.size() || text_[at_ + 1] != '"') break;
        doubled = true;
        ++at_;
    }
    const std::string_view raw = text_.substr(start, at_ - start);
    ++at_;
    if (at_ < text_.size() && text_[at_] == '\r') ++at_;
    if (at_ < text_.size() && text_[at_] != options_.separator && text_[at_] != '\n')
        Fail("text follows a closing quote; put a comma between cells and double the quotes inside them.");
    if (!doubled) return raw;
    std::string& cell = unescaped_.emplace_back();
    for (std::size_t i = 0; i < raw.size(); ++i) {
        cell += raw[i];
        if (raw[i] == '"') ++i;
    }
    return cell;
}

// True if the row ended at this cell; a separator leads to the next cell.
bool CsvReader::EndRow() {
    if (at_ >= text_.size()) return true;
    const bool lineEnd = text_[at_] == '\n';
    ++at_;
    if (lineEnd) ++nextLine_;
    return lineEnd;
}

bool CsvReader::Next(std::vector<std::string_view>& cells) {
    cells.clear();
    unescaped_.clear();
    if (!SkipToRow()) return false;
    line_ = nextLine_;
    do {
        cells.push_back(at_ < text_.size() && text_[at_] == '"' ? ReadQuoted() : ReadPlain());
    } while (!EndRow());
    return true;
}

}  // namespace tarvane
