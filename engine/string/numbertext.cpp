#include "engine/string/numbertext.h"

#include <algorithm>
#include <bit>

namespace Vorn {

namespace {

char* PutUint(char* out, std::uint32_t value) {
    if (value < PlainNumber::kMillion) {
        return PlainNumber::PutUint(out, value);
    }
    return PlainNumber::PutThreeDigits(PutUint(out, value / 1000), value % 1000);
}

char* PutUint64(char* out, std::uint64_t value) {
    if (value <= UINT32_MAX) {
        return PutUint(out, static_cast<std::uint32_t>(value));
    }
    constexpr std::uint64_t kNineDigits = 1000000000;
    out = PutUint64(out, value / kNineDigits);
    auto rest = static_cast<std::uint32_t>(value % kNineDigits);
    for (char* cursor = out + 9; cursor != out; rest /= 10) {
        *--cursor = static_cast<char>('0' + rest % 10);
    }
    return out + 9;
}

} // namespace

char* PutInt(char* out, std::int32_t value) {
    auto magnitude = static_cast<std::uint32_t>(value);
    if (value < 0) {
        *out++ = '-';
        magnitude = 0 - magnitude;
    }
    return PutUint(out, magnitude);
}

char* PutInt64(char* out, std::int64_t value) {
    auto magnitude = static_cast<std::uint64_t>(value);
    if (value < 0) {
        *out++ = '-';
        magnitude = 0 - magnitude;
    }
    return PutUint64(out, magnitude);
}

char* PutHex64(char* out, std::uint64_t value) {
    const int digits = std::max(1, (static_cast<int>(std::bit_width(value)) + 3) / 4);
    for (char* cursor = out + digits; cursor != out; value >>= 4) {
        *--cursor = "0123456789abcdef"[value & 15];
    }
    return out + digits;
}

char* PutHex(char* out, std::uint32_t value) {
    return PutHex64(out, value);
}

char* PutFixed6(char* out, float value) {
    return PlainNumber::FitsFixed6(value) ? PlainNumber::PutFixed6(out, value)
                                          : PutFixed(out, static_cast<double>(value), 6);
}

} // namespace Vorn
