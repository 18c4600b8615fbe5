#include "tools/kelvanekit/check/contentdiff.h"

#include <algorithm>
#include <cstdint>

namespace Vorn {

namespace {

// How many pairs of entries two lists may have, in what remains of them between entries that are the same at either
// end, to be aligned. The entries of longer ones are compared in their order.
constexpr std::size_t kMostPairs = 4000000;

// How far apart the same key is looked for.
constexpr std::size_t kFarthest = 4000;

// A field with all below it, or all fields of a list's entry.
struct Item {
    std::size_t begin;
    std::size_t end;
    std::size_t hash;
    bool isEntry;
};

using Items = std::vector<Item>;

// The fields of one of the two contents.
class Side {
public:
    explicit Side(const FieldReader* _reader) : reader(_reader) {}

    std::size_t Size() const { return reader == nullptr ? 0 : reader->Asks().size(); }
    const AskedField& At(std::size_t ask) const { return reader->Asks()[ask]; }
    std::string_view ValueAt(std::size_t ask) const { return reader->KeptValue(At(ask)); }
    std::string PathAt(std::size_t ask) const { return PathOf(reader->Asks(), static_cast<std::int32_t>(ask)); }

    // The fields that stand side by side in a range, with each entry of a list as one; those of the list `outer`, which
    // may be kNone, are single fields.
    Items ItemsIn(std::size_t begin, std::size_t end, std::int32_t outer) const {
        Items items;
        while (begin < end) {
            const bool isEntry = At(begin).list != kNone && At(begin).list != outer;
            std::size_t next = begin + 1;
            while (next < end && BelongsTo(begin, next, isEntry)) {
                ++next;
            }
            items.push_back({begin, next, HashOf(begin, next), isEntry});
            begin = next;
        }
        return items;
    }

    // What an entry is called by: its first value.
    std::string_view NameOf(const Item& item) const {
        for (std::size_t ask = item.begin; ask < item.end; ++ask) {
            if (!ValueAt(ask).empty()) {
                return ValueAt(ask);
            }
        }
        return {};
    }

private:
    bool BelongsTo(std::size_t first, std::size_t ask, bool isEntry) const {
        const AskedField& head = At(first);
        const AskedField& field = At(ask);
        if (field.depth != head.depth || !isEntry) {
            return field.depth > head.depth;
        }
        // Entries of a list whose count is here are below it.
        return (field.list == head.list && field.entry == head.entry) || field.list >= static_cast<std::int32_t>(first);
    }

    std::size_t HashOf(std::size_t begin, std::size_t end) const {
        std::size_t hash = 0;
        for (std::size_t ask = begin; ask < end; ++ask) {
            hash = hash * 31 + std::hash<std::u16string_view>()(At(ask).label);
            hash = hash * 31 + std::hash<std::string_view>()(ValueAt(ask));
        }
        return hash;
    }

    const FieldReader* reader;
};

class FieldComparison {
public:
    FieldComparison(const FieldReader* _before, const FieldReader* _after, const OnDifference& _onDifference)
        : before(_before), after(_after), onDifference(_onDifference) {}

    void Run() { CompareItems(before.ItemsIn(0, before.Size(), kNone), after.ItemsIn(0, after.Size(), kNone)); }

private:
    using Place = Items::const_iterator;

    void CompareItems(const Items& old, const Items& now) {
        Place left = old.begin();
        Place right = now.begin();
        while (left != old.end() || right != now.end()) {
            const bool isLeftList = left != old.end() && left->isEntry;
            const bool isRightList = right != now.end() && right->isEntry;
            if (isLeftList || isRightList) {
                const Place leftEnd = EndOfList(before, left, old.end());
                const Place rightEnd = EndOfList(after, right, now.end());
                CompareEntries({left, leftEnd}, {right, rightEnd});
                left = leftEnd;
                right = rightEnd;
            } else if (left != old.end() && right != now.end() && IsSameKey(*left, *right)) {
                Compare(*left++, *right++);
            } else {
                PassOver(left, old.end(), right, now.end());
            }
        }
    }

    // The entries of one list stand side by side.
    static Place EndOfList(const Side& side, Place first, Place end) {
        Place last = first;
        while (last != end && last->isEntry && side.At(last->begin).list == side.At(first->begin).list) {
            ++last;
        }
        return last;
    }

    bool IsSameKey(const Item& old, const Item& now) const {
        return before.At(old.begin).label == after.At(now.begin).label &&
               before.At(old.begin).kind == after.At(now.begin).kind;
    }

    // Keys that only one of the two has, up to the next one in common or to a list.
    void PassOver(Place& left, Place leftEnd, Place& right, Place rightEnd) {
        for (std::size_t distance = 1; distance < kFarthest; ++distance) {
            const auto far = static_cast<std::ptrdiff_t>(distance);
            if (right != rightEnd && leftEnd - left > far && IsSameKey(left[far], *right)) {
                std::for_each(left, left + far, [&](const Item& item) { Tell(before, item, true); });
                left += far;
                return;
            }
            if (left != leftEnd && rightEnd - right > far && IsSameKey(*left, right[far])) {
                std::for_each(right, right + far, [&](const Item& item) { Tell(after, item, false); });
                right += far;
                return;
            }
        }
        if (left != leftEnd) {
            Tell(before, *left++, true);
        }
        if (right != rightEnd) {
            Tell(after, *right++, false);
        }
    }

    void Compare(const Item& old, const Item& now) {
        if (old.hash == now.hash) {
            return;
        }
        if (old.end > old.begin + 1 || now.end > now.begin + 1) {
            // The first field of a group stands above the others, that of an entry may stand beside them.
            const bool isAbove = IsGroup(before.At(old.begin).kind);
            const std::size_t skipped = isAbove ? 1 : 0;
            CompareItems(before.ItemsIn(old.begin + skipped, old.end, isAbove ? kNone : before.At(old.begin).list),
                         after.ItemsIn(now.begin + skipped, now.end, isAbove ? kNone : after.At(now.begin).list));
            return;
        }
        const std::string_view left = before.ValueAt(old.begin);
        const std::string_view right = after.ValueAt(now.begin);
        // A count is told by its entries.
        if (left != right && !(before.At(old.begin).isCount && before.At(old.begin).value >= 0)) {
            onDifference({after.PathAt(now.begin), &left, &right});
        }
    }

    static bool IsGroup(FieldKind kind) {
        return kind == FieldKind::Record || kind == FieldKind::Matrix33 || kind == FieldKind::Matrix44;
    }

    // A field, with all below it, that one of the two lacks.
    void Tell(const Side& side, const Item& item, bool isRemoved) {
        for (std::size_t ask = item.begin; ask < item.end; ++ask) {
            const std::string_view value = side.ValueAt(ask);
            if (!value.empty() || item.end == item.begin + 1) {
                onDifference({side.PathAt(ask), isRemoved ? &value : nullptr, isRemoved ? nullptr : &value});
            }
        }
    }

    struct Range {
        Place begin;
        Place end;

        std::size_t Size() const { return static_cast<std::size_t>(end - begin); }
    };

    void CompareEntries(Range old, Range now) {
        while (old.begin != old.end && now.begin != now.end && old.begin->hash == now.begin->hash) {
            ++old.begin;
            ++now.begin;
        }
        while (old.begin != old.end && now.begin != now.end && (old.end - 1)->hash == (now.end - 1)->hash) {
            --old.end;
            --now.end;
        }
        if (old.Size() * now.Size() <= kMostPairs) {
            AlignEntries(old, now);
            return;
        }
        while (old.begin != old.end && now.begin != now.end) {
            Compare(*old.begin++, *now.begin++);
        }
        std::for_each(old.begin, old.end, [&](const Item& item) { Tell(before, item, true); });
        std::for_each(now.begin, now.end, [&](const Item& item) { Tell(after, item, false); });
    }

    // What it costs to make one entry of the other; to take one out or to put one in costs kAlone.
    static constexpr int kAlone = 4;
    int CostOf(const Item& old, const Item& now) const {
        if (old.hash == now.hash) {
            return 0;
        }
        return before.NameOf(old) == after.NameOf(now) ? 2 : 7;
    }

    // The cheapest way from one list to the other.
    void AlignEntries(Range old, Range now) {
        const std::size_t width = now.Size() + 1;
        std::vector<int> costs((old.Size() + 1) * width);
        for (std::size_t i = old.Size() + 1; i-- > 0;) {
            for (std::size_t k = width; k-- > 0;) {
                int& cost = costs[i * width + k];
                const int left = i < old.Size() ? costs[(i + 1) * width + k] + kAlone : INT32_MAX;
                const int right = k + 1 < width ? costs[i * width + k + 1] + kAlone : INT32_MAX;
                const int both = i < old.Size() && k + 1 < width ? costs[(i + 1) * width + k + 1] +
                                                                       CostOf(old.begin[static_cast<std::ptrdiff_t>(i)],
                                                                              now.begin[static_cast<std::ptrdiff_t>(k)])
                                                                 : INT32_MAX;
                const int least = std::min({left, right, both});
                cost = least == INT32_MAX ? 0 : least;
            }
        }
        std::size_t i = 0;
        std::size_t k = 0;
        while (i < old.Size() || k + 1 < width) {
            const Place left = old.begin + static_cast<std::ptrdiff_t>(i);
            const Place right = now.begin + static_cast<std::ptrdiff_t>(k);
            const int cost = costs[i * width + k];
            if (i < old.Size() && k + 1 < width && cost == costs[(i + 1) * width + k + 1] + CostOf(*left, *right)) {
                Compare(*left, *right);
                ++i;
                ++k;
            } else if (i < old.Size() && cost == costs[(i + 1) * width + k] + kAlone) {
                Tell(before, *left, true);
                ++i;
            } else {
                Tell(after, *right, false);
                ++k;
            }
        }
    }

    const Side before;
    const Side after;
    const OnDifference& onDifference;
};

} // namespace

void CompareFields(const FieldReader* before, const FieldReader* after, const OnDifference& onDifference) {
    FieldComparison(before, after, onDifference).Run();
}

} // namespace Vorn
