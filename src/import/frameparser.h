#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "import/rawtables.h"
#include "import/rowstream.h"

namespace tarvane {

// Takes apart what the reader of Access files sends, in whatever pieces it comes, and hands the rows on. The sender
// isn't trusted: it works on a file that may be damaged, with a library that may go astray in it.
class FrameParser {
  public:
    // file is its name for error texts. requests and sink must outlive the parser.
    FrameParser(const std::vector<TableRequest>& requests, std::string file, const RawTables::Sink& sink)
        : requests_(requests), file_(std::move(file)), sink_(sink) {}

    // The next piece. Throws UserError if the sender tells of a fault, contradicts itself, or found fewer or more rows
    // than the file says it has.
    void Feed(std::string_view bytes);

    bool Done() const { return done_; }     // all tables were told
    long RowsRead() const { return row_; }  // of the table in hand
    const std::string& TableName() const { return requests_[table_].names.front(); }

    // Throws the UserError of a file that can't be read: why, and what to do.
    [[noreturn]] void Damaged(std::string_view what) const;

  private:
    [[noreturn]] void Astray() const;
    void Greet(rowstream::Taker& taker);
    void TakeFrame(rowstream::Taker& taker);
    void BeginTable(rowstream::Taker& taker);
    void TakeRow(rowstream::Taker& taker);
    void EndTable(rowstream::Taker& taker);
    void MissingTable(rowstream::Taker& taker);
    void TakeFault(rowstream::Taker& taker);

    const std::vector<TableRequest>& requests_;
    std::string file_;
    const RawTables::Sink& sink_;
    std::string buffer_;  // begins with a frame that isn't whole yet
    std::vector<std::string_view> cells_;
    std::string source_;
    std::size_t table_ = 0;
    std::uint32_t promised_ = 0;
    long row_ = 0;
    bool greeted_ = false, inTable_ = false, done_ = false;
};

}  // namespace tarvane
