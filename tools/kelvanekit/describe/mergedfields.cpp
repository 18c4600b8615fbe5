#include "tools/kelvanekit/describe/mergedfields.h"

#include <algorithm>

namespace Vorn {

namespace {

using Role = DescribedField::Role;
using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

// The longest list of pairs of like things in the order of both sides.
template <class IsLike>
Pairs LongestPairs(std::size_t leftCount, std::size_t rightCount, IsLike isLike) {
    Pairs pairs;
    std::size_t begin = 0;
    while (begin < std::min(leftCount, rightCount) && isLike(begin, begin)) {
        pairs.emplace_back(begin, begin);
        ++begin;
    }
    const std::size_t width = rightCount - begin + 1;
    std::vector<std::int32_t> lengths((leftCount - begin + 1) * width);
    const auto at = [&](std::size_t i, std::size_t k) -> std::int32_t& {
        return lengths[(i - begin) * width + (k - begin)];
    };
    for (std::size_t i = leftCount; i-- > begin;) {
        for (std::size_t k = rightCount; k-- > begin;) {
            at(i, k) = isLike(i, k) ? at(i + 1, k + 1) + 1 : std::max(at(i + 1, k), at(i, k + 1));
        }
    }
    for (std::size_t i = begin, k = begin; i < leftCount && k < rightCount;) {
        if (isLike(i, k)) {
            pairs.emplace_back(i++, k++);
        } else {
            ++(at(i + 1, k) >= at(i, k + 1) ? i : k);
        }
    }
    return pairs;
}

} // namespace

void MergedFields::Add(const Trial& trial) {
    Row row;
    for (const DescribedField& field : trial.fields) {
        row.push_back({field.likeness, kNone, field.value});
    }
    for (const std::size_t parent : trial.parents) {
        PairWithParent(row, rows[parent]);
    }
    RemoveDisorder(row);
    PlaceOthers(row, trial.fields);
    rows.push_back(std::move(row));
}

// Gives fields that the parent has too their places.
void MergedFields::PairWithParent(Row& row, const Row& parent) {
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (row[i].id == kNone) {
            open.push_back(i);
        }
    }
    const auto isLike = [&](std::size_t i, std::size_t k) { return row[open[i]].likeness == parent[k].likeness; };
    for (const auto& [i, k] : LongestPairs(open.size(), parent.size(), isLike)) {
        row[open[i]].id = parent[k].id;
    }
}

std::size_t MergedFields::PositionOf(std::int32_t id) const {
    return static_cast<std::size_t>(std::ranges::find(order, id, &Place::id) - order.begin());
}

// Two parents may give places in different orders, or one place twice.
void MergedFields::RemoveDisorder(Row& row) const {
    std::size_t next = 0;
    for (Entry& entry : row) {
        if (entry.id == kNone) {
            continue;
        }
        const std::size_t position = PositionOf(entry.id);
        if (position < next) {
            entry.id = kNone;
        } else {
            next = position + 1;
        }
    }
}

void MergedFields::PlaceOthers(Row& row, const DescribedFields& trial) {
    for (std::size_t begin = 0; begin < row.size();) {
        if (row[begin].id != kNone) {
            ++begin;
            continue;
        }
        std::size_t end = begin;
        while (end < row.size() && row[end].id == kNone) {
            ++end;
        }
        const std::size_t after = begin == 0 ? 0 : PositionOf(row[begin - 1].id) + 1;
        const std::size_t before = end == row.size() ? order.size() : PositionOf(row[end].id);
        PlaceGap(row, trial, begin, end, after, before);
        begin = end;
    }
}

// Pairs fields with those of other trials in a part of the list, and puts in what is left right behind its predecessor.
void MergedFields::PlaceGap(Row& row, const DescribedFields& trial, std::size_t begin, std::size_t end,
                            std::size_t after, std::size_t before) {
    const auto isLike = [&](std::size_t i, std::size_t k) {
        return row[begin + i].likeness == order[after + k].field.likeness;
    };
    for (const auto& [i, k] : LongestPairs(end - begin, before - after, isLike)) {
        row[begin + i].id = order[after + k].id;
    }
    std::size_t position = after;
    for (std::size_t i = begin; i < end; ++i) {
        if (row[i].id == kNone) {
            row[i].id = nextId++;
            order.insert(order.begin() + static_cast<std::ptrdiff_t>(position), {trial[i], row[i].id});
            ++position;
        } else {
            position = PositionOf(row[i].id) + 1;
        }
    }
}

void MergedFields::Finish() {
    std::map<std::int32_t, std::size_t> places;
    std::vector<std::int32_t> openLists;
    for (const Place& place : order) {
        if (place.field.role == Role::ListEnd) {
            openLists.pop_back();
        }
        lists.push_back(openLists.empty() ? kNone : openLists.back());
        if (place.field.role == Role::List) {
            openLists.push_back(static_cast<std::int32_t>(fields.size()));
        }
        places[place.id] = fields.size();
        fields.push_back(place.field);
    }
    for (const Row& row : rows) {
        auto& column = columns.emplace_back(fields.size(), kAbsent);
        for (const Entry& entry : row) {
            column[places.at(entry.id)] = entry.value;
        }
    }
}

bool MergedFields::IsTold(std::size_t field, std::size_t trial) const {
    const std::int32_t list = lists[field];
    return list == kNone || (Value(static_cast<std::size_t>(list), trial) != kAbsent &&
                             Value(static_cast<std::size_t>(list), trial) != 0);
}

} // namespace Vorn
