#include "tools/kelvanekit/contentdump.h"

#include "tools/kelvanekit/check/contentfindings.h"
#include "tools/kelvanekit/findingforms.h"
#include "tools/kelvanekit/visibletext.h"

#include <nlohmann/json.hpp>

namespace Vorn {

namespace {

using Json = nlohmann::ordered_json;

// Bytes that are shown in columns.
constexpr std::size_t kShownBytes = 8;
constexpr std::size_t kByteColumns = 3 * kShownBytes;
constexpr std::size_t kKindColumns = 10;
constexpr std::size_t kPlaceColumns = 8;

std::string_view KindNameOf(const AskedField& field) {
    constexpr std::string_view kNames[] = {"color",    "rectangle", "size",  "point",  "quad",   "matrix44",
                                           "matrix33", "vector3",   "int64", "bool",   "double", "float",
                                           "int",      "uint",      "text",  "record", "row"};
    return field.isCount ? "count" : field.table != nullptr ? "enum" : kNames[static_cast<std::size_t>(field.kind)];
}

std::string HexOf(std::string_view bytes, const char* separator) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string hex;
    for (const char byte : bytes) {
        hex += hex.empty() ? "" : separator;
        hex += {kDigits[static_cast<unsigned char>(byte) >> 4], kDigits[byte & 15]};
    }
    return hex;
}

void AppendPadded(std::string& out, std::string_view text, std::size_t columns) {
    out += text;
    out.append(columns - std::min(columns, text.size()) + 1, ' ');
}

std::string FormOf(const ContentFile& content) {
    return content.Reading() == nullptr ? "empty" : content.Reading()->IsBinary() ? "binary" : "text";
}

void BeginColumns(std::string& out, const ContentFile& content) {
    AppendVisible(out, content.File().name);
    out += ": " + std::string(NameOf(content.File().kind)) + ", " + FormOf(content);
    if (content.Fields() != nullptr) {
        const std::int32_t version = content.Fields()->GetVersion();
        out += version == Archive::kNoVersion ? ", without a version" : ", version " + std::to_string(version);
    }
    out += ", " + std::to_string(content.Bytes().size()) + " bytes\n";
}

void PutColumns(std::string& out, const ContentFile& content, const DumpedField& field) {
    AppendPadded(out, field.place == kNone ? "-" : std::to_string(field.place), kPlaceColumns);
    if (content.Reading()->IsBinary()) {
        std::string bytes = HexOf(field.bytes.substr(0, kShownBytes), " ");
        bytes += field.bytes.size() > kShownBytes ? "+" : "";
        AppendPadded(out, bytes, kByteColumns);
    }
    AppendPadded(out, field.kind, kKindColumns);
    AppendVisible(out, field.key);
    if (!field.value.empty()) {
        out += ' ';
        AppendVisible(out, field.value);
    }
    out += field.place == kNone ? " (missing)\n" : "\n";
}

void PutFindingLine(std::string& out, const ContentFile&, const Finding& finding) {
    out.append(kPlaceColumns + 1, ' ').append("^ ");
    AppendSentence(out, finding.code->severity, finding);
}

void BeginNothing(std::string&, const ContentFile&) {}
void PutNoFinding(std::string&, const ContentFile&, const Finding&) {}

void PutKey(std::string& out, const ContentFile&, const DumpedField& field) {
    if (!field.value.empty()) {
        AppendVisible(out, field.key + " ");
        AppendVisible(out, field.value);
        out += '\n';
    }
}

void AppendJson(std::string& out, const Json& json) {
    out += json.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

void BeginJson(std::string& out, const ContentFile& content) {
    Json json = {{"file", content.File().name}, {"type", NameOf(content.File().kind)}, {"form", FormOf(content)}};
    if (content.Fields() != nullptr && content.Fields()->GetVersion() != Archive::kNoVersion) {
        json["version"] = content.Fields()->GetVersion();
    }
    json["size"] = content.Bytes().size();
    AppendJson(out, json);
}

void PutJson(std::string& out, const ContentFile& content, const DumpedField& field) {
    Json json = Json::object();
    if (field.place == kNone) {
        json["missing"] = true;
    } else if (content.Reading()->IsBinary()) {
        json["offset"] = field.place;
        json["bytes"] = HexOf(field.bytes, "");
    } else {
        json["line"] = field.place;
    }
    json["kind"] = field.kind;
    json["key"] = field.key;
    if (!field.value.empty()) {
        json["value"] = field.value;
    }
    AppendJson(out, json);
}

void PutJsonFinding(std::string& out, const ContentFile& content, const Finding& finding) {
    PrintJson(out, {finding, finding.code->severity, content.File().name, {}}, false);
}

constexpr DumpForm kForms[] = {
    {"columns", BeginColumns, PutColumns, PutFindingLine},
    {"keys", BeginNothing, PutKey, PutNoFinding},
    {"json", BeginJson, PutJson, PutJsonFinding},
};

} // namespace

std::span<const DumpForm> DumpForms() {
    return kForms;
}

void DumpContent(const ContentFile& content, const DumpForm& form, OutputStream& output) {
    std::string text;
    form.begin(text, content);
    const Findings& findings = content.GetFindings();
    auto finding = findings.begin();
    const std::size_t count = content.Fields() == nullptr ? 0 : content.Fields()->Asks().size();
    for (std::size_t i = 0; i < count; ++i) {
        const AskedField& field = content.Fields()->Asks()[i];
        const std::int64_t spot = SpotOf(field);
        const bool isBinary = content.Reading()->IsBinary();
        const auto ask = static_cast<std::int32_t>(i);
        form.field(text, content,
                   {field.IsMissing() ? kNone
                    : isBinary        ? spot
                                      : spot + 1,
                    isBinary ? content.Reading()->BytesOf(ask) : std::string_view(), KindNameOf(field),
                    PathOf(content.Fields()->Asks(), ask), content.Fields()->KeptValue(field)});
        // A group and its first field may begin at the same byte.
        const bool isLast = i + 1 == count;
        const std::int64_t next = isLast ? 0 : SpotOf(content.Fields()->Asks()[i + 1]);
        for (;
             finding != findings.end() && (isLast || (!field.IsMissing() && SpotOf(*finding) <= spot && next != spot));
             ++finding) {
            form.finding(text, content, *finding);
        }
        output.Write(text);
        text.clear();
    }
    output.Write(text);
}

} // namespace Vorn
