#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace tarvane {

// A place of a binary file that isn't there: the file is cut short or its numbers lie. Readers turn it into a UserError
// that names the file.
class OutOfBytes : public std::runtime_error {
  public:
    OutOfBytes() : std::runtime_error("the file ends early or points outside itself") {}
};

// Bytes that nobody trusts: each access is checked. Numbers stand low byte first.
class ByteView {
  public:
    ByteView() = default;
    explicit ByteView(std::string_view bytes) : bytes_(bytes) {}

    std::size_t Size() const { return bytes_.size(); }

    ByteView Part(std::size_t at, std::size_t size) const {
        if (at > bytes_.size() || size > bytes_.size() - at) throw OutOfBytes();
        return ByteView(bytes_.substr(at, size));
    }
    ByteView From(std::size_t at) const {
        if (at > bytes_.size()) throw OutOfBytes();
        return ByteView(bytes_.substr(at));
    }
    std::string_view Text() const { return bytes_; }

    std::uint8_t U8(std::size_t at) const { return static_cast<std::uint8_t>(Low(at, 1)); }
    std::uint16_t U16(std::size_t at) const { return static_cast<std::uint16_t>(Low(at, 2)); }
    std::uint32_t U32(std::size_t at) const { return static_cast<std::uint32_t>(Low(at, 4)); }
    double F64(std::size_t at) const { return std::bit_cast<double>(Low(at, 8)); }

  private:
    std::uint64_t Low(std::size_t at, std::size_t size) const {
        const std::string_view part = Part(at, size).bytes_;
        std::uint64_t number = 0;
        for (std::size_t i = size; i-- > 0;) number = (number << 8) | static_cast<unsigned char>(part[i]);
        return number;
    }

    std::string_view bytes_;
};

}  // namespace tarvane
