#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvane::rowstream {

// The language between the program and its helper that reads Access files: a stream of frames on the helper's standard
// output. All numbers are 32 bits, low byte first; a text is its length and its bytes.
//
//   magic
//   'T' table number, rows promised by the file   a table of the request begins
//   'R' one text for each wanted column            a row of it
//   'E' rows read, rows sent                       it ends; the difference are years not wanted
//   'M' table number                               the file has no such table
//   'X' text                                       the file can't be read on: why
//   'Z'                                            all is told
//
// A stream without 'X' or 'Z' at its end means that the helper died.
inline constexpr std::string_view kMagic = "TVROWS1\n";

// A table, as the helper's arguments name it: "name|name=column,column,...", with * before the column of the year, and
// "!" in front of all if the table must be there. Names hold none of these characters.
inline constexpr char kRequired = '!';
inline constexpr char kYearMark = '*';

// Longest text of a cell; what a file holds beyond that is no row of statistics.
inline constexpr std::uint32_t kLongestText = 4096;

inline void PutNumber(std::string& out, std::uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8) out += static_cast<char>((number >> shift) & 0xFF);
}

inline void PutText(std::string& out, std::string_view text) {
    PutNumber(out, static_cast<std::uint32_t>(text.size()));
    out += text;
}

// Reads numbers and texts from the front of a buffer. When they aren't all there yet, ok is false: come back with more.
struct Taker {
    std::string_view rest;
    bool ok = true;
    bool broken = false;  // a length that no helper of ours sends

    std::uint32_t Number() {
        if (!ok || rest.size() < 4) return ok = false, 0;
        std::uint32_t number = 0;
        for (unsigned i = 0; i < 4; ++i)
            number |= static_cast<std::uint32_t>(static_cast<unsigned char>(rest[i])) << (8 * i);
        rest.remove_prefix(4);
        return number;
    }

    std::string_view Text() {
        const std::uint32_t size = Number();
        if (ok && size > kLongestText) broken = true;
        if (!ok || broken || rest.size() < size) return ok = false, std::string_view{};
        const std::string_view text = rest.substr(0, size);
        rest.remove_prefix(size);
        return text;
    }
};

}  // namespace tarvane::rowstream
