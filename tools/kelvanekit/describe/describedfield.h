#pragma once

#include "tools/kelvanekit/check/askedfield.h"

#include <string>
#include <typeinfo>
#include <vector>

namespace Vorn {

// Something that a list of fields asked for or did, in the order of the file.
struct DescribedField {
    enum class Role : std::uint8_t {
        Field,
        // The count of a list, whose entry follows up to ListEnd.
        List,
        ListEnd,
        // The fields of a record without a label.
        Block,
        // A question for the version of the file.
        Version,
        // A report.
        Report
    };

    Role role = Role::Field;
    FieldKind kind = FieldKind::Record;
    NameKind name = NameKind::None;
    // Which classes the name may be of, as SingleLineArchivable tells.
    std::uint64_t classes = 0;
    ListRule rule = ListRule::Growing;
    bool isDegrees = false;
    Label label;
    const EnumTable* table = nullptr;
    // Units of a text's buffer, entries that a list keeps, the version that is asked for.
    std::int32_t limit = 0;
    // The class of a record or block, or of the one that a report comes from; and a number that tells its fields from
    // those of other records.
    const std::type_info* type = nullptr;
    std::uint64_t fields = 0;
    // The bytes that the field held ahead of the read; UTF-8 of a text.
    std::string start;
    std::string report;
    // Tells the field from all others of the file.
    std::uint64_t place = 0;
    // What the read was answered with, where that can be chosen.
    std::int32_t value = 0;
    // The same for two fields that are alike but for their place and value.
    std::uint64_t likeness = 0;

    // Whether the fields behind it may depend on it.
    bool IsChoice() const;

    // Whether it is a number, or several numbers that are the same here.
    bool IsNumber() const;

    // The values that are tried of a choice, in ascending order.
    std::vector<std::int32_t> Values() const;
};

using DescribedFields = std::vector<DescribedField>;

// What a choice is answered with.
struct Answer {
    std::uint64_t place;
    std::int32_t value;
};

// In the order of their places.
using Answers = std::vector<Answer>;

// The answer of a place, or null.
const Answer* FindAnswer(const Answers& answers, std::uint64_t place);

// The answers with one more, which takes the place of an earlier one.
Answers With(Answers answers, std::uint64_t place, std::int32_t value);

} // namespace Vorn
