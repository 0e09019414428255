#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

struct CsvOptions {
    char separator = ',';
    bool hashComments = false;  // a line that starts with # is skipped
};

// Reads rows of comma-separated text out of a buffer that the caller keeps alive. A byte order mark is skipped, lines
// end with LF or CRLF, a quoted cell may hold separators, line ends and doubled quotes. Empty lines are skipped.
class CsvReader {
  public:
    // name is the file's name for error texts.
    CsvReader(std::string_view text, std::string name, CsvOptions options = {});

    // The next row, or false at the end. The cells are good until the next call. Throws UserError with file and line
    // for a quote that is never closed or is followed by more text.
    bool Next(std::vector<std::string_view>& cells);

    // The line, from 1, on which the row last read began.
    int Line() const { return line_; }
    const std::string& Name() const { return name_; }

    // Throws UserError "<file>, line <n>: <what>" for the row last read.
    [[noreturn]] void Fail(std::string_view what) const;

  private:
    bool SkipToRow();
    std::string_view ReadQuoted();
    std::string_view ReadPlain();
    bool EndRow();

    std::string_view text_;
    std::string name_;
    CsvOptions options_;
    std::size_t at_ = 0;
    int line_ = 0;
    int nextLine_ = 1;
    std::deque<std::string> unescaped_;  // cells that held doubled quotes
};

}  // namespace tarvane
