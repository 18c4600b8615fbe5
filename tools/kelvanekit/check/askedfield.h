#pragma once

#include "engine/archive/archivevalues.h"
#include "engine/archive/fieldobserver.h"

#include <string>
#include <vector>

namespace Vorn {

// The kind of a field: those of single values as ArchiveValues lists them, then what has a value of another shape.
enum class FieldKind : std::uint8_t {
    Color,
    Rectangle,
    Size,
    Point,
    Quad,
    Matrix44,
    Matrix33,
    Vector3,
    Int64,
    Bool,
    Double,
    Float,
    Int,
    Uint,
    Text,
    Record,
    // A row of a matrix, which has no key.
    Row
};

namespace Detail {

template <class Value, class... Values>
constexpr FieldKind KindIn(ValueList<Values...>) {
    int kind = 0;
    static_cast<void>(((std::is_same_v<Value, Values> || (++kind, false)) || ...));
    return static_cast<FieldKind>(kind);
}

} // namespace Detail

template <class Value>
inline constexpr FieldKind kKindOf = Detail::KindIn<Value>(ArchiveValues());

static_assert(kKindOf<Color> == FieldKind::Color && kKindOf<std::uint32_t> == FieldKind::Uint);

inline constexpr std::int32_t kNone = -1;

// Stands for the key of a matrix' row.
inline constexpr Label kRowLabel = u"[";

// A field that a list of fields asked for, with the place that gave it. Places in a list of them are called asks.
struct AskedField {
    Label label;
    // The rows of a text that is an enumeration's.
    const EnumTable* table = nullptr;
    FieldKind kind = FieldKind::Record;
    NameKind name = NameKind::None;
    // Which classes the name may be of, as SingleLineArchivable tells.
    std::uint64_t classes = 0;
    ListRule rule = ListRule::Growing;
    bool isCount = false;
    bool isDegrees = false;
    // The line from 0, or the first byte in a binary file; kNone if it is missing.
    std::int32_t line = kNone;
    std::int64_t offset = kNone;
    // The ask of the record that it belongs to.
    std::int32_t parent = kNone;
    // How many records it stands in.
    std::int32_t depth = 0;
    // The ask of the count of the list that it is an entry of, or the first field of several of an entry, and the
    // entry's number.
    std::int32_t list = kNone;
    std::int32_t entry = kNone;
    // Units of a text's buffer, entries that a list keeps.
    std::int32_t capacity = 0;
    // The row of an enumeration, the number of entries that a list has.
    std::int32_t value = kNone;
    // Its place among the values that are kept.
    std::int32_t kept = kNone;

    bool IsMissing() const { return line == kNone && offset == kNone; }
    // Of a count: whether there are entries that the list has no room for.
    bool IsOverfull() const { return !ListShape{label, rule, capacity}.HasRoomFor(value); }
};

using AskedFields = std::vector<AskedField>;

// The path of a key: `Weapon[1].WeaponType`.
std::string PathOf(const AskedFields& asks, std::int32_t ask);

// A key that stands in the record of `parent`, which may be kNone.
std::string PathBelow(const AskedFields& asks, std::int32_t parent, std::string_view key);

} // namespace Vorn
