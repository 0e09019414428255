#include "savegame/savefields.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/error.h"
#include "base/text.h"

namespace tarvane {

namespace {

// What stands in the file, fit for a message: short, and nothing in it that doesn't print.
std::string Shown(std::string_view text) {
    constexpr std::size_t kLongest = 40;
    std::string shown(text.substr(0, kLongest));
    for (char& c : shown)
        if (c < ' ' || c > '~') c = '?';
    return text.size() > kLongest ? shown + "..." : shown;
}

}  // namespace

void SaveFields::Fail(const std::string& fault, const char* advice) const {
    throw UserError(Sentence(fault, advice));
}

void SaveFields::Word(std::string_view field, std::uint64_t& value) {
    std::string text = fmt::format("{:016x}", value);
    Text(field, text);
    if (!Reading()) return;
    std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text != fmt::format("{:016x}", value))
        Fail(fmt::format("{} is \"{}\" but must be 16 hexadecimal digits", field, Shown(text)));
}

void SaveFields::Flag(std::string_view field, bool& value) {
    std::string text = value ? "Y" : "N";
    Text(field, text);
    if (text != "Y" && text != "N") Fail(fmt::format("{} is \"{}\" but must be Y or N", field, Shown(text)));
    value = text == "Y";
}

void SaveFields::Letter(std::string_view field, char& value) {
    std::string text(1, value);
    Text(field, text);
    if (text.size() != 1) Fail(fmt::format("{} is \"{}\" but must be one letter", field, Shown(text)));
    value = text.front();
}

void SaveFields::Place(std::string_view field, Position& value) {
    std::string text(PositionText(value));
    Text(field, text);
    if (!Reading()) return;
    value = PositionFromText(text);
    if (PositionText(value) != text) Fail(fmt::format("{} is \"{}\", which is no position", field, Shown(text)));
}

void SaveFields::SkipText(std::string_view field, std::string value) {
    Text(field, value);
}

void SaveFields::SkipNumber(std::string_view field, std::int64_t value) {
    Number(field, value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
}

// --- Writing ---------------------------------------------------------------------------------------------------------

void SaveWriter::Begin(const std::string& record) {
    record_ = record;
    first_ = true;
}

void SaveWriter::End() {
    text_ += '\n';
}

void SaveWriter::Comma() {
    if (!first_) text_ += ',';
    first_ = false;
}

void SaveWriter::Text(std::string_view, std::string& value) {
    Comma();
    text_ += '"';
    for (const char c : value) {
        if (c == '"') text_ += '"';
        text_ += c == '\n' || c == '\r' ? ' ' : c;
    }
    text_ += '"';
}

void SaveWriter::Real(std::string_view, double& value) {
    Comma();
    text_ += FormatDouble(std::isfinite(value) ? value : 0);
}

void SaveWriter::Whole(std::string_view, std::int64_t& value, std::int64_t low, std::int64_t high) {
    Comma();
    text_ += std::to_string(std::clamp(value, low, high));
}

std::string SaveWriter::Sentence(const std::string& fault, const char*) const {
    return fmt::format("The game can't be saved: {}: {}.", record_, fault);
}

// --- Reading ---------------------------------------------------------------------------------------------------------

void SaveReader::Begin(const std::string& record) {
    record_ = record;
    first_ = true;
    ++line_;
    if (AtEnd()) Fail("the file is cut off before this line");
    const std::size_t end = std::min(text_.find('\n', at_), text_.size());
    left_ = text_.substr(at_, end - at_);
    at_ = std::min(end + 1, text_.size());
    if (!left_.empty() && left_.back() == '\r') left_.remove_suffix(1);
}

void SaveReader::End() {
    if (!left_.empty()) Fail("there is more on the line than belongs there");
}

void SaveReader::Comma(std::string_view field) {
    if (!first_) {
        if (left_.empty() || left_.front() != ',') Fail(fmt::format("{} is missing", field));
        left_.remove_prefix(1);
    }
    first_ = false;
}

void SaveReader::Text(std::string_view field, std::string& value) {
    Comma(field);
    if (left_.empty() || left_.front() != '"') Fail(fmt::format("{} is missing or has no quotes", field));
    value.clear();
    for (std::size_t i = 1; i < left_.size(); ++i) {
        if (left_[i] != '"') {
            value += left_[i];
        } else if (i + 1 < left_.size() && left_[i + 1] == '"') {
            value += '"';
            ++i;
        } else {
            left_.remove_prefix(i + 1);
            return;
        }
    }
    Fail(fmt::format("{} has no closing quote", field));
}

std::string_view SaveReader::Plain(std::string_view field) {
    Comma(field);
    const std::string_view value = left_.substr(0, left_.find(','));
    left_.remove_prefix(value.size());
    return value;
}

void SaveReader::Real(std::string_view field, double& value) {
    const std::string_view text = Plain(field);
    const auto number = ParseDouble(text);
    if (!number) Fail(fmt::format("{} is \"{}\" but must be a number", field, Shown(text)));
    value = *number;
}

void SaveReader::Whole(std::string_view field, std::int64_t& value, std::int64_t low, std::int64_t high) {
    const std::string_view text = Plain(field);
    const auto number = ParseInt(text);
    if (!number || *number < low || *number > high)
        Fail(fmt::format("{} is \"{}\" but must be a whole number from {} to {}", field, Shown(text), low, high));
    value = *number;
}

std::string SaveReader::Sentence(const std::string& fault, const char* advice) const {
    return fmt::format("{}, line {} ({}): {}; {}.", name_, line_, record_, fault, advice);
}

std::uint64_t SaveChecksum(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325ULL;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3ULL;
    return hash;
}

}  // namespace tarvane
