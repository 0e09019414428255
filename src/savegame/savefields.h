#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

#include "records/position.h"

namespace tarvane {

// The records of a save file, field by field. A record is told once, as a function that hands its fields over in their
// order; whether that writes them or reads them is the object's business. One record is one line: values parted by
// commas, strings in double quotes (a quote within is doubled), numbers plain, flags "Y" or "N".
class SaveFields {
  public:
    virtual ~SaveFields() = default;

    virtual bool Reading() const = 0;

    // The next line; record names it in messages. Every Begin has its End.
    virtual void Begin(const std::string& record) = 0;
    virtual void End() = 0;

    // Line feeds become blanks: a record is one line.
    virtual void Text(std::string_view field, std::string& value) = 0;
    virtual void Real(std::string_view field, double& value) = 0;

    // A whole number; written within the bounds, refused outside them when read.
    template <class T>
    void Number(std::string_view field, T& value, std::int64_t low = Lowest<T>(), std::int64_t high = Highest<T>()) {
        static_assert(std::is_integral_v<T> || std::is_enum_v<T>);
        auto whole = static_cast<std::int64_t>(value);
        Whole(field, whole, low, high);
        if (Reading()) value = static_cast<T>(whole);
    }
    // One of an enumeration's values from its first to last.
    template <class E>
    void Choice(std::string_view field, E& value, E last) {
        Number(field, value, 0, static_cast<std::int64_t>(last));
    }
    void Word(std::string_view field, std::uint64_t& value);  // 64 bits, as 16 hexadecimal digits in quotes

    void Flag(std::string_view field, bool& value);
    void Letter(std::string_view field, char& value);     // a string of one character
    void Place(std::string_view field, Position& value);  // as PositionText

    // Values that stand for nothing here: written as given, read over.
    void SkipText(std::string_view field, std::string value = {});
    void SkipNumber(std::string_view field, std::int64_t value = 0);

    // Throws UserError that names file, line, record, what is wrong and what to do.
    [[noreturn]] void Fail(const std::string& fault, const char* advice = kDamaged) const;
    static constexpr const char* kDamaged =
        "the saved game is damaged and stays as it is: put a good copy in its place, or move it away to play the game "
        "from its start";

  protected:
    virtual std::string Sentence(const std::string& fault, const char* advice) const = 0;
    virtual void Whole(std::string_view field, std::int64_t& value, std::int64_t low, std::int64_t high) = 0;

  private:
    template <class T>
    static constexpr std::int64_t Lowest() {
        if constexpr (std::is_integral_v<T>) return static_cast<std::int64_t>(std::numeric_limits<T>::min());
        return 0;
    }
    template <class T>
    static constexpr std::int64_t Highest() {
        if constexpr (std::is_integral_v<T>) {
            if constexpr (sizeof(T) < 8) return static_cast<std::int64_t>(std::numeric_limits<T>::max());
        }
        return std::numeric_limits<std::int64_t>::max();
    }
};

class SaveWriter final : public SaveFields {
  public:
    bool Reading() const override { return false; }
    void Begin(const std::string& record) override;
    void End() override;
    void Text(std::string_view field, std::string& value) override;
    void Real(std::string_view field, double& value) override;

    const std::string& Written() const { return text_; }

  private:
    std::string Sentence(const std::string& fault, const char* advice) const override;
    void Whole(std::string_view field, std::int64_t& value, std::int64_t low, std::int64_t high) override;
    void Comma();

    std::string text_, record_;
    bool first_ = true;
};

class SaveReader final : public SaveFields {
  public:
    // text must outlive the reader; name is the file's, for messages.
    SaveReader(std::string_view text, std::string name) : text_(text), name_(std::move(name)) {}

    bool Reading() const override { return true; }
    void Begin(const std::string& record) override;
    void End() override;
    void Text(std::string_view field, std::string& value) override;
    void Real(std::string_view field, double& value) override;

    // No line is left.
    bool AtEnd() const { return at_ >= text_.size(); }
    // What has been read so far, whole lines.
    std::string_view Read() const { return text_.substr(0, at_); }

  private:
    std::string Sentence(const std::string& fault, const char* advice) const override;
    void Whole(std::string_view field, std::int64_t& value, std::int64_t low, std::int64_t high) override;
    std::string_view Plain(std::string_view field);
    void Comma(std::string_view field);

    std::string_view text_, left_;  // left_: what of the line isn't read yet
    std::string name_, record_;
    std::size_t at_ = 0;
    int line_ = 0;
    bool first_ = true;
};

// A fingerprint of a text, by which a file is known to be as it was written.
std::uint64_t SaveChecksum(std::string_view text);

}  // namespace tarvane
