#pragma once

#include <string>
#include <string_view>

#include "core/database.h"

namespace tarvane {

// The types a column can be declared with. A Counter is a key that the store gives out.
enum class ColumnKind { Counter, Boolean, Byte, Integer, Long, Double, Text, Date };

struct ColumnType {
    ColumnKind kind = ColumnKind::Text;
    int size = 0;  // TEXT: characters at most; 0 is no limit
    friend bool operator==(const ColumnType&, const ColumnType&) = default;
};

// BOOLEAN, BYTE, INTEGER (16 bit), LONG, DOUBLE, TEXT, TEXT(n) and DATE; a Counter is an INTEGER PRIMARY KEY. Anything
// else is taken as TEXT without a limit.
ColumnType ParseColumnType(std::string_view declared, bool primaryKey);
std::string DeclareColumnType(ColumnType type);

// The value as a column of this type holds it: whole numbers rounded half to even, texts cut, booleans -1 or 0. Null
// stays Null. where names file, table and column for the DatabaseError of a value that doesn't fit.
Value ConvertTo(ColumnType type, const Value& value, const std::string& where);

}  // namespace tarvane
