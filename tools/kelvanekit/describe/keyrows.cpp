#include "tools/kelvanekit/describe/keyrows.h"

#include "tools/kelvanekit/check/knownnames.h"

#include <algorithm>

namespace Vorn {

namespace {

class RowCollector {
public:
    RowCollector(const KeyModel& _model, RowDetail _detail) : model(_model), detail(_detail) {}

    void AddRecord(const RecordDescription& record, std::int32_t depth, const KeyCondition& around,
                   const std::string& path) {
        Add(record.keys, depth, around, path);
        for (const KeyReport& report : record.reports) {
            rows.reports.push_back({&report, path});
        }
    }

    RecordRows rows;

private:
    void Add(const std::vector<KeyDescription>& keys, std::int32_t depth, const KeyCondition& around,
             const std::string& path) {
        for (const KeyDescription& key : keys) {
            KeyCondition when = Joined(key.when, around);
            if (key.key.empty() && IsShown(key)) {
                AddRecord(RecordOf(key), depth, when, path);
                continue;
            }
            const std::string own = path + (path.empty() || key.key.empty() ? "" : ".") + key.key;
            rows.keys.push_back({&key, depth, std::move(when), own});
            if (key.isList) {
                Add(key.entry, depth + 1, {}, path);
            } else if (key.record != kNone && IsShown(key)) {
                AddRecord(RecordOf(key), depth + 1, {}, own);
            }
        }
    }

    const RecordDescription& RecordOf(const KeyDescription& key) const {
        return model.records[static_cast<std::size_t>(key.record)];
    }

    bool IsShown(const KeyDescription& key) const {
        return detail == RowDetail::All || (detail == RowDetail::OwnAndBlocks && key.key.empty()) ||
               RecordOf(key).usedBy.size() == 1;
    }

    const KeyModel& model;
    const RowDetail detail;
};

std::string Count(std::int32_t number, const std::string& one) {
    return std::to_string(number) + ' ' + one + (number == 1 ? "" : "s");
}

std::string ListInWords(const KeyDescription& key) {
    const std::string limit = std::to_string(key.limit);
    switch (key.rule) {
    case ListRule::Bounded:
        return "the number of entries, up to " + limit + "; a surplus is reported once and dropped";
    case ListRule::Capped:
        return "the number of entries, up to " + limit + "; each one more is reported and dropped";
    case ListRule::Fatal:
        return "the number of entries, up to " + limit + "; with one more the conversion ends";
    case ListRule::Growing:
    case ListRule::Reserved:
        return "the number of entries";
    case ListRule::Reported:
        return "the number of entries, up to " + limit + "; a surplus is reported and kept";
    case ListRule::Sized:
        return "the number of entries, which may not be missing";
    case ListRule::Keyed:
        return "the number of entries, up to " + limit +
               " different ones; they are written in the order of the texts that they begin with, each once, without "
               "those of value 0";
    case ListRule::Exact:
        return "the number of entries, always " + limit + "; any other is reported";
    case ListRule::Derived:
        return "the number of entries, which are computed anew from other keys";
    }
    return {};
}

std::string KindWord(const KeyDescription& key) {
    switch (key.kind) {
    case FieldKind::Color:
        return "a colour, hexadecimal: alpha, red, green, blue";
    case FieldKind::Rectangle:
        return "a box: left, top, width, height";
    case FieldKind::Size:
        return "a size: width, height";
    case FieldKind::Point:
        return "a place: x, y";
    case FieldKind::Quad:
        return "four numbers";
    case FieldKind::Matrix44:
        return "a matrix, four rows of four numbers";
    case FieldKind::Matrix33:
        return "a matrix, three rows of three numbers";
    case FieldKind::Vector3:
        return "a vector, three numbers";
    case FieldKind::Text:
        return "a text of up to " + Count(key.limit, "unit");
    case FieldKind::Int64:
        return "a whole number of 64 bits";
    case FieldKind::Bool:
        return "TRUE or FALSE";
    case FieldKind::Double:
        return "a number of 64 bits";
    case FieldKind::Float:
        return key.isDegrees ? "a number, in degrees" : "a number";
    case FieldKind::Int:
    case FieldKind::Uint:
        return "a whole number";
    case FieldKind::Record:
    case FieldKind::Row:
        break;
    }
    return "a record";
}

std::string ValuesInWords(const KeyValues& values, std::size_t mostTexts) {
    if (values.texts.size() > mostTexts) {
        return "is one of " + std::to_string(values.texts.size()) + " texts";
    }
    if (!values.texts.empty()) {
        return "is " + Listed(values.texts);
    }
    const std::string min = std::to_string(values.min);
    const std::string max = std::to_string(values.max);
    const std::string is = values.isExcluded ? "is not " : "is ";
    if (!values.hasMin) {
        return is + (values.isMaxOpen ? "below " + max : max + " or less");
    }
    if (!values.hasMax) {
        return is + (values.isMinOpen ? "above " + min : min + " or more");
    }
    if (values.min == values.max) {
        return is + min;
    }
    return is + "from " + std::to_string(values.min + (values.isMinOpen ? 1 : 0)) + " to " +
           std::to_string(values.max - (values.isMaxOpen ? 1 : 0));
}

} // namespace

RecordRows RowsOf(const KeyModel& model, std::int32_t record, RowDetail detail) {
    RowCollector collector(model, detail);
    collector.AddRecord(model.records[static_cast<std::size_t>(record)], 0, {}, {});
    return std::move(collector.rows);
}

std::vector<std::int32_t> WithParts(const KeyModel& model, std::vector<std::int32_t> records) {
    // They grow meanwhile.
    for (std::size_t i = 0; i < records.size(); ++i) {
        for (const KeyRow& row : RowsOf(model, records[i], RowDetail::Own).keys) {
            const std::int32_t part = row.key->record;
            if (part != kNone && std::ranges::find(records, part) == records.end()) {
                records.push_back(part);
            }
        }
    }
    return records;
}

std::int32_t FindRecord(const KeyModel& model, std::string_view name) {
    const auto found = std::ranges::find(model.records, name, &RecordDescription::name);
    return found == model.records.end() ? kNone : static_cast<std::int32_t>(found - model.records.begin());
}

KeyCondition Joined(KeyCondition condition, const KeyCondition& other) {
    if (!condition.values.empty()) {
        return condition;
    }
    condition.since = std::max(condition.since, other.since);
    if (condition.before == kNone || (other.before != kNone && other.before < condition.before)) {
        condition.before = other.before;
    }
    condition.values.insert(condition.values.end(), other.values.begin(), other.values.end());
    return condition;
}

std::string Listed(const std::vector<std::string>& words) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        text += (i == 0 ? "" : i + 1 == words.size() ? " or " : ", ") + words[i];
    }
    return text;
}

std::string KindInWords(const KeyModel& model, const KeyDescription& key) {
    if (key.isList) {
        return ListInWords(key);
    }
    if (!key.fixed.empty()) {
        return "always " + key.fixed;
    }
    if (!key.choices.empty()) {
        std::string words =
            "one of the " + std::to_string(model.choices.at(key.choices).size()) + " texts " + key.choices;
        return key.fatal.empty() ? words : words + "; with " + Listed(key.fatal) + " the conversion ends";
    }
    std::string words = KindWord(key) + (key.isDropped ? ", which is not kept" : "");
    if (key.name != NameKind::None) {
        const std::string what(KnownNames::WhatIs(key.name));
        words += (what.starts_with('e') ? ", the name of an " : ", the name of a ") + what;
        words += key.classes.empty() ? "" : " of the class " + Listed(key.classes);
    }
    if (key.record != kNone) {
        words =
            (key.key.empty() ? "the keys of " : "a record ") + model.records[static_cast<std::size_t>(key.record)].name;
    }
    return words;
}

std::string ConditionInWords(const KeyCondition& condition, std::size_t mostTexts) {
    std::string words;
    for (const KeyValues& values : condition.values) {
        words += (words.empty() ? "if " : " and ") + values.key + ' ' + ValuesInWords(values, mostTexts);
    }
    if (condition.since != kNone) {
        words += (words.empty() ? "from version " : ", from version ") + std::to_string(condition.since) + " on";
    }
    if (condition.before != kNone) {
        words += (words.empty() ? "before version " : ", before version ") + std::to_string(condition.before);
    }
    return words;
}

std::string RowInWords(const KeyModel& model, const KeyRow& row, std::size_t mostTexts) {
    const KeyDescription& key = *row.key;
    std::string words = KindInWords(model, key);
    if (!key.isList && !key.start.empty() && key.fixed.empty()) {
        std::string start = key.start;
        std::ranges::replace(start, '\n', ' ');
        words += "; default " + start;
    }
    const std::string condition = ConditionInWords(row.when, mostTexts);
    return condition.empty() ? words : words + "; " + condition;
}

} // namespace Vorn
