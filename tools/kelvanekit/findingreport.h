#pragma once

#include "tools/kelvanekit/findingforms.h"
#include "tools/kelvanekit/outputstream.h"

#include <limits>

namespace Vorn {

// Colours at a terminal, or as the user says.
enum class ColorMode : std::uint8_t { Auto, Always, Never };

// How findings are put out.
struct ReportOptions {
    const FindingForm* form = nullptr;
    // Findings beyond are counted only.
    std::size_t maxFindings = std::numeric_limits<std::size_t>::max();
    bool warningsAsErrors = false;
    // Codes that are of no interest.
    std::vector<const FindingCode*> disabled;
    ColorMode colors = ColorMode::Auto;
};

// Exit statuses of all commands.
inline constexpr int kNothingFound = 0;
inline constexpr int kFindings = 1;
inline constexpr int kNotDone = 2;

// The findings of one file, ready for the output.
struct RenderedFindings {
    std::string text;
    // Where each finding ends in the text.
    std::vector<std::size_t> ends;
    // By severity.
    std::size_t counts[3] = {};

    bool HasErrors() const { return counts[0] > 0; }
    std::size_t Count() const { return counts[0] + counts[1] + counts[2]; }
};

// Puts out the findings of many files, counts them, and tells the exit status.
class FindingReport {
public:
    // Findings go to `output`, everything else to `errors`.
    FindingReport(const ReportOptions& options, OutputStream& output, OutputStream& errors);
    FindingReport(const FindingReport&) = delete;
    FindingReport& operator=(const FindingReport&) = delete;

    // Makes the text of a file's findings. Threads may call it at a time.
    RenderedFindings Render(std::string_view name, std::string_view bytes, const Findings& findings) const;

    // Puts out what was rendered. False if nobody reads it any more.
    bool Add(const RenderedFindings& findings);

    // Something could not be done: a sentence that begins with the name of the file.
    void AddProblem(std::string problem);

    // Ends the output, with the counts on the last line of standard error. The exit status.
    int Finish(std::size_t fileCount);

private:
    std::string Counts(std::size_t fileCount) const;

    const ReportOptions& options;
    OutputStream& output;
    OutputStream& errors;
    const bool hasColors;
    std::size_t shown = 0;
    std::size_t counts[3] = {};
    std::vector<std::string> problems;
};

} // namespace Vorn
