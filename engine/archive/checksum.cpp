#include "engine/archive/checksum.h"

#include <algorithm>

namespace Vorn {

namespace {

// Adds the carries of a sum of 16-bit words: 0x00020003 becomes 5.
std::uint32_t Fold(std::uint32_t sum) {
    return (sum & 0xFFFF) + (sum >> 16);
}

} // namespace

std::uint32_t AddFletcher(const std::uint32_t* data, std::size_t count) {
    // So many words do not overflow sums of 32 bits.
    constexpr std::size_t kBlockWords = 360;
    constexpr std::size_t kBlockUnits = kBlockWords / 2;
    static_assert(std::uint64_t{kBlockWords + 1} * (kBlockWords + 2) / 2 * 0xFFFF <= 0xFFFFFFFF);
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
