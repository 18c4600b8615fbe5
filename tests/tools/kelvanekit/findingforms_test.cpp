#include "tools/kelvanekit/findingforms.h"

#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/columns.h"
#include "tools/kelvanekit/findingreport.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <set>

namespace Vorn {

namespace {

using Json = nlohmann::json;

constexpr std::string_view kText = "\xEF\xBB\xBFTXT2\r\nZephArchiveVersion 194\r\n\t\tsize \"lig\xC3\xA4t\" x\r\n";

Finding TextFinding() {
    Finding finding;
    finding.place = {3, 7, 15, -1};
    finding.code = Code("unknown-text");
    finding.key = "lamp[1].size";
    finding.message = "`lig\xC3\xA4t` is no size";
    finding.help = "did you mean `Light`?";
    finding.replacement = "\"Light\"";
    finding.hasReplacement = true;
    return finding;
}

Finding BinaryFinding() {
    Finding finding;
    finding.place = {0, 0, 0, 4711};
    finding.code = Code("lost-decimals");
    finding.message = "50% of 1,\nor: 2";
    return finding;
}

// What a form makes of findings, as one file and without problems.
std::string Printed(std::string_view form, const Findings& findings, std::string_view name = "a b/l\xC3\xA4mp.entity",
                    std::string_view text = kText) {
    std::string out;
    const SourceText lines(text);
    for (const Finding& finding : findings) {
        FindForm(form)->print(out, {finding, finding.code->severity, name, lines.Line(finding.place.line - 1)}, false);
    }
    return out;
}

std::string PrintedAs(std::string_view form, const Finding& finding, std::string_view line) {
    std::string out;
    FindForm(form)->print(out, {finding, finding.code->severity, "f", line}, false);
    return out;
}

TEST(FindingFormsTest, PrettyShowsTheLineAndTheRange) {
    EXPECT_EQ(Printed("pretty", {TextFinding()}),
              "a b/l\xC3\xA4mp.entity:3:8: error: `lig\xC3\xA4t` is no size [unknown-text]\n"
              "   3 |         size \"lig\xC3\xA4t\" x\n"
              "     |              ^~~~~~~\n"
              "     = key: lamp[1].size\n"
              "     = help: did you mean `Light`?\n");
    EXPECT_EQ(Printed("pretty", {BinaryFinding()}),
              "a b/l\xC3\xA4mp.entity:+4711: note: 50% of 1,\xE2\x90\x8Aor: 2 [lost-decimals]\n");
}

TEST(FindingFormsTest, PrettyCutsLongLinesAndCountsColumns) {
    Finding finding;
    finding.code = Code("text-too-long");
    finding.message = "m";
    finding.place = {12345, 300, 900, -1};
    const std::string ellipsis = "\xE2\x80\xA6";
    EXPECT_EQ(PrintedAs("pretty", finding, std::string(300, 'a') + std::string(700, 'b')),
              "f:12345:301: error: m [text-too-long]\n"
              " 12345 | " +
                  ellipsis + std::string(40, 'a') + std::string(60, 'b') + ellipsis +
                  "\n"
                  "       | " +
                  std::string(41, ' ') + "^" + std::string(59, '~') + "\n");
    // Two columns for a wide character, none for a combining one, a picture for a control character.
    finding.place = {1, 3, 9, -1};
    EXPECT_EQ(PrintedAs("pretty", finding,
                        "\xE5\xA4\xA7"
                        "a\xCC\x88\x1B\xFF!"),
              "f:1:2: error: m [text-too-long]\n"
              "   1 | \xE5\xA4\xA7"
              "a\xCC\x88\xE2\x90\x9B\xEF\xBF\xBD!\n"
              "     |   ^~~~\n");
    // Places behind the end of the line and of the file.
    finding.place = {2, 90, 95, -1};
    EXPECT_EQ(PrintedAs("pretty", finding, "ab"), "f:2:3: error: m [text-too-long]\n   2 | ab\n     |   ^\n");
    EXPECT_EQ(PrintedAs("pretty", finding, ""), "f:2:1: error: m [text-too-long]\n");
}

TEST(FindingFormsTest, LineAndGithubStayOnOneLine) {
    EXPECT_EQ(Printed("line", {TextFinding(), BinaryFinding()}),
              "a b/l\xC3\xA4mp.entity:3:8: error: `lig\xC3\xA4t` is no size (did you mean `Light`?) [unknown-text]\n"
              "a b/l\xC3\xA4mp.entity:+4711: note: 50% of 1,\xE2\x90\x8Aor: 2 [lost-decimals]\n");
    EXPECT_EQ(Printed("github", {TextFinding(), BinaryFinding()}, "a,b:c%\n"),
              "::error file=a%2Cb%3Ac%25%0A,line=3,col=8,title=unknown-text::`lig\xC3\xA4t` is no size%0Adid you mean "
              "`Light`?\n"
              "::notice file=a%2Cb%3Ac%25%0A,title=lost-decimals::At byte 4711: 50%25 of 1,%0Aor: 2\n");
}

TEST(FindingFormsTest, JsonHasOneObjectALine) {
    const std::string out = Printed("json", {TextFinding(), BinaryFinding()}, "bad\xFF");
    const std::size_t end = out.find('\n');
    EXPECT_EQ(Json::parse(out.substr(0, end)),
              Json::parse(R"({"file":"bad\ufffd","line":3,"column":8,"severity":"error","code":"unknown-text",
                              "key":"lamp[1].size","message":"`lig\u00e4t` is no size",
                              "help":"did you mean `Light`?"})"));
    EXPECT_EQ(Json::parse(out.substr(end)),
              Json::parse(R"({"file":"bad\ufffd","offset":4711,"severity":"note","code":"lost-decimals","key":"",
                              "message":"50% of 1,\nor: 2","help":""})"));
}

// The rules of the format that hold for what is written here.
void ExpectValidSarif(const Json& log) {
    EXPECT_EQ(log.at("version"), "2.1.0");
    EXPECT_TRUE(log.at("$schema").get<std::string>().ends_with("sarif-2.1.0.json"));
    ASSERT_EQ(log.at("runs").size(), 1u);
    const Json& run = log["runs"][0];
    EXPECT_EQ(run.at("columnKind"), "utf16CodeUnits");
    const Json& rules = run.at("tool").at("driver").at("rules");
    EXPECT_FALSE(run["tool"]["driver"].at("name").get<std::string>().empty());
    std::set<std::string> ids;
    for (const Json& rule : rules) {
        EXPECT_TRUE(ids.insert(rule.at("id")).second) << rule;
        EXPECT_TRUE(rule.at("shortDescription").at("text").get<std::string>().ends_with('.')) << rule;
        EXPECT_FALSE(rule.at("help").at("text").get<std::string>().empty());
    }
    const std::set<std::string> levels = {"none", "note", "warning", "error"};
    for (const Json& result : run.at("results")) {
        EXPECT_EQ(rules.at(result.at("ruleIndex").get<std::size_t>()).at("id"), result.at("ruleId"));
        EXPECT_TRUE(levels.contains(result.at("level")));
        EXPECT_FALSE(result.at("message").at("text").get<std::string>().empty());
        const Json& place = result.at("locations").at(0).at("physicalLocation");
        const auto uri = place.at("artifactLocation").at("uri").get<std::string>();
        EXPECT_EQ(uri.find_first_of(" \\\"<>%{}|^`"
                                    "\xC3",
                                    uri.find('%') == std::string::npos ? 0 : uri.size()),
                  std::string::npos);
        const Json& region = place.at("region");
        if (region.contains("byteOffset")) {
            EXPECT_GE(region["byteOffset"], 0);
            EXPECT_FALSE(region.contains("startLine"));
        } else {
            EXPECT_GE(region.at("startLine"), 1);
            EXPECT_GE(region.at("startColumn"), 1);
            EXPECT_GE(region.at("endColumn"), region["startColumn"]);
        }
    }
    for (const Json& invocation : run.at("invocations")) {
        EXPECT_TRUE(invocation.at("executionSuccessful").is_boolean());
    }
}

TEST(FindingFormsTest, SarifKeepsItsRules) {
    Finding wide = TextFinding();
    wide.place = {1, 4, 5, -1};
    std::string out;
    BeginSarif(out);
    out += Printed("sarif", {TextFinding()}) + ",\n" + Printed("sarif", {BinaryFinding()}, "/x/../y z") + ",\n" +
           Printed("sarif", {wide}, "./f", "\xF0\x9F\x98\x80x");
    const std::string problem[] = {"f: No such file"};
    EndSarif(out, problem);
    const Json log = Json::parse(out);
    ExpectValidSarif(log);
    const Json& run = log["runs"][0];
    ASSERT_EQ(run["results"].size(), 3u);
    EXPECT_EQ(run["results"][0]["locations"][0]["physicalLocation"], Json::parse(R"({
        "artifactLocation": {"uri": "a%20b/l%C3%A4mp.entity", "uriBaseId": "SRCROOT"},
        "region": {"startLine": 3, "startColumn": 8, "endLine": 3, "endColumn": 15}})"));
    EXPECT_EQ(run["results"][0]["fixes"][0]["artifactChanges"][0]["replacements"][0]["insertedContent"]["text"],
              "\"Light\"");
    EXPECT_EQ(run["results"][1]["locations"][0]["physicalLocation"], Json::parse(R"({
        "artifactLocation": {"uri": "file:///y%20z"}, "region": {"byteOffset": 4711, "byteLength": 0}})"));
    EXPECT_EQ(run["results"][2]["locations"][0]["physicalLocation"]["artifactLocation"]["uri"], "f");
    EXPECT_EQ(run["results"][2]["locations"][0]["physicalLocation"]["region"]["startColumn"], 3);
    EXPECT_TRUE(run["originalUriBaseIds"].contains("SRCROOT"));
    EXPECT_FALSE(run["invocations"][0]["executionSuccessful"].get<bool>());

    std::string empty;
    BeginSarif(empty);
    EndSarif(empty, {});
    ExpectValidSarif(Json::parse(empty));
}

TEST(FindingFormsTest, FindingsAreLeftOutRaisedAndCounted) {
    ReportOptions options;
    options.form = FindForm("line");
    options.maxFindings = 2;
    options.warningsAsErrors = true;
    options.disabled = {Code("lost-decimals")};
    OutputStream output(OutputStream::Target::Output);
    const FindingReport report(options, output, output);
    Finding warning = TextFinding();
    warning.code = Code("duplicate-name");
    const RenderedFindings rendered = report.Render("f", kText, {BinaryFinding(), warning, TextFinding(), warning});
    EXPECT_EQ(rendered.counts[0], 3u);
    EXPECT_EQ(rendered.Count(), 3u);
    EXPECT_EQ(rendered.ends.size(), 2u);
    EXPECT_TRUE(rendered.text.starts_with("f:3:8: error: ")) << rendered.text;
    EXPECT_EQ(rendered.ends.back(), rendered.text.size());
}

TEST(SourceTextTest, LinesOfAllEncodingsInAnyOrder) {
    const std::string_view utf8 = "\xEF\xBB\xBF"
                                  "a\r\n\n\xE4\xBD\xA0 b\rc\nlast";
    std::string little;
    std::string big;
    for (const char16_t unit : std::u16string_view(u"\uFEFF"
                                                   u"a\r\n\n\u4F60 b\rc\nlast")) {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        little += {low, high};
        big += {high, low};
    }
    for (const std::string_view text : {utf8, std::string_view(little), std::string_view(big)}) {
        const SourceText lines(text);
        for (const int number : {1, 4, 3, 2, 1, 4}) {
            constexpr std::string_view kLines[] = {"a", "", "\xE4\xBD\xA0 b\rc", "last"};
            EXPECT_EQ(lines.Line(number - 1), kLines[number - 1]) << number;
        }
        EXPECT_EQ(lines.Line(-1), "");
        EXPECT_EQ(lines.Line(4), "");
        EXPECT_EQ(lines.LineCount(), 4);
    }
    EXPECT_EQ(SourceText("").LineCount(), 0);
    EXPECT_EQ(SourceText("\xFF\xFE"
                         "a")
                  .Line(0),
              "\xFF");
    EXPECT_EQ(CharacterColumn("\xF0\x9F\x98\x80\xFFx", 5), 3);
    EXPECT_EQ(UnitColumn("\xF0\x9F\x98\x80\xFFx", 5), 4);
    EXPECT_EQ(CharacterColumn("ab", 99), 3);
}

TEST(FindingCodesTest, EachCodeIsExplained) {
    for (const FindingCode& code : kFindingCodes) {
        EXPECT_EQ(FindCode(code.name), &code) << "twice: " << code.name;
        EXPECT_TRUE(SummaryOf(code).ends_with('.')) << code.name;
        EXPECT_TRUE(code.explanation.ends_with('\n')) << code.name;
        EXPECT_EQ(code.name.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string_view::npos) << code.name;
    }
    EXPECT_EQ(FindCode("Missing-key"), nullptr);
    EXPECT_EQ(UnknownCode("mising-kye"), "no code 'mising-kye'; did you mean `missing-key`?");
    EXPECT_EQ(UnknownCode("xyz"), "no code 'xyz'");
}

} // namespace

} // namespace Vorn
