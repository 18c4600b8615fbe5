#include "tools/kelvanekit/fileuri.h"

#include "tools/kelvanekit/filename.h"

#include <charconv>

namespace Vorn {

namespace {
constexpr std::string_view kScheme = "file://";
}

std::string EscapeUri(std::string_view name) {
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string uri;
    for (const char byte : name) {
        if (kPlain.find(byte) != std::string_view::npos) {
            uri += byte;
        } else {
            uri += {'%', kDigits[static_cast<unsigned char>(byte) >> 4], kDigits[byte & 15]};
        }
    }
    return uri;
}

std::string UriOfFile(const std::string& file) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(PathOf(file), error).lexically_normal();
    const std::u8string generic = path.generic_u8string();
    const std::string name(generic.begin(), generic.end());
    return std::string(kScheme) + (name.starts_with('/') ? "" : "/") + EscapeUri(name);
}

std::string FileOfUri(std::string_view uri) {
    if (!uri.starts_with(kScheme)) {
        return {};
    }
    // The name of a host ends with the first slash.
    uri.remove_prefix(std::min(uri.find('/', kScheme.size()), uri.size()));
    std::string name;
    for (std::size_t i = 0; i < uri.size(); ++i) {
        unsigned byte = 0;
        const char* const digits = uri.data() + i + 1;
        if (uri[i] == '%' && i + 2 < uri.size() && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            name += static_cast<char>(byte);
            i += 2;
        } else {
            name += uri[i];
        }
    }
#ifdef _WIN32
    // A drive follows the slash.
    if (name.size() > 2 && name[2] == ':') {
        name.erase(0, 1);
    }
#endif
    return name;
}

} // namespace Vorn
