#include "tools/kelvanekit/findingforms.h"
#include "tools/kelvanekit/columns.h"

#include "tools/kelvanekit/visibletext.h"

#include <algorithm>

namespace Vorn {

namespace {

void PrintNothing(std::string&) {}
void PrintNoProblems(std::string&, std::span<const std::string>) {}

constexpr FindingForm kForms[] = {
    {"pretty", PrintNothing, "", PrintPretty, PrintNoProblems}, {"line", PrintNothing, "", PrintLine, PrintNoProblems},
    {"json", PrintNothing, "", PrintJson, PrintNoProblems},     {"sarif", BeginSarif, ",\n", PrintSarif, EndSarif},
    {"github", PrintNothing, "", PrintGithub, PrintNoProblems},
};

// What a command of a build log must not have in its data, and less so in its properties.
void AppendEscaped(std::string& out, std::string_view text, std::string_view special) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    for (const char byte : text) {
        if (special.find(byte) == std::string_view::npos) {
            out += byte;
        } else {
            out += {'%', kDigits[static_cast<unsigned char>(byte) >> 4], kDigits[byte & 15]};
        }
    }
}

} // namespace

std::span<const FindingForm> FindingForms() {
    return kForms;
}

const FindingForm* FindForm(std::string_view name) {
    const auto* form = std::ranges::find(kForms, name, &FindingForm::name);
    return form == std::end(kForms) ? nullptr : form;
}

std::string_view NameOf(Severity severity) {
    constexpr std::string_view kNames[] = {"error", "warning", "note"};
    return kNames[static_cast<std::size_t>(severity)];
}

void AppendSentence(std::string& out, Severity severity, const Finding& finding) {
    out.append(NameOf(severity)).append(": ");
    AppendVisible(out, finding.message);
    if (!finding.help.empty()) {
        out += " (";
        AppendVisible(out, finding.help);
        out += ')';
    }
    out.append(" [").append(finding.code->name).append("]\n");
}

void PrintLine(std::string& out, const ReportedFinding& reported, bool) {
    const Finding& finding = reported.finding;
    AppendVisible(out, reported.file);
    if (reported.IsInText()) {
        out += ':' + std::to_string(finding.place.line) + ':' +
               std::to_string(CharacterColumn(reported.line, finding.place.begin));
    } else {
        out += ":+" + std::to_string(finding.place.offset);
    }
    out += ": ";
    AppendSentence(out, reported.severity, finding);
}

void PrintGithub(std::string& out, const ReportedFinding& reported, bool) {
    constexpr std::string_view kData = "%\r\n";
    constexpr std::string_view kProperty = "%\r\n:,";
    const Finding& finding = reported.finding;
    out += "::";
    out += reported.severity == Severity::Note ? "notice" : NameOf(reported.severity);
    out += " file=";
    AppendEscaped(out, WellFormed(reported.file), kProperty);
    if (reported.IsInText()) {
        out += ",line=" + std::to_string(finding.place.line) +
               ",col=" + std::to_string(CharacterColumn(reported.line, finding.place.begin));
    }
    out += ",title=";
    AppendEscaped(out, finding.code->name, kProperty);
    out += "::";
    if (!reported.IsInText()) {
        out += "At byte " + std::to_string(finding.place.offset) + ": ";
    }
    AppendEscaped(out, WellFormed(finding.message), kData);
    if (!finding.help.empty()) {
        AppendEscaped(out, "\n", kData);
        AppendEscaped(out, WellFormed(finding.help), kData);
    }
    out += '\n';
}

} // namespace Vorn
