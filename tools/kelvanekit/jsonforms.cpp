#include "tools/kelvanekit/columns.h"
#include "tools/kelvanekit/filename.h"
#include "tools/kelvanekit/fileuri.h"
#include "tools/kelvanekit/findingforms.h"
#include "tools/kelvanekit/findings/findingcodes.h"
#include "tools/kelvanekit/version.h"
#include "tools/kelvanekit/visibletext.h"

#include <nlohmann/json.hpp>

namespace Vorn {

namespace {

using Json = nlohmann::ordered_json;

// The folder that relative names begin at.
constexpr const char* kBase = "SRCROOT";

void AppendDumped(std::string& out, const Json& json) {
    out += json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json TextMessage(std::string_view text) {
    return {{"text", WellFormed(text)}};
}

Json ArtifactLocation(std::string_view file) {
    const std::filesystem::path path = PathOf(std::string(file)).lexically_normal();
    const std::u8string generic = path.generic_u8string();
    const std::string uri = EscapeUri({reinterpret_cast<const char*>(generic.data()), generic.size()});
    if (path.is_absolute()) {
        return {{"uri", (uri.starts_with('/') ? "file://" : "file:///") + uri}};
    }
    return {{"uri", uri}, {"uriBaseId", kBase}};
}

Json RegionOf(const ReportedFinding& reported) {
    const FindingPlace& place = reported.finding.place;
    if (!reported.IsInText()) {
        return {{"byteOffset", std::max<std::int64_t>(place.offset, 0)}, {"byteLength", 0}};
    }
    const std::int32_t begin = UnitColumn(reported.line, place.begin);
    const std::int32_t end = std::max(UnitColumn(reported.line, place.end), begin);
    return {{"startLine", place.line}, {"startColumn", begin}, {"endLine", place.line}, {"endColumn", end}};
}

Json FixOf(const ReportedFinding& reported) {
    const Json replacement = {{"deletedRegion", RegionOf(reported)},
                              {"insertedContent", TextMessage(reported.finding.replacement)}};
    const Json change = {{"artifactLocation", ArtifactLocation(reported.file)},
                         {"replacements", Json::array({replacement})}};
    return {{"artifactChanges", Json::array({change})}};
}

Json Rules() {
    Json rules = Json::array();
    for (const FindingCode& code : kFindingCodes) {
        rules.push_back({{"id", code.name},
                         {"shortDescription", TextMessage(SummaryOf(code))},
                         {"help", TextMessage(code.explanation)},
                         {"defaultConfiguration", {{"level", NameOf(code.severity)}}}});
    }
    return rules;
}

} // namespace

void PrintJson(std::string& out, const ReportedFinding& reported, bool) {
    const Finding& finding = reported.finding;
    Json json = {{"file", reported.file}};
    if (reported.IsInText()) {
        json["line"] = finding.place.line;
        json["column"] = CharacterColumn(reported.line, finding.place.begin);
    } else {
        json["offset"] = finding.place.offset;
    }
    json["severity"] = NameOf(reported.severity);
    json["code"] = finding.code->name;
    json["key"] = finding.key;
    json["message"] = finding.message;
    json["help"] = finding.help;
    AppendDumped(out, json);
    out += '\n';
}

void BeginSarif(std::string& out) {
    const Json driver = {{"name", "kelvane-kit"}, {"version", kVersion}, {"rules", Rules()}};
    const Json base = {{"description", TextMessage("The folder in which kelvane-kit ran.")}};
    out += R"({"$schema":"https://json.schemastore.org/sarif-2.1.0.json","version":"2.1.0","runs":[{"tool":)";
    AppendDumped(out, {{"driver", driver}});
    out += R"(,"columnKind":"utf16CodeUnits","originalUriBaseIds":)";
    AppendDumped(out, {{kBase, base}});
    out += ",\"results\":[\n";
}

void PrintSarif(std::string& out, const ReportedFinding& reported, bool) {
    const Finding& finding = reported.finding;
    Json location = {
        {"physicalLocation", {{"artifactLocation", ArtifactLocation(reported.file)}, {"region", RegionOf(reported)}}}};
    if (!finding.key.empty()) {
        location["logicalLocations"] = Json::array({{{"fullyQualifiedName", WellFormed(finding.key)}}});
    }
    const std::string help = finding.help.empty() ? "" : '\n' + finding.help;
    Json result = {{"ruleId", finding.code->name},
                   {"ruleIndex", IndexOf(*finding.code)},
                   {"level", NameOf(reported.severity)},
                   {"message", TextMessage(finding.message + help)},
                   {"locations", Json::array({location})}};
    if (finding.hasReplacement && reported.IsInText()) {
        result["fixes"] = Json::array({FixOf(reported)});
    }
    AppendDumped(out, result);
}

void EndSarif(std::string& out, std::span<const std::string> problems) {
    Json notifications = Json::array();
    for (const std::string& problem : problems) {
        notifications.push_back({{"level", "error"}, {"message", TextMessage(problem)}});
    }
    out += "\n],\"invocations\":";
    AppendDumped(
        out, Json::array({{{"executionSuccessful", problems.empty()}, {"toolExecutionNotifications", notifications}}}));
    out += "}]}\n";
}

} // namespace Vorn
