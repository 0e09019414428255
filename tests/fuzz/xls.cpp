// A workbook: the compound file around it and the records in it. The first byte chooses where the rubbish begins: at
// the file's first byte, or inside a sound compound file, where the fuzzer would hardly come by itself.
#include "base/error.h"
#include "import/xlsreader.h"

namespace {

void ReadAll(std::string_view bytes) {
    try {
        const tarvane::XlsWorkbook book(bytes, "fuzz.xls");
        for (const std::string& name : book.SheetNames()) {
            const tarvane::XlsSheet sheet = book.ReadSheet(name);
            sheet.At(sheet.LastRow(), 1);
        }
    } catch (const tarvane::UserError&) {
    }
}

void Put(std::string& bytes, std::size_t at, std::uint32_t number) {
    for (std::size_t i = 0; i < 4; ++i) bytes[at + i] = static_cast<char>((number >> (8 * i)) & 0xFF);
}

// Sector 0 the table of chains, sector 1 the directory, the stream from sector 2 on.
std::string CompoundAround(std::string_view stream) {
    constexpr std::size_t kSector = 512;
    constexpr std::uint32_t kEnd = 0xFFFFFFFE, kTable = 0xFFFFFFFD;
    const std::size_t sectors = std::min<std::size_t>((stream.size() + kSector - 1) / kSector, 120);
    std::string bytes(kSector * (3 + sectors), '\0');
    bytes.replace(0, 8, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    Put(bytes, 0x1E, 9 | (6 << 16));
    Put(bytes, 0x30, 1);
    Put(bytes, 0x3C, kEnd);
    Put(bytes, 0x44, kEnd);
    for (std::size_t i = 0; i < 109; ++i) Put(bytes, 0x4C + 4 * i, i == 0 ? 0 : 0xFFFFFFFF);
    Put(bytes, kSector, kTable);
    Put(bytes, kSector + 4, kEnd);
    for (std::uint32_t i = 0; i < sectors; ++i) Put(bytes, kSector + 8 + 4 * i, i + 1 == sectors ? kEnd : i + 3);
    const std::string_view name = "Workbook";
    for (std::size_t i = 0; i < name.size(); ++i) bytes[2 * kSector + 2 * i] = name[i];
    bytes[2 * kSector + 0x40] = 18;
    bytes[2 * kSector + 0x42] = 2;
    Put(bytes, 2 * kSector + 0x74, 2);
    Put(bytes, 2 * kSector + 0x78, static_cast<std::uint32_t>(std::min(stream.size(), sectors * kSector)));
    bytes.replace(3 * kSector, std::min(stream.size(), sectors * kSector), stream.substr(0, sectors * kSector));
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
    if (data[0] % 2 == 0) {
        ReadAll(rest);
        return 0;
    }
    const std::string begin("\x09\x08\x10\0\0\6\5\0\0\0\0\0\0\0\0\0\0\0\0\0", 20);
    ReadAll(CompoundAround(begin + std::string(rest)));
    return 0;
}
