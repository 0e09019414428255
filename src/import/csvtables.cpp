#include "import/csvtables.h"

#include <fmt/core.h>

#include <algorithm>

#include "base/csv.h"
#include "base/error.h"
#include "base/file.h"
#include "base/text.h"

namespace tarvane {

namespace {

// Where each wanted column stands in the file.
std::vector<std::size_t> FindColumns(const TableRequest& request, const CsvReader& reader,
                                     const std::vector<std::string_view>& heading) {
    std::vector<std::size_t> places;
    for (const std::string& column : request.columns) {
        const auto found = std::find_if(heading.begin(), heading.end(),
                                        [&](std::string_view name) { return EqualsIgnoreCase(Trim(name), column); });
        if (found == heading.end())
            reader.Fail(fmt::format("there is no column {}. The first line must name the columns of table {}.", column,
                                    request.names.front()));
        places.push_back(static_cast<std::size_t>(found - heading.begin()));
    }
    return places;
}

void ReadRows(const TableRequest& request, CsvReader& reader, const YearSet& years,
              const std::function<void(const RawRow&)>& sink, Progress* progress) {
    std::vector<std::string_view> line;
    if (!reader.Next(line))
        throw UserError(fmt::format("{} is empty. Its first line must name the columns.", reader.Name()));
    const std::vector<std::size_t> places = FindColumns(request, reader, line);
    const std::size_t width = line.size();
    const std::size_t yearPlace = request.yearColumn < 0 ? 0 : places[static_cast<std::size_t>(request.yearColumn)];
    std::vector<std::string_view> cells(places.size());
    RawRow row{reader.Name(), "line", 0, cells};
    for (long count = 0; reader.Next(line); ++count) {
        if (count % 4096 == 0) ReportProgress(progress, "Reading " + reader.Name(), static_cast<int>(count), 0);
        if (line.size() < width)
            reader.Fail(
                fmt::format("the row has {} cells, but the first line names {} columns. The file may be cut short; "
                            "get it again.",
                            line.size(), width));
        if (request.yearColumn >= 0 && !YearWanted(years, line[yearPlace])) continue;
        for (std::size_t i = 0; i < places.size(); ++i) cells[i] = line[places[i]];
        row.number = reader.Line();
        sink(row);
    }
}

}  // namespace

std::filesystem::path CsvTables::FindFile(const TableRequest& request) const {
    std::vector<std::filesystem::path> found;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder_, error)) {
        const std::string name = entry.path().filename().string();
        const auto matches = [&](const std::string& table) { return EqualsIgnoreCase(name, table + ".csv"); };
        if (std::any_of(request.names.begin(), request.names.end(), matches)) found.push_back(entry.path());
    }
    if (error) throw UserError(fmt::format("The folder {} can't be read: {}.", folder_.string(), error.message()));
    return found.empty() ? std::filesystem::path{} : *std::min_element(found.begin(), found.end());
}

void CsvTables::Read(const std::vector<TableRequest>& requests, const YearSet& years, const Sink& sink,
                     Progress* progress) {
    for (std::size_t table = 0; table < requests.size(); ++table) {
        const TableRequest& request = requests[table];
        const std::filesystem::path file = FindFile(request);
        if (file.empty() && request.optional) continue;
        if (file.empty())
            throw UserError(
                fmt::format("There is no file {}.csv in the folder {}. Choose the folder that holds the CSV "
                            "files of the statistics database.",
                            request.names.back(), folder_.string()));
        const std::string text = ReadFile(file);
        CsvReader reader(text, file.filename().string());
        ReadRows(
            request, reader, years, [&](const RawRow& row) { sink(table, row); }, progress);
    }
}

}  // namespace tarvane
