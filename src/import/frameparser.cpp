#include "import/frameparser.h"

#include <fmt/core.h>

#include "base/error.h"

namespace tarvane {

namespace {

constexpr std::string_view kAdvice =
    "The file is damaged or protected by a password. Get it again, or use the CSV edition";

}  // namespace

void FrameParser::Feed(std::string_view bytes) {
    buffer_ += bytes;
    rowstream::Taker taker{buffer_};
    if (!greeted_) Greet(taker);
    while (greeted_ && !taker.rest.empty()) {
        const std::string_view before = taker.rest;
        if (done_) Damaged("more came after the end of the file's tables");
        TakeFrame(taker);
        if (taker.broken) Damaged("a text in it is longer than any in a statistics table");
        if (taker.ok) continue;
        taker.rest = before;
        break;
    }
    buffer_.erase(0, buffer_.size() - taker.rest.size());
}

void FrameParser::Damaged(std::string_view what) const {
    throw UserError(fmt::format("{} can't be read: {}. {}.", file_, what, kAdvice));
}

void FrameParser::Astray() const {
    Damaged("the reader lost its way in it");
}

void FrameParser::Greet(rowstream::Taker& taker) {
    if (taker.rest.size() < rowstream::kMagic.size()) return;
    if (taker.rest.substr(0, rowstream::kMagic.size()) != rowstream::kMagic)
        throw UserError("The program tarvane-import is of another version. Install the game again.");
    taker.rest.remove_prefix(rowstream::kMagic.size());
    greeted_ = true;
}

void FrameParser::TakeFrame(rowstream::Taker& taker) {
    const char kind = taker.rest.front();
    taker.rest.remove_prefix(1);
    switch (kind) {
        case 'T': return BeginTable(taker);
        case 'R': return TakeRow(taker);
        case 'E': return EndTable(taker);
        case 'M': return MissingTable(taker);
        case 'X': return TakeFault(taker);
        case 'Z':
            if (inTable_) Astray();
            done_ = true;
            return;
        default: Astray();
    }
}

void FrameParser::BeginTable(rowstream::Taker& taker) {
    const std::uint32_t table = taker.Number();
    const std::uint32_t promised = taker.Number();
    if (!taker.ok) return;
    if (inTable_ || table >= requests_.size()) Astray();
    table_ = table;
    promised_ = promised;
    row_ = 0;
    source_ = fmt::format("{}, table {}", file_, TableName());
    cells_.resize(requests_[table_].columns.size());
    inTable_ = true;
}

void FrameParser::TakeRow(rowstream::Taker& taker) {
    if (!inTable_) Astray();
    for (std::string_view& cell : cells_) cell = taker.Text();
    if (!taker.ok) return;
    sink_(table_, RawRow{source_, "row", ++row_, cells_});
}

void FrameParser::EndTable(rowstream::Taker& taker) {
    const std::uint32_t read = taker.Number();
    const std::uint32_t sent = taker.Number();
    if (!taker.ok) return;
    if (!inTable_ || static_cast<long>(sent) != row_) Astray();
    if (read != promised_)
        Damaged(fmt::format("table {} says that it has {} rows, but {} were found", TableName(), promised_, read));
    inTable_ = false;
}

void FrameParser::MissingTable(rowstream::Taker& taker) {
    const std::uint32_t table = taker.Number();
    if (!taker.ok) return;
    if (table >= requests_.size() || !requests_[table].optional) Astray();
}

void FrameParser::TakeFault(rowstream::Taker& taker) {
    const std::string_view text = taker.Text();
    if (taker.ok) throw UserError(fmt::format("{} can't be read: {}", file_, text));
}

}  // namespace tarvane
