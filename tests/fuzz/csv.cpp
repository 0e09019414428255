// CSV text and the cells of its rows: anything may be refused with a UserError, nothing else may happen.
#include "base/csv.h"

#include "base/error.h"
#include "import/rawtables.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const tarvane::TableRequest request{{"Table"}, {"a", "b"}, -1, false};
    tarvane::CsvReader reader(text, "fuzz.csv", {',', size % 2 == 0});
    std::vector<std::string_view> cells;
    try {
        while (reader.Next(cells)) {
            cells.resize(2);
            const tarvane::RawRow row{"fuzz.csv", "line", reader.Line(), cells};
            const tarvane::RowCells reads(request, row);
            reads.Text(0);
            try {
                reads.Count(0);
                reads.Number(1);
            } catch (const tarvane::UserError&) {
            }
        }
    } catch (const tarvane::UserError&) {
    }
    return 0;
}
