#include "tools/kelvanekit/findingreport.h"

#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/visibletext.h"

#include <algorithm>
#include <optional>

namespace Vorn {

namespace {

std::string Counted(std::size_t count, const std::string& what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

} // namespace

FindingReport::FindingReport(const ReportOptions& _options, OutputStream& _output, OutputStream& _errors)
    : options(_options), output(_output), errors(_errors),
      hasColors(options.colors == ColorMode::Always || (options.colors == ColorMode::Auto && _output.ShowsColors())) {
    std::string text;
    options.form->begin(text);
    output.Write(text);
}

RenderedFindings FindingReport::Render(std::string_view name, std::string_view bytes, const Findings& findings) const {
    RenderedFindings rendered;
    std::optional<SourceText> text;
    for (const Finding& finding : findings) {
        if (std::ranges::find(options.disabled, finding.code) != options.disabled.end()) {
            continue;
        }
        const bool isRaised = options.warningsAsErrors && finding.code->severity == Severity::Warning;
        const Severity severity = isRaised ? Severity::Error : finding.code->severity;
        ++rendered.counts[static_cast<std::size_t>(severity)];
        if (rendered.ends.size() < options.maxFindings) {
            if (finding.place.line > 0 && !text) {
                text.emplace(bytes);
            }
            const std::string_view line = text ? text->Line(finding.place.line - 1) : std::string_view();
            options.form->print(rendered.text, {finding, severity, name, line}, hasColors);
            rendered.ends.push_back(rendered.text.size());
        }
    }
    return rendered;
}

bool FindingReport::Add(const RenderedFindings& findings) {
    for (std::size_t i = 0; i < std::size(counts); ++i) {
        counts[i] += findings.counts[i];
    }
    std::size_t begin = 0;
    for (const std::size_t end : findings.ends) {
        if (shown >= options.maxFindings) {
            break;
        }
        if (shown++ > 0) {
            output.Write(options.form->separator);
        }
        output.Write(std::string_view(findings.text).substr(begin, end - begin));
        begin = end;
    }
    return !output.HasFailed();
}

void FindingReport::AddProblem(std::string problem) {
    std::string visible;
    AppendVisible(visible, problem);
    output.Flush();
    errors.Write("kelvane-kit: " + visible + '\n');
    errors.Flush();
    problems.push_back(std::move(problem));
}

int FindingReport::Finish(std::size_t fileCount) {
    std::string text;
    options.form->end(text, problems);
    output.Write(text);
    output.Flush();
    if (const std::string problem = output.TakeProblem(); !problem.empty()) {
        AddProblem("the findings cannot be written: " + problem);
    }
    errors.Write(Counts(fileCount));
    errors.Flush();
    if (!problems.empty() || output.HasFailed()) {
        return kNotDone;
    }
    return counts[0] + counts[1] + counts[2] > 0 ? kFindings : kNothingFound;
}

std::string FindingReport::Counts(std::size_t fileCount) const {
    std::string text = Counted(counts[0], "error") + ", " + Counted(counts[1], "warning");
    if (counts[2] > 0) {
        text += ", " + Counted(counts[2], "note");
    }
    text += " in " + Counted(fileCount, "file");
    if (shown < counts[0] + counts[1] + counts[2]) {
        text += ", of which " + std::to_string(shown) + (shown == 1 ? " is shown" : " are shown");
    }
    return text + '\n';
}

} // namespace Vorn
