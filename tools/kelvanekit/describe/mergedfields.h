#pragma once

#include "tools/kelvanekit/describe/contenttrial.h"

#include <map>

namespace Vorn {

// The fields of all trials of a record in one list, each in its place among the others.
class MergedFields {
public:
    static constexpr std::int32_t kAbsent = -2147483647 - 1;

    // Takes the fields of one more trial, behind those of its parents.
    void Add(const Trial& trial);

    // To be called behind the last one.
    void Finish();

    const DescribedFields& Fields() const { return fields; }
    std::size_t TrialCount() const { return columns.size(); }

    // The value of a field in a trial, or kAbsent.
    std::int32_t Value(std::size_t field, std::size_t trial) const { return columns[trial][field]; }

    // Whether the trial can tell if a field is there: not if the list around has no entries.
    bool IsTold(std::size_t field, std::size_t trial) const;

private:
    // A field of the list; the number stays the same when the list grows.
    struct Place {
        DescribedField field;
        std::int32_t id;
    };
    // A field of a trial.
    struct Entry {
        std::uint64_t likeness;
        std::int32_t id;
        std::int32_t value;
    };
    using Row = std::vector<Entry>;

    static void PairWithParent(Row& row, const Row& parent);
    void RemoveDisorder(Row& row) const;
    void PlaceOthers(Row& row, const DescribedFields& trial);
    void PlaceGap(Row& row, const DescribedFields& trial, std::size_t begin, std::size_t end, std::size_t after,
                  std::size_t before);
    std::size_t PositionOf(std::int32_t id) const;

    std::vector<Place> order;
    std::int32_t nextId = 0;
    std::vector<Row> rows;
    DescribedFields fields;
    std::vector<std::vector<std::int32_t>> columns;
    // The count of the list that a field is in an entry of.
    std::vector<std::int32_t> lists;
};

} // namespace Vorn
