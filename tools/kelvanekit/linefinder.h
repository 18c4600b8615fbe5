#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Vorn {

// Finds lines of a text file by their numbers, in any order, but fastest from top to bottom. The bytes are UTF-8, or
// UTF-16 if a byte-order mark says so; a line ends with a line feed, with or without a carriage return in front.
class LineFinder {
public:
    explicit LineFinder(std::string_view bytes);

    // The line of that number, from 1, as UTF-8 without its end; malformed UTF-8 stays as it is. Empty if there is
    // none.
    std::string_view Line(std::int32_t number);

    bool Has(std::int32_t number);

private:
    enum class Encoding : std::uint8_t { Utf8, Utf16Little, Utf16Big };

    bool GoTo(std::int32_t number);
    std::size_t EndOf(std::size_t begin) const;
    char16_t UnitAt(std::size_t place) const;

    std::string_view text;
    Encoding encoding = Encoding::Utf8;
    std::int32_t current = 1;
    std::size_t place = 0;
    std::string converted;
};

// The column of a byte of a line in characters and in UTF-16 units, from 1; behind the end, that of the end.
std::int32_t CharacterColumn(std::string_view line, std::int32_t byte);
std::int32_t UnitColumn(std::string_view line, std::int32_t byte);

} // namespace Vorn
