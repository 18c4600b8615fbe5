#pragma once

#include <array>
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

// The table of an enumeration whose rows are in a header, next to the one specialisation.
template <class Enum>
inline constexpr EnumTable kEnumTable = {};

// A row of an enumeration whose values are named.
template <class Enum>
struct EnumRow {
    Enum value;
    std::u16string_view text;
};

// The texts of rows of any kind that have one.
template <class Row, std::size_t N>
constexpr std::array<std::u16string_view, N> TextsOf(const Row (&rows)[N]) {
    std::array<std::u16string_view, N> texts;
    for (std::size_t i = 0; i < N; ++i) {
        texts[i] = rows[i].text;
    }
    return texts;
}

// The same of an enumeration with named values: does not compile unless each row is that of its value, up to `last`.
template <auto last, class Row, std::size_t N>
consteval std::array<std::u16string_view, N> TextsInOrder(const Row (&rows)[N]) {
    static_assert(static_cast<std::size_t>(last) + 1 == N, "one row for each value");
    for (std::size_t i = 0; i < N; ++i) {
        if (static_cast<std::size_t>(rows[i].value) != i) {
            throw "a row stands at the place of another value";
        }
    }
    return TextsOf(rows);
}

// The texts must outlive the table.
template <std::size_t N>
constexpr EnumTable MakeTable(const char* typeName, const std::array<std::u16string_view, N>& texts) {
    return {typeName, texts.data(), static_cast<std::int32_t>(N)};
}
template <std::size_t N>
constexpr EnumTable MakeTable(const char* typeName, const std::u16string_view (&texts)[N]) {
    return {typeName, texts, static_cast<std::int32_t>(N)};
}

// The number of a row at compile time, for long tables of which the program tests a few rows. An unknown text does not
// compile.
consteval std::int32_t RowNumber(const EnumTable& table, std::u16string_view text) {
    std::int32_t row = 0;
    while (table.rows[row] != text) {
        ++row;
    }
    return row;
}

template <class Enum>
consteval std::int32_t RowNumber(std::u16string_view text) {
    return RowNumber(kEnumTable<Enum>, text);
}

// A value without a row fires the check "false" and gives a null text.
std::u16string_view EnumToText(std::int32_t value, const EnumTable& table);

template <class Enum>
std::u16string_view EnumToText(Enum value) {
    return EnumToText(static_cast<std::int32_t>(value), kEnumTable<Enum>);
}

// The row of exactly this text, or -1, after a report unless the text is "Invalid".
std::int32_t EnumFromText(std::u16string_view text, const EnumTable& table);

} // namespace Vorn
