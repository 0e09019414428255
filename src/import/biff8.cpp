#include "import/biff8.h"

#include <bit>

namespace tarvane::biff {

bool Records::Next() {
    if (next_ + 4 > stream_.Size()) return false;
    type_ = stream_.U16(next_);
    const std::size_t size = stream_.U16(next_ + 2);
    body_ = stream_.Part(next_ + 4, size);
    next_ += 4 + size;
    return true;
}

std::vector<ByteView> Records::BodyAndContinuations() const {
    std::vector<ByteView> parts{body_};
    Records ahead = *this;
    while (ahead.Next() && ahead.Type() == kContinue) parts.push_back(ahead.Body());
    return parts;
}

bool TextReader::AtEnd() const {
    return part_ >= parts_.size() || (part_ + 1 == parts_.size() && at_ >= parts_[part_].Size());
}

std::uint8_t TextReader::Byte() {
    while (part_ < parts_.size() && at_ >= parts_[part_].Size()) {
        ++part_;
        at_ = 0;
    }
    if (part_ >= parts_.size()) throw OutOfBytes();
    return parts_[part_].U8(at_++);
}

std::uint32_t TextReader::Number(std::size_t size) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) number |= static_cast<std::uint32_t>(Byte()) << (8 * i);
    return number;
}

void TextReader::Skip(std::size_t size) {
    while (size > 0) {
        if (part_ >= parts_.size()) throw OutOfBytes();
        const std::size_t step = std::min(size, parts_[part_].Size() - at_);
        at_ += step;
        size -= step;
        if (size == 0) return;
        ++part_;
        at_ = 0;
    }
}

void TextReader::Characters(std::size_t count, bool wide, std::u16string& text) {
    for (std::size_t i = 0; i < count; ++i) {
        if (part_ < parts_.size() && at_ >= parts_[part_].Size()) {
            ++part_;
            at_ = 0;
            wide = (Byte() & 1) != 0;
        }
        text += static_cast<char16_t>(Number(wide ? 2 : 1));
    }
}

std::string TextReader::Text(std::size_t lengthSize) {
    const std::size_t length = Number(lengthSize);
    if (length == 0 && AtEnd()) return {};
    const std::uint8_t flags = Byte();
    const std::size_t formats = (flags & 8) != 0 ? Number(2) : 0;
    const std::size_t phonetics = (flags & 4) != 0 ? Number(4) : 0;
    std::u16string text;
    Characters(length, (flags & 1) != 0, text);
    Skip(4 * formats + phonetics);
    return Utf16ToUtf8(text);
}

double UnpackRk(std::uint32_t rk) {
    const double number = (rk & 2) != 0 ? static_cast<double>(static_cast<std::int32_t>(rk) >> 2)
                                        : std::bit_cast<double>(static_cast<std::uint64_t>(rk & ~3U) << 32);
    return (rk & 1) != 0 ? number / 100 : number;
}

std::string Utf16ToUtf8(std::u16string_view text) {
    std::string result;
    const auto put = [&](std::uint32_t bits) { result += static_cast<char>(bits); };
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t c = text[i];
        const bool high = c >= 0xD800 && c < 0xDC00;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000)
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U);
        else if (c >= 0xD800 && c < 0xE000)
            c = 0xFFFD;  // half of a pair
        if (c < 0x80) {
            put(c);
            continue;
        }
        if (c < 0x800) {
            put(0xC0 | (c >> 6));
        } else if (c < 0x10000) {
            put(0xE0 | (c >> 12));
            put(0x80 | ((c >> 6) & 0x3F));
        } else {
            put(0xF0 | (c >> 18));
            put(0x80 | ((c >> 12) & 0x3F));
            put(0x80 | ((c >> 6) & 0x3F));
        }
        put(0x80 | (c & 0x3F));
    }
    return result;
}

}  // namespace tarvane::biff
