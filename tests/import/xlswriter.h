#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::test {

inline std::string Low(std::uint64_t number, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>((number >> (8 * i)) & 0xFF);
    return text;
}

std::string Low(double number);

// A record of a BIFF8 stream.
std::string Record(std::uint16_t type, std::string_view body);

// Row, column (both from 1) and a format: how each cell's record begins.
inline std::string CellHead(int row, int column) {
    return Low(static_cast<std::uint64_t>(row - 1), 2) + Low(static_cast<std::uint64_t>(column - 1), 2) + Low(15, 2);
}

// A text of one byte a character, its length in so many bytes.
inline std::string Narrow(std::string_view text, int lengthBytes) {
    return Low(text.size(), lengthBytes) + Low(0, 1) + std::string(text);
}
std::string Wide(std::u16string_view text, int lengthBytes);

struct SheetRecords {
    std::string name, records;
};

// The Workbook stream: globals with the given records between beginning and end, then the sheets.
std::string WorkbookStream(const std::vector<SheetRecords>& sheets, std::string_view globals = {});

// A compound file with this stream; short ones go into the mini stream, as the format wants.
std::string CompoundWith(const std::string& stream, std::string_view name = "Workbook");

}  // namespace tarvane::test
