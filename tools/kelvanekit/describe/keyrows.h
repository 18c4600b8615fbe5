#pragma once

#include "tools/kelvanekit/describe/keymodel.h"

#include <string_view>

namespace Vorn {

// A key of a record with all that lies in it, in the order of the file.
struct KeyRow {
    const KeyDescription* key;
    // How many records and lists inside the record it stands in.
    std::int32_t depth;
    // Its own condition and that of the block it belongs to.
    KeyCondition when;
    // The keys around it and its own, with dots between them.
    std::string path;
};

// A report of a record that is shown at its place.
struct ReportRow {
    const KeyReport* report;
    // The path of the record, empty for the one that is asked for.
    std::string path;
};

struct RecordRows {
    std::vector<KeyRow> keys;
    std::vector<ReportRow> reports;
};

// Which records and blocks are shown at their places.
enum class RowDetail : std::uint8_t {
    // Those that stand nowhere else.
    Own,
    // Those and all blocks.
    OwnAndBlocks,
    All
};

RecordRows RowsOf(const KeyModel& model, std::int32_t record, RowDetail detail);

// The records and all that lie in them.
std::vector<std::int32_t> WithParts(const KeyModel& model, std::vector<std::int32_t> records);

// The record of that name, or kNone.
std::int32_t FindRecord(const KeyModel& model, std::string_view name);

// The condition of a key together with that of what is around it. A key that depends on others there has theirs.
KeyCondition Joined(KeyCondition condition, const KeyCondition& other);

// In words: "a text of up to 255 units, the name of a mesh", without the texts of an enumeration.
std::string KindInWords(const KeyModel& model, const KeyDescription& key);

inline constexpr std::size_t kAllTexts = static_cast<std::size_t>(-1);

// In words: "if hasLevels is TRUE, before version 193"; empty for no condition. Of the texts of a key, so many are
// named at most.
std::string ConditionInWords(const KeyCondition& condition, std::size_t mostTexts = kAllTexts);

// All of it in words, with the default.
std::string RowInWords(const KeyModel& model, const KeyRow& row, std::size_t mostTexts = kAllTexts);

// "a", "a or b", "a, b or c".
std::string Listed(const std::vector<std::string>& words);

} // namespace Vorn
