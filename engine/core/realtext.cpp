#include "engine/core/realtext.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Vorn {

namespace {

char* PutNotFinite(char* out, double value) {
    return std::copy_n(std::isnan(value) ? "nan" : "inf", 3, out);
}

} // namespace

char* PutFixed(char* out, double value, int places) {
    if (std::signbit(value)) {
        *out++ = '-';
    }
    if (!std::isfinite(value)) {
        return PutNotFinite(out, value);
    }
    return std::to_chars(out, out + kNumberTextCapacity - 1, std::fabs(value), std::chars_format::fixed, places).ptr;
}

} // namespace Vorn
