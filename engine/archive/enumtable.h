#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Vorn {

inline constexpr std::int32_t kInvalidEnum = -1;

// The texts of an enumeration, row i for the value i; -1 is "Invalid" in every one. The numbers never reach a file.
struct EnumTable {
    // As conversion messages name the enumeration.
    const char* typeName = nullptr;
    const std::u16string_view* rows = nullptr;
    std::int32_t rowCount = 0;
};

// The table of an enumeration; each has one specialisation beside its rows.
template <class Enum>
inline constexpr EnumTable kEnumTable = {};

// A table whose last row is that of `Last`.
template <auto Last, std::size_t N>
constexpr EnumTable MakeTable(const char* typeName, const std::u16string_view (&rows)[N]) {
    static_assert(static_cast<std::size_t>(Last) + 1 == N, "one row for each value");
    return {typeName, rows, static_cast<std::int32_t>(N)};
}

// A table of values that are only carried and need no names in the program.
template <std::size_t N>
constexpr EnumTable MakeTable(const char* typeName, const std::u16string_view (&rows)[N]) {
    return {typeName, rows, static_cast<std::int32_t>(N)};
}

// The number of a row, found while compiling, for the few of a long table that the program tests; an unknown text does
// not compile.
template <class Enum>
consteval std::int32_t RowNumber(std::u16string_view text) {
    const EnumTable& table = kEnumTable<Enum>;
    std::int32_t row = 0;
    while (table.rows[row] != text) {
        ++row;
    }
    return row;
}

// A value that is no row fires the check "false" and has no text (null).
std::u16string_view EnumToText(std::int32_t value, const EnumTable& table);

template <class Enum>
std::u16string_view EnumToText(Enum value) {
    return EnumToText(static_cast<std::int32_t>(value), kEnumTable<Enum>);
}

// The row of exactly this text, or -1, after a report unless the text is "Invalid".
std::int32_t EnumFromText(std::u16string_view text, const EnumTable& table);

} // namespace Vorn
