#include "engine/archive/listroom.h"

#include "engine/core/abnormalend.h"

#include <algorithm>

namespace Vorn {

namespace {
constexpr std::uint64_t kAlwaysGranted = std::uint64_t{64} << 20;
constexpr std::uint64_t kMostTimesTheSource = 64;
} // namespace

ListRoom::ListRoom(Archive& _archive, std::int32_t count, std::uint64_t elementSize) : archive(_archive) {
    const auto elements = static_cast<std::uint64_t>(std::max(count, 0));
    const std::uint64_t source = archive.GetSourceSize();
    archive.roomsOfLists += elements * elementSize;
    if (archive.roomsOfLists > std::max(kAlwaysGranted, kMostTimesTheSource * source)) {
        EndAbnormally();
    }
    const std::uint64_t held = std::max<std::uint64_t>(kShort, source / elementSize);
    likelyCount = static_cast<std::int32_t>(std::min(elements, held));
}

ListRoom::~ListRoom() {
    if (isOutermost) {
        archive.roomsOfLists = 0;
    }
}

} // namespace Vorn
