#include "import/mdbreader.h"

#include <fmt/core.h>

#include <fstream>
#include <utility>

#include "base/error.h"
#include "import/frameparser.h"
#include "import/helperprocess.h"

namespace tarvane {

namespace {

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
