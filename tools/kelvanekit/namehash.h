#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace Vorn {

// The hash of a name (FNV-1a) is the same in every build. Each letter is taken as `project` gives it.
template <class Project = std::identity>
constexpr std::uint64_t HashOfName(std::string_view name, Project project = {}) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char letter : name) {
        hash = (hash ^ static_cast<unsigned char>(project(letter))) * 1099511628211U;
    }
    return hash;
}

} // namespace Vorn
