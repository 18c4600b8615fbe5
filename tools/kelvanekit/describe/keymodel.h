#pragma once

#include "engine/archive/archivable.h"
#include "engine/archive/fieldobserver.h"
#include "tools/kelvanekit/check/askedfield.h"

#include <map>
#include <string>
#include <vector>

namespace Vorn {

// The reference of all keys as plain data: what the lists of fields ask for, and under which conditions. Texts are
// UTF-8 and values are spelt as the text form has them.

// The values of a key. Of a number, a range, whose ends are included unless they are open, or all numbers outside it.
struct KeyValues {
    std::string key;
    // Allowed texts of an enumeration or truth value; empty for a number.
    std::vector<std::string> texts;
    bool hasMin = false;
    bool hasMax = false;
    bool isMinOpen = false;
    bool isMaxOpen = false;
    bool isExcluded = false;
    std::int32_t min = 0;
    std::int32_t max = 0;
};

// When a key stands in a file: in which versions, and for which values of keys ahead of it. All have to hold.
struct KeyCondition {
    // The first version that has it and the first that has it no longer; kNone for no such limit.
    std::int32_t since = kNone;
    std::int32_t before = kNone;
    std::vector<KeyValues> values;

    bool IsEmpty() const { return since == kNone && before == kNone && values.empty(); }
};

struct KeyDescription {
    // Empty for a block, whose keys stand at this level.
    std::string key;
    FieldKind kind = FieldKind::Record;
    NameKind name = NameKind::None;
    // The classes that the name may be of; empty for any.
    std::vector<std::string> classes;
    bool isDegrees = false;
    bool isList = false;
    // The value is read and not kept: the default is written.
    bool isDropped = false;
    // Units of a text, entries of a list; kNone for no limit.
    std::int32_t limit = kNone;
    ListRule rule = ListRule::Growing;
    // What a missing key leaves. A matrix has a line for each row.
    std::string start;
    // The only text that the key has in this file; empty if there are others.
    std::string fixed;
    // The name of the enumeration.
    std::string choices;
    // Texts of it with which a conversion ends and writes nothing.
    std::vector<std::string> fatal;
    // The place of the record or block in the model.
    std::int32_t record = kNone;
    // The keys of an entry.
    std::vector<KeyDescription> entry;
    KeyCondition when;
};

// A report that comes of values.
struct KeyReport {
    std::string text;
    // The values at which it comes; empty if they cannot be told one by one.
    KeyCondition when;
    // Whether it may not come all the same, as it depends on values of records inside this one.
    bool isPossible = false;
};

// Where a record stands.
struct KeyUse {
    // The place in the model of the record that has it, and the key there; empty for a block.
    std::int32_t record;
    std::string key;
};

struct RecordDescription {
    // Unique in the model. That of a file is its type or class.
    std::string name;
    // The type of the file; empty for records inside a file.
    std::string type;
    std::vector<KeyDescription> keys;
    std::vector<KeyReport> reports;
    std::vector<KeyUse> usedBy;
    // Whether the conditions tell exactly which keys stood in each trial.
    bool isExact = true;
};

struct KeyModel {
    // The files first, in the order of their types.
    std::vector<RecordDescription> records;
    // The allowed texts by the name of the enumeration. "Invalid" is allowed in each.
    std::map<std::string, std::vector<std::string>> choices;
};

} // namespace Vorn
