#pragma once

#include <filesystem>
#include <string>

namespace Vorn {

// Names of files are UTF-8 where the platform has names of 16-bit units, and the platform's bytes elsewhere.

#ifdef _WIN32

inline std::filesystem::path PathOf(const std::string& name) {
    return {std::u8string(name.begin(), name.end())};
}
inline std::string NameOf(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

#else

inline std::filesystem::path PathOf(const std::string& name) {
    return {name};
}
inline std::string NameOf(const std::filesystem::path& path) {
    return path.native();
}

#endif

} // namespace Vorn
