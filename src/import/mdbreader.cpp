#include "import/mdbreader.h"

#include <fmt/core.h>

#include <fstream>
#include <utility>

#include "base/error.h"
#include "import/helperprocess.h"
#include "import/rowstream.h"

namespace tarvane {

namespace {

constexpr std::string_view kAdvice =
    "The file is damaged or protected by a password. Get it again, or use the CSV edition";

// Takes the helper's frames apart and hands rows on.
class FrameParser {
  public:
    FrameParser(const std::vector<TableRequest>& requests, std::string file, const RawTables::Sink& sink)
        : requests_(requests), file_(std::move(file)), sink_(sink) {}

    void Feed(std::string_view bytes) {
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

    bool Done() const { return done_; }
    long RowsRead() const { return row_; }
    const std::string& TableName() const { return requests_[table_].names.front(); }

    [[noreturn]] void Damaged(std::string_view what) const {
        throw UserError(fmt::format("{} can't be read: {}. {}.", file_, what, kAdvice));
    }

  private:
    void Greet(rowstream::Taker& taker) {
        if (taker.rest.size() < rowstream::kMagic.size()) return;
        if (taker.rest.substr(0, rowstream::kMagic.size()) != rowstream::kMagic)
            throw UserError("The program tarvane-import is of another version. Install the game again.");
        taker.rest.remove_prefix(rowstream::kMagic.size());
        greeted_ = true;
    }

    void TakeFrame(rowstream::Taker& taker) {
        const char kind = taker.rest.front();
        taker.rest.remove_prefix(1);
        switch (kind) {
            case 'T': return BeginTable(taker);
            case 'R': return TakeRow(taker);
            case 'E': return EndTable(taker);
            case 'M': return MissingTable(taker);
            case 'X': return TakeFault(taker);
            case 'Z': done_ = true; return;
            default: Damaged("the reader lost its way in it");
        }
    }

    void BeginTable(rowstream::Taker& taker) {
        const std::uint32_t table = taker.Number();
        const std::uint32_t promised = taker.Number();
        if (!taker.ok) return;
        if (table >= requests_.size()) Damaged("the reader lost its way in it");
        table_ = table;
        promised_ = promised;
        row_ = 0;
        source_ = fmt::format("{}, table {}", file_, TableName());
        cells_.resize(requests_[table_].columns.size());
        inTable_ = true;
    }

    void TakeRow(rowstream::Taker& taker) {
        if (!inTable_) Damaged("the reader lost its way in it");
        for (std::string_view& cell : cells_) cell = taker.Text();
        if (!taker.ok) return;
        sink_(table_, RawRow{source_, "row", ++row_, cells_});
    }

    void EndTable(rowstream::Taker& taker) {
        const std::uint32_t read = taker.Number();
        const std::uint32_t sent = taker.Number();
        if (!taker.ok) return;
        if (!inTable_ || static_cast<long>(sent) != row_) Damaged("the reader lost its way in it");
        if (read != promised_)
            Damaged(fmt::format("table {} says that it has {} rows, but {} were found", TableName(), promised_, read));
        inTable_ = false;
    }

    void MissingTable(rowstream::Taker& taker) {
        const std::uint32_t table = taker.Number();
        if (!taker.ok) return;
        if (table >= requests_.size() || !requests_[table].optional) Damaged("the reader lost its way in it");
    }

    void TakeFault(rowstream::Taker& taker) {
        const std::string_view text = taker.Text();
        if (taker.ok) throw UserError(fmt::format("{} can't be read: {}", file_, text));
    }

    const std::vector<TableRequest>& requests_;
    std::string file_;
    const RawTables::Sink& sink_;
    std::string buffer_;
    std::vector<std::string_view> cells_;
    std::string source_;
    std::size_t table_ = 0;
    std::uint32_t promised_ = 0;
    long row_ = 0;
    bool greeted_ = false, inTable_ = false, done_ = false;
};

std::string Join(const std::vector<std::string>& words, char between) {
    std::string result;
    for (const std::string& word : words) result += (result.empty() ? "" : std::string(1, between)) + word;
    return result;
}

std::vector<std::string> HelperArguments(const std::filesystem::path& file, const std::vector<TableRequest>& requests,
                                         const YearSet& years, std::chrono::milliseconds limit) {
    std::vector<std::string> list;
    for (const int year : years) list.push_back(std::to_string(year));
    // The helper ends by itself even if this program was killed meanwhile.
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(limit).count() + 1;
    std::vector<std::string> arguments{file.string(), std::to_string(seconds), Join(list, ',')};
    for (const TableRequest& request : requests) {
        std::vector<std::string> columns = request.columns;
        if (request.yearColumn >= 0)
            columns[static_cast<std::size_t>(request.yearColumn)].insert(0, 1, rowstream::kYearMark);
        arguments.push_back((request.optional ? "" : std::string(1, rowstream::kRequired)) + Join(request.names, '|') +
                            "=" + Join(columns, ','));
    }
    return arguments;
}

}  // namespace

void CheckAccessFile(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error)) throw UserError(fmt::format("There is no file {}.", file.string()));
    std::ifstream in(file, std::ios::binary);
    std::string head(20, '\0');
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    const std::string name = file.string();
    if (head.empty()) throw UserError(fmt::format("{} is empty or can't be read. Get it again.", name));
    if (head.substr(0, 15) == "SQLite format 3")
        throw UserError(
            fmt::format("{} is a file of this game, not a statistics database. Choose an Access file or the folder "
                        "of its CSV edition.",
                        name));
    if (head.substr(0, 2) == "PK")
        throw UserError(fmt::format("{} is a zip archive. Unpack it, then choose what is in it.", name));
    const std::string_view kind = std::string_view(head).substr(std::min<std::size_t>(4, head.size()));
    if (head.substr(0, 4) != std::string("\0\1\0\0", 4) ||
        (kind.substr(0, 15) != "Standard Jet DB" && kind.substr(0, 15) != "Standard ACE DB"))
        throw UserError(
            fmt::format("{} is not an Access file. Choose a statistics database (.mdb) or the folder of its CSV "
                        "edition.",
                        name));
}

MdbTables::MdbTables(std::filesystem::path file, MdbHelper helper)
    : file_(std::move(file)), helper_(std::move(helper)) {
    if (helper_.program.empty()) helper_.program = ProgramBesideThis("tarvane-import");
}

void MdbTables::Read(const std::vector<TableRequest>& requests, const YearSet& years, const Sink& sink,
                     Progress* progress) {
    CheckAccessFile(file_);
    const std::string name = file_.filename().string();
    FrameParser parser(requests, name, sink);
    const auto feed = [&](std::string_view bytes) { parser.Feed(bytes); };
    const auto report = [&] {
        ReportProgress(progress, fmt::format("Reading {} of {}", parser.TableName(), name),
                       static_cast<int>(parser.RowsRead()), 0);
    };
    const HelperEnd end =
        RunHelper(helper_.program, HelperArguments(file_, requests, years, helper_.limit), helper_.limit, feed, report);
    if (end.kind == HelperEnd::Kind::TimedOut)
        parser.Damaged(fmt::format("reading it took longer than {} seconds",
                                   std::chrono::duration<double>(helper_.limit).count()));
    if (end.kind == HelperEnd::Kind::Killed)
        parser.Damaged(fmt::format("the reader broke down on it (signal {})", end.code));
    if (end.code != 0) parser.Damaged(fmt::format("the reader gave up on it (code {})", end.code));
    if (!parser.Done()) parser.Damaged("it ends early");
}

}  // namespace tarvane
