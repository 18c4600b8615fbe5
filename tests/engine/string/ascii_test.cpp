#include "engine/string/ascii.h"

#include <gtest/gtest.h>

#include <vector>

namespace Vorn {

namespace {

constexpr std::size_t kLongest = 40;

// Texts of all lengths, whole and with another unit at each place.
template <class Test>
void ForEachText(Test test) {
    std::u16string whole;
    for (std::size_t length = 0; length <= kLongest; whole += static_cast<char16_t>(u'!' + length++ * 7 % 90)) {
        test(whole);
        for (std::size_t at = 0; at < length; ++at) {
            for (const char16_t unit :
                 {u'\0', u'\t', u'\n', u'\x1F', u' ', u'\x7F', u'\x80', u'\xFF', u'\u0141', u'\u8041', u'\uFFFF'}) {
                std::u16string text = whole;
                text[at] = unit;
                test(text);
            }
        }
    }
}

TEST(Ascii, TextsAreNarrowedIfTheyArePlain) {
    ForEachText([](const std::u16string& text) {
        char slow[kLongest];
        char fast[kLongest + 1] = {};
        const bool isPlain = Ascii::NarrowEach(text.data(), text.size(), slow);
        EXPECT_EQ(NarrowAscii(text.data(), text.size(), fast), isPlain);
        if (isPlain) {
            EXPECT_EQ(std::string(fast, text.size()), std::string(slow, text.size()));
        }
        EXPECT_EQ(fast[text.size()], '\0') << "nothing is written after the text";
    });
}

TEST(Ascii, BytesAreComparedWithUnits) {
    std::string bytes;
    std::u16string units;
    for (std::size_t length = 0; length <= kLongest; ++length) {
        EXPECT_TRUE(EqualsAscii(bytes.data(), units));
        for (char& byte : bytes) {
            byte ^= 4;
            EXPECT_FALSE(EqualsAscii(bytes.data(), units)) << length;
            byte ^= 4;
        }
        bytes += static_cast<char>('a' + length % 26);
        units += static_cast<char16_t>(bytes.back());
    }
}

TEST(Ascii, UnitsAreFoundAtAnyPlace) {
    ForEachText([](const std::u16string& text) {
        for (const char16_t unit : {u'\0', u'"', u'\x80', u'\uFFFF'}) {
            const char16_t* end = text.data() + text.size();
            EXPECT_EQ(FindUnit(text.data(), end, unit), std::find(text.data(), end, unit));
        }
    });
}

// Up to and including the end that is looked for, if only plain text comes before it.
TEST(Ascii, BytesAreWidenedUpToAnEnd) {
    ForEachText([](const std::u16string& text) {
        std::vector<unsigned char> bytes(text.begin(), text.end());
        bytes.resize(text.size() + kWidenBlock);
        for (const char end : {'"', '\n'}) {
            const auto isOther = [&](unsigned char byte) { return byte == 0 || byte >= 0x80 || byte == '\n'; };
            const auto last = bytes.begin() + static_cast<std::ptrdiff_t>(text.size());
            const auto found = std::find(bytes.begin(), last, static_cast<unsigned char>(end));
            const bool isText = found != last && std::none_of(bytes.begin(), found, isOther);
            const auto expected = isText ? static_cast<std::size_t>(found - bytes.begin()) + 1 : 0;
            char16_t wide[kLongest + 2 * kWidenBlock];
            EXPECT_EQ(WidenUntil(bytes.data(), text.size(), wide, end), expected);
            EXPECT_TRUE(std::equal(wide, wide + expected, bytes.begin()));
        }
    });
#ifdef VORN_HAS_SSE2
    static_assert(Ascii::BitsBelowLowest(0b10100) == 0b0011 && Ascii::BitsBelowLowest(0) == ~0U);
#endif
}

} // namespace

} // namespace Vorn
