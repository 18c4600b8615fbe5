#pragma once

#include "engine/core/report.h"
#include "engine/string/stringlibrary.h"

namespace Vorn {

// Text of at most N - 1 code units held inline, always terminated, empty at construction. The units after the
// terminator are not initialised, so that records with many texts are cheap to construct and to copy.
template <int N>
class FixedString {
    static_assert(N > 0, "BUFFER_SIZE > 0");

public:
    static constexpr int kCapacity = N;

    FixedString() { units[0] = u'\0'; }

    // A text that is too long is cut with the checks of Copy; a null text fires "s != NULL" and counts as empty.
    explicit FixedString(const char16_t* s) : FixedString() {
        CheckAssert(s != nullptr, "s != NULL");
        Assign(s != nullptr ? std::u16string_view(s) : std::u16string_view());
    }

    FixedString(const FixedString& other) { Take(other); }

    FixedString& operator=(const FixedString& other) {
        if (this != &other) {
            Take(other);
        }
        return *this;
    }

    // A text that is too long is cut with the checks of Copy.
    void Assign(std::u16string_view text) { Copy(Buffer(), text); }

    void Clear() { units[0] = u'\0'; }

    bool IsEmpty() const { return units[0] == u'\0'; }
    const char16_t* Units() const { return units; }
    std::u16string_view View() const { return TextIn(units, N); }
    StringBuffer Buffer() { return {units, N}; }

    friend bool operator==(const FixedString& left, const FixedString& right) { return left.View() == right.View(); }

private:
    void Take(const FixedString& other) {
        const std::u16string_view text = other.View();
        std::char_traits<char16_t>::copy(units, text.data(), text.size() + 1);
    }

    char16_t units[N];
};

} // namespace Vorn
