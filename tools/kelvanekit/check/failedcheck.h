#pragma once

#include <string>
#include <string_view>

namespace Vorn {

// Whether the expression of a check, or the sentence of a report, speaks of a key: by a member of that name, or of a
// list by the name behind "num".
bool SpeaksOf(std::string_view expression, std::u16string_view label, bool isCount);

// What a failed check tells an author.
std::string CheckMessage(std::string_view expression);

} // namespace Vorn
