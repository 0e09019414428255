#include "xlswriter.h"

#include <bit>

namespace tarvane::test {

namespace {

constexpr std::size_t kSector = 512, kMiniSector = 64, kMiniCutoff = 4096;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE, kFatSector = 0xFFFFFFFD, kFree = 0xFFFFFFFF;

std::string Padded(std::string bytes, std::size_t unit) {
    bytes.resize((bytes.size() + unit - 1) / unit * unit, '\0');
    return bytes;
}

// Adds sectors with their chain.
std::uint32_t Append(std::string& sectors, std::vector<std::uint32_t>& fat, const std::string& content) {
    if (content.empty()) return kEndOfChain;
    const auto first = static_cast<std::uint32_t>(fat.size());
    sectors += Padded(content, kSector);
    while (fat.size() < sectors.size() / kSector) fat.push_back(static_cast<std::uint32_t>(fat.size() + 1));
    fat.back() = kEndOfChain;
    return first;
}

std::string DirectoryEntry(std::string_view name, int type, std::uint32_t start, std::size_t size) {
    std::string entry;
    for (const char c : name) entry += Low(static_cast<unsigned char>(c), 2);
    entry.resize(64, '\0');
    entry += Low(2 * (name.size() + 1), 2) + Low(static_cast<std::uint64_t>(type), 1) + Low(1, 1);
    entry += Low(kFree, 4) + Low(kFree, 4) + Low(type == 5 ? 1 : kFree, 4);
    entry.resize(0x74, '\0');
    return entry + Low(start, 4) + Low(size, 4) + Low(0, 4);
}

std::string Words(const std::vector<std::uint32_t>& words) {
    std::string bytes;
    for (const std::uint32_t word : words) bytes += Low(word, 4);
    return bytes;
}

}  // namespace

std::string Low(double number) {
    return Low(std::bit_cast<std::uint64_t>(number), 8);
}

std::string Record(std::uint16_t type, std::string_view body) {
    return Low(type, 2) + Low(body.size(), 2) + std::string(body);
}

std::string Wide(std::u16string_view text, int lengthBytes) {
    std::string bytes = Low(text.size(), lengthBytes) + Low(1, 1);
    for (const char16_t c : text) bytes += Low(c, 2);
    return bytes;
}

std::string WorkbookStream(const std::vector<SheetRecords>& sheets, std::string_view globals) {
    const auto bof = [](int kind) {
        return Record(0x0809, Low(0x0600, 2) + Low(static_cast<std::uint64_t>(kind), 2) + std::string(12, '\0'));
    };
    const std::string eof = Record(0x000A, "");
    std::size_t at = bof(5).size() + globals.size() + eof.size();
    for (const SheetRecords& sheet : sheets) at += 4 + 6 + 2 + sheet.name.size();
    std::string stream = bof(5);
    for (const SheetRecords& sheet : sheets) {
        stream += Record(0x0085, Low(at, 4) + Low(0, 2) + Narrow(sheet.name, 1));
        at += bof(16).size() + sheet.records.size() + eof.size();
    }
    stream += std::string(globals) + eof;
    for (const SheetRecords& sheet : sheets) stream += bof(16) + sheet.records + eof;
    return stream;
}

std::string CompoundWith(const std::string& stream, std::string_view name) {
    std::string sectors, mini;
    std::vector<std::uint32_t> fat, miniFat;
    const bool small = stream.size() < kMiniCutoff;
    std::uint32_t start = 0;
    if (small) {
        mini = Padded(stream, kMiniSector);
        for (std::uint32_t i = 1; i <= mini.size() / kMiniSector; ++i) miniFat.push_back(i);
        if (!miniFat.empty()) miniFat.back() = kEndOfChain;
    } else {
        start = Append(sectors, fat, stream);
    }
    const std::uint32_t miniStart = Append(sectors, fat, mini);
    const std::uint32_t miniFatStart = Append(sectors, fat, Words(miniFat));
    const std::uint32_t directory =
        Append(sectors, fat,
               DirectoryEntry("Root Entry", 5, miniStart, mini.size()) + DirectoryEntry(name, 2, start, stream.size()));
    const std::size_t fatSectors = (fat.size() + fat.size() / 100 + 2) * 4 / kSector + 1;
    const auto fatStart = static_cast<std::uint32_t>(fat.size());
    fat.resize(fat.size() + fatSectors, kFatSector);
    fat.resize(fatSectors * kSector / 4, kFree);
    sectors += Words(fat);

    std::string head = std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") + std::string(16, '\0');
    head += Low(0x3E, 2) + Low(3, 2) + Low(0xFFFE, 2) + Low(9, 2) + Low(6, 2) + std::string(6, '\0') + Low(0, 4);
    head += Low(fatSectors, 4) + Low(directory, 4) + Low(0, 4) + Low(kMiniCutoff, 4) + Low(miniFatStart, 4);
    head += Low(miniFat.empty() ? 0 : 1, 4) + Low(kEndOfChain, 4) + Low(0, 4);
    for (std::uint32_t i = 0; i < 109; ++i) head += Low(i < fatSectors ? fatStart + i : kFree, 4);
    return head + sectors;
}

}  // namespace tarvane::test
