#include "tests/tools/kelvanekit/keyfiles.h"

#include "tools/kelvanekit/describe/describekeys.h"

#include <algorithm>
#include <utility>

namespace Vorn {

namespace {

using Json = KeyFiles::Json;

constexpr int kMostTries = 400;
constexpr int kMostEntries = 3;

std::string TextOf(const Json& json, const char* name) {
    return json.value(name, std::string());
}

std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

} // namespace

bool EndsIfFlawed(const Json& key) {
    return TextOf(key, "rule") == "fatal" || key.contains("ends");
}

const KeyModel& AllKeys() {
    static const KeyModel model = DescribeKeys();
    return model;
}

std::vector<std::string> KeyFiles::Write(const Json& file, int _version, Flaw _flaw) {
    version = _version;
    flaw = _flaw;
    flawed.clear();
    lines = {reference.at("header").at(0), reference.at("header").at(1)};
    lines.back().replace(lines.back().rfind(' ') + 1, std::string::npos, std::to_string(version));
    possibleReports.clear();
    WriteRecord(file, 0);
    return lines;
}

void KeyFiles::WriteRecord(const Json& record, int depth) {
    Values values;
    WriteKeys(record.at("keys"), record, depth, values);
    for (const Json& report : record.value("reports", Json::array())) {
        if (report.value("possible", false)) {
            possibleReports.insert(TextOf(report, "text"));
        }
    }
}

void KeyFiles::WriteKeys(const Json& keys, const Json& record, int depth, Values& values) {
    for (const Json& key : keys) {
        if (Stands(key, values)) {
            written.insert(&key);
            WriteKey(key, record, depth, values);
        }
    }
}

void KeyFiles::WriteKey(const Json& key, const Json& record, int depth, Values& values) {
    const std::string kind = key.at("kind");
    if (kind == "list") {
        WriteList(key, record, depth, values);
        return;
    }
    if (kind == "record" || kind == "block") {
        if (kind == "record") {
            Put(depth, key.at("key"));
        }
        WriteRecord(RecordNamed(key.at("record")), depth + (kind == "record" ? 1 : 0));
        return;
    }
    if (kind == "matrix33") {
        Put(depth, key.at("key"));
        for (const char* row : {" [ 1.000000 0.000000 0.000000 ]", " [ 0.000000 1.000000 0.000000 ]",
                                " [ 0.000000 0.000000 1.000000 ]"}) {
            Put(depth + 1, row);
        }
        return;
    }
    const std::string value = Allowed(key, record, values);
    Put(depth, std::string(key.at("key")) + ' ' + value);
    // An unknown text counts as this one.
    const bool isUnknown = value.find("None of") != std::string::npos;
    values.emplace_back(key.at("key"), isUnknown ? "\"Invalid\"" : value);
}

// A value that is not reported, and a new one if there is any.
std::string KeyFiles::Allowed(const Json& key, const Json& record, Values& values) {
    std::string value;
    for (int i = 0; i < kMostTries; ++i) {
        value = ValueOf(key);
        values.emplace_back(key.at("key"), value);
        const bool isReported = IsReported(record, key.at("key"), values);
        values.pop_back();
        if (!isReported) {
            break;
        }
    }
    return value;
}

std::string KeyFiles::ValueOf(const Json& key) {
    const std::string kind = key.at("kind");
    if (key.contains("fixed")) {
        return key.at("fixed");
    }
    if (key.contains("dropped")) {
        return key.at("default");
    }
    if (kind == "choice") {
        return Choose(key);
    }
    if (kind == "truth") {
        return Number(0, 1) == 0 ? "FALSE" : "TRUE";
    }
    if (kind == "text") {
        const int units = key.at("units");
        const int length = TakeFlaw(key, Flaw::TextTooLong) ? units + 1 : Number(0, 3) == 0 ? units : Number(0, 8);
        std::string text;
        for (int i = 0; i < length; ++i) {
            text += static_cast<char>('a' + Number(0, 25));
        }
        return Quoted(text);
    }
    if (kind == "float") {
        return Float(key.contains("unit"));
    }
    if (kind == "int" || kind == "uint") {
        return std::to_string(Number(0, 1) == 0 ? Number(-3, 9) : Number(-2147483647, 2147483647));
    }
    if (kind == "color") {
        constexpr char kDigits[] = "0123456789abcdef";
        std::string color(1, kDigits[Number(1, 15)]);
        while (color.size() < 8) {
            color += kDigits[Number(0, 15)];
        }
        return color;
    }
    if (kind == "point" || kind == "size") {
        return "[ " + std::to_string(Number(0, 8)) + " , " + std::to_string(Number(-9, 999)) + " ]";
    }
    if (kind == "rectangle") {
        return "[ " + std::to_string(Number(-9, 9)) + " , " + std::to_string(Number(-9, 999)) + " , " +
               std::to_string(Number(0, 999)) + " , " + std::to_string(Number(0, 999)) + " ]";
    }
    return Floats(kind == "vector3" ? 3 : 4);
}

std::string KeyFiles::Choose(const Json& key) {
    if (!keyedText.empty()) {
        return Quoted(std::exchange(keyedText, {}));
    }
    std::vector<std::string> allowed = reference.at("choices").at(TextOf(key, "choices"));
    allowed.emplace_back("Invalid");
    for (const std::string& text : key.value("ends", std::vector<std::string>())) {
        std::erase(allowed, text);
    }
    std::vector<std::string> open;
    for (const std::string& text : allowed) {
        if (!texts[&key].contains(text)) {
            open.push_back(text);
        }
    }
    const std::vector<std::string>& from = open.empty() ? allowed : open;
    const std::string text = from[static_cast<std::size_t>(Number(0, static_cast<int>(from.size()) - 1))];
    texts[&key].insert(text);
    return Quoted(TakeFlaw(key, Flaw::TextUnknown) ? "None of " + text : text);
}

// A number whose decimals survive; an angle that survives radians too.
std::string KeyFiles::Float(bool isAngle) {
    constexpr float kRadians = 0.017453292f;
    constexpr float kDegrees = 57.295776f;
    for (;;) {
        const int eighths = Number(0, 1) == 0 ? Number(-8, 16) : Number(-80000, 80000);
        const float number = static_cast<float>(eighths) / 8.0f;
        const float radians = number * kRadians;
        const float again = radians * kDegrees;
        if ((!isAngle || again == number) && (!isKeyed || eighths != 0)) {
            return std::to_string(number);
        }
    }
}

std::string KeyFiles::Floats(int count) {
    std::string text = "[";
    for (int i = 0; i < count; ++i) {
        text += ' ' + Float(false);
    }
    return text + " ]";
}

int KeyFiles::CountOf(const Json& key, const Json& record, Values& values) {
    const std::string rule = key.at("rule");
    const int limit = key.value("limit", -1);
    if (rule == "exact") {
        return limit;
    }
    // What is derived has no entries here, whatever comes of it.
    if (rule == "derived") {
        return 0;
    }
    int count = 0;
    for (int i = 0; i < kMostTries; ++i) {
        const bool isFull = limit >= 0 && Number(0, 2) == 0;
        count = isFull ? limit : Number(0, limit < 0 ? kMostEntries : std::min(limit, kMostEntries));
        values.emplace_back(key.at("key"), std::to_string(count));
        const bool isReported = IsReported(record, key.at("key"), values);
        values.pop_back();
        if (!isReported) {
            break;
        }
    }
    return count;
}

void KeyFiles::WriteList(const Json& key, const Json& record, int depth, Values& values) {
    int count = CountOf(key, record, values);
    const std::string rule = key.at("rule");
    if (rule == "keyed") {
        WriteKeyedList(key, record, depth, values);
        return;
    }
    if (key.contains("limit") && TakeFlaw(key, Flaw::ListTooLong)) {
        count = key.value("limit", 0) + 1;
    }
    Put(depth, std::string(key.at("key")) + ' ' + std::to_string(count));
    values.emplace_back(key.at("key"), std::to_string(count));
    for (int i = 0; i < count; ++i) {
        WriteKeys(key.at("entry"), record, depth, values);
    }
}

// The choice that an entry begins with.
const Json& KeyFiles::ChoiceOf(const Json& entry) const {
    return entry.at("kind") == "record" ? ChoiceOf(RecordNamed(entry.at("record")).at("keys").at(0)) : entry;
}

// Some of the texts, each once, in their order.
void KeyFiles::WriteKeyedList(const Json& key, const Json& record, int depth, Values& values) {
    std::vector<std::string> chosen;
    const int oneOf = Number(1, 3);
    for (const Json& text : reference.at("choices").at(TextOf(ChoiceOf(key.at("entry").at(0)), "choices"))) {
        if (Number(1, oneOf) == 1) {
            chosen.push_back(text);
        }
    }
    Put(depth, std::string(key.at("key")) + ' ' + std::to_string(chosen.size()));
    values.emplace_back(key.at("key"), std::to_string(chosen.size()));
    isKeyed = true;
    for (const std::string& text : chosen) {
        keyedText = text;
        texts[&ChoiceOf(key.at("entry").at(0))].insert(text);
        WriteKeys(key.at("entry"), record, depth, values);
    }
    isKeyed = false;
}

bool KeyFiles::TakeFlaw(const Json& key, Flaw kind) {
    const bool endsHere = !flawed.empty() && (EndsIfFlawed(key) || EndsIfFlawed(*flawed.back()));
    if (flaw != kind || endsHere || key.contains("fixed") || !flawsDone.emplace(kind, &key).second) {
        return false;
    }
    flawed.push_back(&key);
    return true;
}

bool KeyFiles::Stands(const Json& key, const Values& values) const {
    return version >= key.value("since", version) && version < key.value("before", version + 1) &&
           (!key.contains("if") || Holds(key.at("if"), values));
}

// Whether a report comes of the value of the last key.
bool KeyFiles::IsReported(const Json& record, const std::string& key, const Values& values) const {
    for (const Json& report : record.value("reports", Json::array())) {
        if (report.contains("if") && !report.value("possible", false) && TextOf(report.at("if").back(), "key") == key &&
            Holds(report.at("if"), values)) {
            return true;
        }
    }
    return false;
}

bool KeyFiles::Holds(const Json& conditions, const Values& values) {
    for (const Json& condition : conditions) {
        const auto found = std::find_if(values.rbegin(), values.rend(),
                                        [&](const auto& value) { return value.first == TextOf(condition, "key"); });
        if (found == values.rend()) {
            return false;
        }
        bool holds = false;
        if (condition.contains("texts")) {
            for (const Json& text : condition.at("texts")) {
                holds = holds || found->second == text || found->second == Quoted(text);
            }
        } else {
            const double number = std::stod(found->second);
            holds = (!condition.contains("above") || number > condition.at("above")) &&
                    (!condition.contains("from") || number >= condition.at("from")) &&
                    (!condition.contains("below") || number < condition.at("below")) &&
                    (!condition.contains("to") || number <= condition.at("to"));
            holds = holds != condition.value("outside", false);
        }
        if (!holds) {
            return false;
        }
    }
    return true;
}

} // namespace Vorn
