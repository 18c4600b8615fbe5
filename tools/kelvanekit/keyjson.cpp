#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/describe/keyrows.h"
#include "tools/kelvanekit/keyforms.h"

#include <nlohmann/json.hpp>

namespace Vorn {

namespace {

using Json = nlohmann::ordered_json;

// Raised when a reader of this form would have to change.
constexpr int kFormat = 1;

constexpr const char* kKinds[] = {"color", "rectangle", "size",   "point", "quad", "matrix44", "matrix33", "vector3",
                                  "int64", "truth",     "double", "float", "int",  "uint",     "text",     "record"};
constexpr const char* kNames[] = {nullptr, "entity", "particle", "brush", "mesh", "texture", "sound", "string"};
constexpr const char* kRules[] = {"bounded",  "capped", "fatal", "growing", "reported",
                                  "reserved", "sized",  "keyed", "exact",   "derived"};

template <class Enum, std::size_t N>
const char* TextOf(const char* const (&texts)[N], Enum value) {
    return texts[static_cast<std::size_t>(value)];
}

Json ValuesOf(const KeyValues& values) {
    Json json = {{"key", values.key}};
    if (!values.texts.empty()) {
        json["texts"] = values.texts;
        return json;
    }
    if (values.hasMin) {
        json[values.isMinOpen ? "above" : "from"] = values.min;
    }
    if (values.hasMax) {
        json[values.isMaxOpen ? "below" : "to"] = values.max;
    }
    if (values.isExcluded) {
        json["outside"] = true;
    }
    return json;
}

void AddCondition(Json& json, const KeyCondition& condition) {
    if (condition.since != kNone) {
        json["since"] = condition.since;
    }
    if (condition.before != kNone) {
        json["before"] = condition.before;
    }
    for (const KeyValues& values : condition.values) {
        json["if"].push_back(ValuesOf(values));
    }
}

Json KeysOf(const KeyModel& model, const std::vector<KeyDescription>& keys);

void AddKind(Json& json, const KeyModel& model, const KeyDescription& key) {
    if (key.isList) {
        json["kind"] = "list";
        json["rule"] = TextOf(kRules, key.rule);
        if (key.limit != kNone) {
            json["limit"] = key.limit;
        }
        json["entry"] = KeysOf(model, key.entry);
    } else if (!key.choices.empty()) {
        json["kind"] = "choice";
        json["choices"] = key.choices;
        if (!key.fatal.empty()) {
            json["ends"] = key.fatal;
        }
    } else if (key.record != kNone) {
        json["kind"] = key.key.empty() ? "block" : "record";
        json["record"] = model.records[static_cast<std::size_t>(key.record)].name;
    } else {
        json["kind"] = TextOf(kKinds, key.kind);
    }
}

Json KeyOf(const KeyModel& model, const KeyDescription& key) {
    Json json;
    if (!key.key.empty()) {
        json["key"] = key.key;
    }
    AddKind(json, model, key);
    if (!key.isList && key.limit != kNone) {
        json["units"] = key.limit;
    }
    if (key.name != NameKind::None) {
        json["names"] = TextOf(kNames, key.name);
        for (const std::string& name : key.classes) {
            json["classes"].push_back(name);
        }
    }
    if (key.isDropped) {
        json["dropped"] = true;
    }
    if (key.isDegrees) {
        json["unit"] = "degrees";
    }
    if (!key.fixed.empty()) {
        json["fixed"] = key.fixed;
    } else if (!key.start.empty()) {
        json["default"] = key.start;
    }
    AddCondition(json, key.when);
    return json;
}

Json KeysOf(const KeyModel& model, const std::vector<KeyDescription>& keys) {
    Json json = Json::array();
    for (const KeyDescription& key : keys) {
        json.push_back(KeyOf(model, key));
    }
    return json;
}

Json RecordOf(const KeyModel& model, const RecordDescription& record) {
    Json json = {{"name", record.name}};
    if (!record.type.empty()) {
        json["type"] = record.type;
    }
    json["keys"] = KeysOf(model, record.keys);
    for (const KeyReport& report : record.reports) {
        Json reported = {{"text", report.text}};
        AddCondition(reported, report.when);
        if (report.isPossible) {
            reported["possible"] = true;
        }
        json["reports"].push_back(reported);
    }
    for (const KeyUse& use : record.usedBy) {
        Json used = {{"record", model.records[static_cast<std::size_t>(use.record)].name}};
        if (!use.key.empty()) {
            used["key"] = use.key;
        }
        json["usedBy"].push_back(used);
    }
    return json;
}

} // namespace

void PrintKeysAsJson(std::string& out, const KeyModel& model, const KeySelection& selection) {
    const std::string version = ToUtf8(kVersionLabel) + ' ' + std::to_string(kArchiveVersion);
    Json json = {{"format", kFormat},
                 {"version", kArchiveVersion},
                 {"header", {ToUtf8(kTextHeader), version}},
                 {"records", Json::array()}};
    for (const std::int32_t record : WithParts(model, selection.records)) {
        json["records"].push_back(RecordOf(model, model.records[static_cast<std::size_t>(record)]));
    }
    json["choices"] = model.choices;
    out += json.dump(1) + '\n';
}

} // namespace Vorn
