#include "core/columntype.h"

#include <fmt/core.h>

#include <array>
#include <cmath>
#include <limits>

#include "base/rounding.h"
#include "base/text.h"

namespace tarvane {

namespace {

struct KindName {
    ColumnKind kind;
    std::string_view name;
};
constexpr std::array<KindName, 7> kKindNames{{{ColumnKind::Boolean, "BOOLEAN"},
                                              {ColumnKind::Byte, "BYTE"},
                                              {ColumnKind::Integer, "INTEGER"},
                                              {ColumnKind::Long, "LONG"},
                                              {ColumnKind::Double, "DOUBLE"},
                                              {ColumnKind::Text, "TEXT"},
                                              {ColumnKind::Date, "DATE"}}};

[[noreturn]] void Misfit(const std::string& where, std::string_view text, std::string_view wanted) {
    throw DatabaseError(DatabaseError::kDataType, fmt::format("{}: \"{}\" is not {}.", where, text, wanted));
}

std::string ValueText(const Value& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
    if (const auto* number = std::get_if<double>(&value)) return FormatDouble(*number);
    return std::get<std::string>(value);
}

double ToDouble(const Value& value, const std::string& where) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
    if (const auto* number = std::get_if<double>(&value)) {
        if (!std::isfinite(*number)) Misfit(where, FormatDouble(*number), "a finite number");
        return *number;
    }
    const std::optional<double> number = ParseDouble(std::get<std::string>(value));
    if (!number) Misfit(where, std::get<std::string>(value), "a number");
    return *number;
}

std::int64_t ToWhole(const Value& value, std::int64_t low, std::int64_t high, const std::string& where) {
    std::int64_t whole = 0;
    if (const auto* given = std::get_if<std::int64_t>(&value)) {
        whole = *given;
    } else {
        const double number = ToDouble(value, where);
        // Past these the conversion to a whole number isn't defined; the range check below tells the user.
        whole = std::abs(number) < 1e15 ? RoundHalfEven(number) : std::numeric_limits<std::int64_t>::max();
    }
    if (whole < low || whole > high)
        throw DatabaseError(DatabaseError::kOverflow, fmt::format("{}: {} is outside the range {} to {} of the column.",
                                                                  where, ValueText(value), low, high));
    return whole;
}

bool IsIsoDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return false;
    const auto year = ParseInt(text.substr(0, 4));
    const auto month = ParseInt(text.substr(5, 2));
    const auto day = ParseInt(text.substr(8, 2));
    return year && month && day && *month >= 1 && *month <= 12 && *day >= 1 && *day <= 31;
}

}  // namespace

ColumnType ParseColumnType(std::string_view declared, bool primaryKey) {
    const std::size_t bracket = declared.find('(');
    const std::string_view name = Trim(declared.substr(0, bracket));
    ColumnType type;
    for (const KindName& entry : kKindNames)
        if (EqualsIgnoreCase(entry.name, name)) type.kind = entry.kind;
    if (type.kind == ColumnKind::Integer && primaryKey) type.kind = ColumnKind::Counter;
    if (type.kind == ColumnKind::Text && bracket != std::string_view::npos)
        type.size =
            static_cast<int>(ParseInt(declared.substr(bracket + 1, declared.find(')') - bracket - 1)).value_or(0));
    return type;
}

std::string DeclareColumnType(ColumnType type) {
    if (type.kind == ColumnKind::Counter) return "INTEGER PRIMARY KEY AUTOINCREMENT";
    if (type.kind == ColumnKind::Text && type.size > 0) return fmt::format("TEXT({})", type.size);
    for (const KindName& entry : kKindNames)
        if (entry.kind == type.kind) return std::string(entry.name);
    return "TEXT";
}

Value ConvertTo(ColumnType type, const Value& value, const std::string& where) {
    if (std::holds_alternative<std::monostate>(value)) return value;
    switch (type.kind) {
        case ColumnKind::Counter:
        case ColumnKind::Long: {
            constexpr std::int64_t kLimit = std::numeric_limits<std::int32_t>::max();
            return ToWhole(value, -kLimit - 1, kLimit, where);
        }
        case ColumnKind::Boolean: return std::int64_t{ToDouble(value, where) != 0 ? -1 : 0};
        case ColumnKind::Byte: return ToWhole(value, 0, 255, where);
        case ColumnKind::Integer: return ToWhole(value, -32768, 32767, where);
        case ColumnKind::Double: return ToDouble(value, where);
        case ColumnKind::Date: {
            std::string text = ValueText(value);
            if (!IsIsoDate(text)) Misfit(where, text, "a date written yyyy-mm-dd");
            return text;
        }
        case ColumnKind::Text: break;
    }
    std::string text = ValueText(value);
    if (type.size > 0) text = std::string(Utf8Truncate(text, static_cast<std::size_t>(type.size)));
    return text;
}

}  // namespace tarvane
