#pragma once

#include "tools/kelvanekit/describe/contenttrial.h"

namespace Vorn {

// A key that is to have a value: a choice on which other keys depend, or the count of a list.
struct WantedValue {
    std::string key;
    std::string text;
};

// Something that is wrong with a wanted value, in words.
struct WantedProblem {
    std::string text;
};

// A new content as a text file: all keys that stand there in any case with their defaults, and what the wanted values
// bring. A key that is wanted twice has two entries. Choices that would be reported have the first value that is not.
// The bytes are those that the converter writes. Throws WantedProblem.
std::string MakeContent(const ContentForm& form, const std::vector<WantedValue>& wanted);

} // namespace Vorn
