#pragma once

#include "tools/kelvanekit/describe/describingarchive.h"

#include <optional>
#include <set>

namespace Vorn {

// A type of content, or a class of the type that has classes.
struct ContentForm {
    ContentKind kind;
    std::string name;
    // The answers that make it this class.
    Answers fixed;
};

// All of them: the types, and in place of the last one its classes in the order of their table.
std::vector<ContentForm> ContentForms();

// What a list of fields asks for under some answers.
struct Trial {
    // With those that keep the process from ending.
    Answers answers;
    DescribedFields fields;
    // The trials of which this one has one answer more.
    std::vector<std::size_t> parents;
};

// Runs a content's lists of fields and notes the fields of the record at a place. Where the process would end, the
// latest choice is answered otherwise; nothing comes back if that is the one that is tried, or if nothing helps.
std::optional<Trial> Try(const ContentForm& form, Answers answers, std::uint64_t place, ListAnswer listAnswer,
                         std::uint64_t triedPlace = 0, bool isDeep = false);

// The places of colours that are read and not kept.
std::set<std::uint64_t> FindDroppedColors(const ContentForm& form);

} // namespace Vorn
