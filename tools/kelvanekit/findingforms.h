#pragma once

#include "tools/kelvanekit/findings/finding.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

// A finding with what its output needs.
struct ReportedFinding {
    const Finding& finding;
    // As it counts here, which need not be as its code has it.
    Severity severity;
    // The name of the file.
    std::string_view file;
    // The line of a text file as UTF-8; empty for a binary file.
    std::string_view line;

    bool IsInText() const { return finding.place.line > 0; }
};

// A form of the output. What is printed in one go is: begin, all findings with the separator between them, end.
struct FindingForm {
    std::string_view name;
    void (*begin)(std::string& out);
    std::string_view separator;
    // Appends a finding, with colours if they are wanted and the form has any.
    void (*print)(std::string& out, const ReportedFinding& finding, bool colors);
    // The problems are what kept files from being looked at.
    void (*end)(std::string& out, std::span<const std::string> problems);
};

std::span<const FindingForm> FindingForms();

// The form of that name, or null.
const FindingForm* FindForm(std::string_view name);

std::string_view NameOf(Severity severity);

// "error: MESSAGE (HELP) [CODE]" and the end of the line.
void AppendSentence(std::string& out, Severity severity, const Finding& finding);

// One finding in each of the forms.
void PrintPretty(std::string& out, const ReportedFinding& finding, bool colors);
void PrintLine(std::string& out, const ReportedFinding& finding, bool colors);
void PrintGithub(std::string& out, const ReportedFinding& finding, bool colors);
void PrintJson(std::string& out, const ReportedFinding& finding, bool colors);
void PrintSarif(std::string& out, const ReportedFinding& finding, bool colors);
void BeginSarif(std::string& out);
void EndSarif(std::string& out, std::span<const std::string> problems);

} // namespace Vorn
