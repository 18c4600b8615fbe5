#pragma once

#include <string>
#include <string_view>

namespace Vorn {

// UTF-8 as a terminal can show it on one line: a control character becomes its picture, what is malformed or changes
// the direction of writing becomes U+FFFD.
void AppendVisible(std::string& out, std::string_view text);

// The text as well-formed UTF-8.
std::string WellFormed(std::string_view text);

// One character in front of a text as it is shown: its UTF-8, and the number of columns it fills. A tab fills four.
struct VisibleCharacter {
    std::string text;
    int width;
    // Bytes that it takes from the text.
    std::size_t length;
};

// The first character of a text that is not empty.
VisibleCharacter FirstVisible(std::string_view text);

} // namespace Vorn
