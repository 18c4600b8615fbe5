#include "engine/render/mesh/cachedvertexindices.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace Vorn {

namespace {

using Vertices = std::span<const Mesh::Vertex>;

// The cosine, rounded to 32 bits, of three eighths of pi.
constexpr float kLeastCosine = std::bit_cast<float>(0x3EC3EF14U);

float RootOf(float square) {
    return static_cast<float>(std::sqrt(static_cast<double>(square)));
}

// A vertex while it is sorted: from the highest bits down its key, its index, and one bit for each direction that it
// faces. So entries are ordered by key, and by index if their keys are equal.
using Entry = std::uint64_t;

constexpr int kKeyShift = 32;
// The sign of a key is never set.
constexpr int kKeyBits = 31;
// The most bits that one pass sorts by.
constexpr int kRadixBits = 11;
constexpr int kIndexShift = Mesh::Data::kDirectionCount;
constexpr std::size_t kMostVertices = std::size_t{1} << (kKeyShift - kIndexShift);

// The directions whose lists are sorted by the same key.
struct KeyGroup {
    int firstDirection;
    int endDirection;
    float Vector3::*axis;
};

constexpr KeyGroup kUpDownLeftRight = {0, 4, &Vector3::z};
constexpr KeyGroup kFrontBack = {4, 6, &Vector3::x};

template <KeyGroup group>
std::uint32_t FacedDirections(const Vector3& normal) {
    std::uint32_t faced = 0;
    // The cosine of the opposite direction is exactly the negative one.
    for (int i = group.firstDirection; i < group.endDirection; i += 2) {
        const Vector3& axis = kDirections[i].axis;
        const float cosine = normal.x * axis.x + normal.y * axis.y + normal.z * axis.z;
        faced |= static_cast<std::uint32_t>(cosine >= kLeastCosine) << i;
        faced |= static_cast<std::uint32_t>(-cosine >= kLeastCosine) << (i + 1);
    }
    return faced;
}

// Keys are never negative, so that they can be sorted by their bits: 1.0f is 0x3F800000 and 2.0f is 0x40000000. NaN
// comes last.
std::uint32_t KeyOf(float coordinate, float radius) {
    constexpr std::uint32_t kLast = 0x7FFFFFFF;
    const float difference = radius - coordinate;
    const float key = RootOf(difference * difference);
    return std::isnan(key) ? kLast : std::bit_cast<std::uint32_t>(key);
}

// Sorts entries by the `bits` bits from `shift` on; equal ones keep their order.
void RadixPass(std::span<const Entry> from, Entry* to, int shift, int bits) {
    std::array<std::uint32_t, std::size_t{1} << kRadixBits> places{};
    const Entry mask = (Entry{1} << bits) - 1;
    for (const Entry entry : from) {
        ++places[entry >> shift & mask];
    }
    std::uint32_t place = 0;
    for (std::uint32_t& count : places) {
        place += std::exchange(count, place);
    }
    for (const Entry entry : from) {
        to[places[entry >> shift & mask]++] = entry;
    }
}

// Sorts entries, which must be in the order of their indices. Both arrays are overwritten.
std::span<const Entry> SortByKey(std::span<Entry> entries, std::span<Entry> scratch) {
    constexpr std::size_t kWorthRadix = 1024;
    static_assert(kRadixBits + 10 + 10 == kKeyBits);
    if (entries.size() < kWorthRadix) {
        std::sort(entries.begin(), entries.end());
        return entries;
    }
    RadixPass(entries, scratch.data(), kKeyShift, kRadixBits);
    RadixPass(scratch, entries.data(), kKeyShift + kRadixBits, 10);
    RadixPass(entries, scratch.data(), kKeyShift + kRadixBits + 10, 10);
    return scratch;
}

// Visits the vertices that face a direction of a group, in the order of their keys. A large mesh is sorted in slices,
// each one a range of keys. There are at most a few slices, so that sorting needs little memory compared with the mesh.
class KeySorter {
public:
    KeySorter(Vertices _vertices, float _radius) : vertices(_vertices), radius(_radius) {}

    // Calls `visit` with index and faced directions.
    template <KeyGroup group, class Visit>
    void ForEach(Visit visit) {
        if (vertices.size() <= kMostUnsliced) {
            MakeRoom(vertices.size());
            VisitSlice<group>(0, kBins, visit);
            return;
        }
        const std::vector<std::size_t> counts = AssignBins<group>();
        const std::size_t room =
            std::max({kLeastRoom, vertices.size() / kMostSlices, *std::max_element(counts.begin(), counts.end())});
        MakeRoom(room);
        for (std::uint32_t bin = 0; bin < kBins;) {
            const std::uint32_t first = bin;
            std::size_t count = 0;
            while (bin < kBins && count + counts[bin] <= room) {
                count += counts[bin++];
            }
            VisitSlice<group>(first, bin, visit);
        }
    }

private:
    // A bin is a range of keys by their upper bits.
    static constexpr int kBinShift = kKeyShift + 18;
    static constexpr std::uint32_t kBins = 1U << (kKeyShift + kKeyBits - kBinShift);
    static constexpr std::uint16_t kNoBin = kBins;
    static_assert(kNoBin == kBins);
    static constexpr std::size_t kMostUnsliced = std::size_t{1} << 18;
    static constexpr std::size_t kLeastRoom = std::size_t{1} << 17;
    static constexpr std::size_t kMostSlices = 16;
    static constexpr Entry kFacedMask = (Entry{1} << kIndexShift) - 1;
    static constexpr Entry kIndexMask = (Entry{1} << (kKeyShift - kIndexShift)) - 1;

    // 0 for a vertex that faces no direction of the group.
    template <KeyGroup group>
    Entry EntryOf(std::size_t i) const {
        const Mesh::Vertex& vertex = vertices[i];
        const Entry faced = FacedDirections<group>(vertex.normal);
        return faced == 0 ? 0
                          : Entry{KeyOf(vertex.position.*group.axis, radius)} << kKeyShift | i << kIndexShift | faced;
    }

    // Determines the bin of each vertex, and the number of vertices in each bin.
    template <KeyGroup group>
    std::vector<std::size_t> AssignBins() {
        std::vector<std::size_t> counts(kBins);
        if (bins == nullptr) {
            bins = std::make_unique_for_overwrite<std::uint16_t[]>(vertices.size());
        }
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            bins[i] = kNoBin;
            if (const Entry entry = EntryOf<group>(i); entry != 0) {
                bins[i] = static_cast<std::uint16_t>(entry >> kBinShift);
                ++counts[bins[i]];
            }
        }
        return counts;
    }

    void MakeRoom(std::size_t room) {
        if (room > capacity) {
            capacity = room;
            entries = std::make_unique_for_overwrite<Entry[]>(room);
            scratch = std::make_unique_for_overwrite<Entry[]>(room);
        }
    }

    // There must be room for the vertices in the bins from `first` to `end`.
    template <KeyGroup group, class Visit>
    void VisitSlice(std::uint32_t first, std::uint32_t end, Visit visit) {
        std::size_t count = 0;
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            if (bins == nullptr || (bins[i] >= first && bins[i] < end)) {
                const Entry entry = EntryOf<group>(i);
                entries[count] = entry;
                count += entry != 0 ? 1 : 0;
            }
        }
        for (const Entry entry : SortByKey({entries.get(), count}, {scratch.get(), count})) {
            visit(static_cast<std::int32_t>(entry >> kIndexShift & kIndexMask),
                  static_cast<std::uint32_t>(entry & kFacedMask));
        }
    }

    Vertices vertices;
    float radius;
    std::unique_ptr<std::uint16_t[]> bins;
    std::size_t capacity = 0;
    std::unique_ptr<Entry[]> entries;
    std::unique_ptr<Entry[]> scratch;
};

// A list that skips vertices too close to the last one in it. At first that is vertex 0, even if it is not in the list.
class ThinnedList {
public:
    ThinnedList(Vertices _vertices, float radius, Mesh::Data::VertexIndexVector& _list)
        : vertices(_vertices), threshold(radius * 0.01f), list(_list) {}

    void Add(std::int32_t index) {
        if (index != last && threshold > DistanceToLast(index)) {
            return;
        }
        list.Append(index);
        last = index;
    }

private:
    float DistanceToLast(std::int32_t index) const {
        const Vector3& from = vertices[static_cast<std::size_t>(last)].position;
        const Vector3& to = vertices[static_cast<std::size_t>(index)].position;
        const Vector3 step = {to.x - from.x, to.y - from.y, to.z - from.z};
        return RootOf(step.x * step.x + step.y * step.y + step.z * step.z);
    }

    Vertices vertices;
    float threshold;
    std::int32_t last = 0;
    Mesh::Data::VertexIndexVector& list;
};

} // namespace

void CacheVertexIndices(const DynamicArray<Mesh::Vertex>& vertices, float boundingRadius,
                        FixedArray<Mesh::Data::VertexIndexVector, Mesh::Data::kDirectionCount>& lists) {
    const Vertices all(vertices.begin(), vertices.end());
    // More would be gigabytes of vertices, and count as a failed allocation.
    if (all.size() > kMostVertices) {
        EndAbnormally();
    }
    const auto thinned = [&](int i) { return ThinnedList(all, boundingRadius, lists[i]); };
    for (Mesh::Data::VertexIndexVector& list : lists) {
        list.Clear();
        list.Reserve(std::max(list.Capacity(), vertices.Size()));
    }
    ThinnedList sinks[] = {thinned(0), thinned(1), thinned(2), thinned(3), thinned(4), thinned(5)};
    KeySorter sorter(all, boundingRadius);
    const auto addToLists = [&](std::int32_t index, std::uint32_t faced) {
        for (; faced != 0; faced &= faced - 1) {
            sinks[std::countr_zero(faced)].Add(index);
        }
    };
    sorter.ForEach<kUpDownLeftRight>(addToLists);
    sorter.ForEach<kFrontBack>(addToLists);
}

} // namespace Vorn
