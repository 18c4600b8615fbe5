#include "engine/archive/checksum.h"

#include <algorithm>

namespace Vorn {

namespace {

std::uint32_t Fold(std::uint32_t sum) {
    return (sum & 0xFFFF) + (sum >> 16);
}

} // namespace

std::uint32_t AddFletcher(const std::uint32_t* data, std::size_t count) {
    // As many words as 32-bit sums bear without overflow; always whole units.
    constexpr std::size_t kBlockUnits = 360 / 2;
    std::uint32_t first = 0xFFFF;
    std::uint32_t second = 0xFFFF;
    while (count > 0) {
        const std::size_t block = std::min(count, kBlockUnits);
        for (const std::uint32_t* end = data + block; data != end; ++data) {
            first += *data & 0xFFFF;
            second += first;
            first += *data >> 16;
            second += first;
        }
        first = Fold(first);
        second = Fold(second);
        count -= block;
    }
    return Fold(second) << 16 | Fold(first);
}

} // namespace Vorn
