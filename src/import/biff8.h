#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "import/bytes.h"

namespace tarvane::biff {

// The records of a BIFF8 stream that matter here.
enum Record : std::uint16_t {
    kFormula = 0x0006,
    kEof = 0x000A,
    kFilePass = 0x002F,
    kContinue = 0x003C,
    kBoundSheet = 0x0085,
    kMulRk = 0x00BD,
    kRString = 0x00D6,
    kSst = 0x00FC,
    kLabelSst = 0x00FD,
    kNumber = 0x0203,
    kLabel = 0x0204,
    kBoolErr = 0x0205,
    kString = 0x0207,
    kRk = 0x027E,
    kBof = 0x0809,
};

// Goes from record to record of a stream.
class Records {
  public:
    Records(std::string_view stream, std::size_t at) : stream_(stream), next_(at) {}

    // False at the end of the stream. Throws OutOfBytes if a record is longer than what is left.
    bool Next();

    std::uint16_t Type() const { return type_; }
    ByteView Body() const { return body_; }
    // The record's body and those of the continuations behind it.
    std::vector<ByteView> BodyAndContinuations() const;

  private:
    ByteView stream_;
    std::size_t next_;
    std::uint16_t type_ = 0;
    ByteView body_;
};

// Reads texts out of a record that goes on in continuations. In the middle of a text a continuation begins with a byte
// that says anew how wide the characters are.
class TextReader {
  public:
    explicit TextReader(std::vector<ByteView> parts) : parts_(std::move(parts)) {}

    std::uint32_t Number(std::size_t size);
    void Skip(std::size_t size);
    // A text whose length stands before it in so many bytes, with what may follow of formats and phonetics passed over.
    std::string Text(std::size_t lengthSize);
    bool AtEnd() const;

  private:
    std::uint8_t Byte();
    void Characters(std::size_t count, bool wide, std::u16string& text);

    std::vector<ByteView> parts_;
    std::size_t part_ = 0, at_ = 0;
};

// The packed number of RK and MULRK records: 30 bits of a double or of a whole number, perhaps in hundredths.
double UnpackRk(std::uint32_t rk);

std::string Utf16ToUtf8(std::u16string_view text);

}  // namespace tarvane::biff
