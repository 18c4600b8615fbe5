#pragma once

#include "engine/archive/archivable.h"

namespace Vorn {

class Record;
struct EnumTable;

// What happens with a count that is larger than the capacity of a list.
enum class ListRule {
    // The surplus is reported once and dropped.
    Bounded,
    // Each surplus entry is reported and dropped.
    Capped,
    // A surplus entry ends the process abnormally.
    Fatal,
    // There is no limit.
    Growing,
    // A surplus is kept, and the record reports it.
    Reported,
    // There is no limit, and memory is reserved for the whole count at once.
    Reserved,
    // There is no limit, the size of the array is the count, and a missing count is reported.
    Sized,
    // There is a place for each row of an enumeration that the entries begin with: of two entries with the same row the
    // later one is kept, and the order of the rows is that of the table.
    Keyed,
    // The number of entries is fixed, and any other count is reported.
    Exact,
    // There is no limit, and what is written is computed from other fields, whatever was read.
    Derived
};

struct ListShape {
    static constexpr std::int32_t kUnlimited = -1;

    Label countLabel;
    ListRule rule;
    // The entries that there may be, or kUnlimited.
    std::int32_t limit = kUnlimited;

    // Whether so many entries are kept.
    bool HasRoomFor(std::int32_t count) const {
        return limit == kUnlimited || rule == ListRule::Reported || count <= limit;
    }
};

// Gets what the list of fields knows and an archive cannot see, while a record is read. FieldIo calls it right before
// the read in question, if the archive has one.
class FieldObserver {
public:
    virtual ~FieldObserver() = default;

    // The next text is a row of this table, or "Invalid".
    virtual void OnEnum(const EnumTable&) {}
    // The next text is a name of this kind.
    virtual void OnName(NameKind) {}
    // The next text is cut to this capacity, which is less than that of its field.
    virtual void OnCapacity(std::int32_t) {}
    // The next float is an angle in degrees.
    virtual void OnDegrees() {}
    // The next Uint is the count of a list. OnEntry precedes each of its entries, OnListEnd follows the last.
    virtual void OnList(const ListShape&) {}
    // If this returns false, the list ends before this entry.
    virtual bool OnEntry(std::int32_t) { return true; }
    virtual void OnListEnd() {}
    // The record asks whether the file is of this version or later.
    virtual void OnVersion(std::int32_t) {}
    // The fields of a record without a label of its own, from the first to the last.
    virtual void OnBlock(const Record&) {}
    virtual void OnBlockEnd() {}
};

} // namespace Vorn
