#pragma once

#include <cstddef>
#include <string_view>

namespace Vorn {

// A field's key. Binary forms ignore it, also a null one.
class Label : public std::u16string_view {
public:
    constexpr Label() = default;
    constexpr Label(std::u16string_view text) : std::u16string_view(text) {}

    // A literal, whose length is known at compile time.
    template <std::size_t N>
    constexpr Label(const char16_t (&text)[N]) : std::u16string_view(text, N - 1) {}
};

} // namespace Vorn
