#pragma once

#include <string_view>

namespace Vorn {

// Whether a pattern describes the whole of a text: "?" is any character, "*" any number of them, "[a-z]" and "[!a-z]"
// one of some, and all but "**" stay between two slashes. A bracket that is not closed stands for itself.
bool MatchesGlob(std::string_view pattern, std::string_view text);

// Whether a pattern names a file or folder: by its last name if there is no slash in the pattern, else by the whole
// name, or by what follows any slash in it.
bool ExcludesName(std::string_view pattern, std::string_view name);

} // namespace Vorn
