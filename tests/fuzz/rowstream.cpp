// What a helper gone mad may send, in pieces of a size that the first byte says.
#include "base/error.h"
#include "import/frameparser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::vector<tarvane::TableRequest> requests{{{"Teams"}, {"yearID", "name"}, 0, false},
                                                      {{"Splits"}, {"G"}, -1, true}};
    const tarvane::RawTables::Sink sink = [&](std::size_t table, const tarvane::RawRow& row) {
        if (row.cells.size() != requests[table].columns.size()) __builtin_trap();
    };
    std::string stream(tarvane::rowstream::kMagic);
    stream.append(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::size_t piece = std::size_t{data[0]} + 1;
    tarvane::FrameParser parser(requests, "fuzz.mdb", sink);
    try {
        for (std::size_t at = 0; at < stream.size(); at += piece)
            parser.Feed(std::string_view(stream).substr(at, piece));
    } catch (const tarvane::UserError&) {
    }
    return 0;
}
