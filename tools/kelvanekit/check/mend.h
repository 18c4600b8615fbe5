#pragma once

#include "tools/kelvanekit/check/askedfield.h"

namespace Vorn {

// What makes the keys of a file agree with the list of fields: one mistake, undone. Asks are counted from the first
// field that is asked for, as they are with all other mends in place.
struct Mend {
    enum class Kind : std::uint8_t {
        // `value` lines from `line` on are passed over.
        SkipLines,
        // `line` and the one behind it change places.
        SwapLines,
        // The line is taken for the ask whatever its key.
        AcceptLine,
        // The ask has no line; `value` is the row or number in its place, if it is not kNone.
        Missing,
        // The ask begins a record and has no line, but the record's lines are there.
        MissingHeader,
        // The ask and all behind it have no line.
        MissingRest,
        // The ask has `value` in place of its own row or truth value.
        Choice,
        // The ask counts `value` entries.
        Count,
        // The ask counts as many entries as there are.
        OpenCount
    };

    Kind kind;
    std::int32_t ask = kNone;
    std::int32_t line = kNone;
    std::int32_t value = kNone;

    bool IsOfLines() const { return kind == Kind::SkipLines || kind == Kind::SwapLines; }
};

using Mends = std::vector<Mend>;

// A list that is being read, or was.
struct OpenList {
    std::int32_t ask = kNone;
    // What the file says.
    std::int32_t count = 0;
    std::int32_t entries = 0;
    ListShape shape{};
    // Where the last entry began.
    std::int32_t entryAsk = kNone;
    // How many records it stands in.
    std::int32_t depth = 0;
    // The line behind that of its count.
    std::int32_t firstLine = kNone;
    // The line ahead when it ended.
    std::int32_t endLine = kNone;
    std::int32_t endAsk = kNone;
    // The first key of its entries, once it was asked for.
    Label entryLabel;
    bool isOpen = false;
    // There is no number that could be trusted.
    bool isDoubtful = false;
};

// An enumeration or a truth value that was read.
struct ReadChoice {
    std::int32_t ask = kNone;
    const EnumTable* table = nullptr;
    std::int32_t value = kNone;
    bool isDoubtful = false;
};

// A field that would be asked for if all lines were missing.
struct ProbedField {
    Label label;
    FieldKind kind;
    std::int32_t depth;
};

// Where a line does not have the key that is asked for.
struct Mismatch {
    std::int32_t ask = kNone;
    std::int32_t line = 0;
    // The key that is asked for, empty where no further one is and there are still lines.
    Label label;
    // The process would end abnormally there.
    bool isAbnormalEnd = false;
    // From the key that is asked for on.
    std::vector<ProbedField> probes;
    // The lists around the place, the innermost last, and those that ended at it.
    std::vector<OpenList> lists;
    std::vector<OpenList> endedLists;
    // The latest ones, the last one first, and the first of all.
    std::vector<ReadChoice> choices;
};

} // namespace Vorn
