#pragma once

#include <string>
#include <string_view>

namespace Vorn {

// A reference of RFC 3986 for a name: all but the unreserved characters and the slash as escapes.
std::string EscapeUri(std::string_view name);

// The URI of a file, whose name may be relative, and the name of a file by its URI; empty for another scheme.
std::string UriOfFile(const std::string& file);
std::string FileOfUri(std::string_view uri);

} // namespace Vorn
