#include "import/compoundfile.h"

#include <algorithm>

#include "base/text.h"

namespace tarvane {

namespace {

constexpr std::string_view kSignature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr std::uint32_t kLastSector = 0xFFFFFFFA;  // from here up: end of chain, free, table sectors
constexpr std::size_t kHeaderDifat = 109;
constexpr std::uint8_t kStreamEntry = 2, kRootEntry = 5;

std::vector<std::uint32_t> Numbers(std::string_view bytes) {
    const ByteView view(bytes);
    std::vector<std::uint32_t> numbers(bytes.size() / 4);
    for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = view.U32(4 * i);
    return numbers;
}

}  // namespace

bool CompoundFile::LooksLikeOne(std::string_view bytes) {
    return bytes.substr(0, kSignature.size()) == kSignature;
}

CompoundFile::CompoundFile(std::string_view bytes) : bytes_(bytes) {
    const std::uint16_t shift = bytes_.U16(0x1E), miniShift = bytes_.U16(0x20);
    if (!LooksLikeOne(bytes) || (shift != 9 && shift != 12) || miniShift >= shift || miniShift < 4) throw OutOfBytes();
    sectorSize_ = std::size_t{1} << shift;
    miniSectorSize_ = std::size_t{1} << miniShift;
    miniCutoff_ = bytes_.U32(0x38);
    ReadFat();
    ReadDirectory();
    miniFat_ = Numbers(Chain(bytes_.U32(0x3C)));
    const auto root =
        std::find_if(entries_.begin(), entries_.end(), [](const Entry& e) { return e.type == kRootEntry; });
    if (root != entries_.end()) miniStream_ = Chain(root->start);
}

// The last sector may be cut where the file ends: what is missing of it reads as nothing.
ByteView CompoundFile::Sector(std::uint32_t number) const {
    const std::size_t at = (std::size_t{number} + 1) * sectorSize_;
    if (at >= bytes_.Size()) throw OutOfBytes();
    return bytes_.Part(at, std::min(sectorSize_, bytes_.Size() - at));
}

// The sectors that hold the table of chains are listed in the header, and from there on in a chain of their own.
void CompoundFile::ReadFat() {
    const std::size_t most = bytes_.Size() / sectorSize_ + 1;
    std::vector<std::uint32_t> sectors;
    for (std::size_t i = 0; i < kHeaderDifat; ++i) sectors.push_back(bytes_.U32(0x4C + 4 * i));
    std::uint32_t next = bytes_.U32(0x44);
    for (std::size_t count = 0; next < kLastSector; ++count) {
        if (count > most) throw OutOfBytes();
        std::vector<std::uint32_t> more = Numbers(Sector(next).Part(0, sectorSize_).Text());
        next = more.back();
        sectors.insert(sectors.end(), more.begin(), more.end() - 1);
    }
    for (const std::uint32_t sector : sectors) {
        if (sector >= kLastSector) continue;
        const std::vector<std::uint32_t> part = Numbers(Sector(sector).Text());
        fat_.insert(fat_.end(), part.begin(), part.end());
        if (fat_.size() > most + 2 * sectorSize_) break;  // it already tells more than the file can hold
    }
}

std::string CompoundFile::Chain(std::uint32_t start) const {
    std::string content;
    for (std::uint32_t sector = start; sector < kLastSector; sector = fat_[sector]) {
        if (sector >= fat_.size() || content.size() > bytes_.Size()) throw OutOfBytes();
        content += Sector(sector).Text();
    }
    return content;
}

std::string CompoundFile::MiniChain(std::uint32_t start, std::size_t size) const {
    std::string content;
    const ByteView mini(miniStream_);
    for (std::uint32_t sector = start; sector < kLastSector && content.size() < size; sector = miniFat_[sector]) {
        if (sector >= miniFat_.size() || content.size() > miniStream_.size()) throw OutOfBytes();
        const std::size_t at = sector * miniSectorSize_;
        content += mini.From(at).Text().substr(0, miniSectorSize_);
    }
    return content;
}

void CompoundFile::ReadDirectory() {
    constexpr std::size_t kEntrySize = 128;
    const std::string directory = Chain(bytes_.U32(0x30));
    const ByteView view(directory);
    for (std::size_t at = 0; at + kEntrySize <= directory.size(); at += kEntrySize) {
        const ByteView raw = view.Part(at, kEntrySize);
        Entry entry;
        const std::size_t length = std::min<std::size_t>(raw.U16(0x40), 64) / 2;
        for (std::size_t i = 0; i + 1 < length; ++i) entry.name += static_cast<char>(raw.U8(2 * i));
        entry.type = raw.U8(0x42);
        entry.start = raw.U32(0x74);
        entry.size = raw.U32(0x78);
        entries_.push_back(std::move(entry));
    }
}

std::optional<std::string> CompoundFile::ReadStream(std::string_view name) const {
    for (const Entry& entry : entries_) {
        if (entry.type != kStreamEntry || !EqualsIgnoreCase(entry.name, name)) continue;
        std::string content = entry.size < miniCutoff_ ? MiniChain(entry.start, entry.size) : Chain(entry.start);
        if (content.size() < entry.size) throw OutOfBytes();
        content.resize(entry.size);
        return content;
    }
    return std::nullopt;
}

}  // namespace tarvane
