#include "tools/kelvanekit/columns.h"
#include "tools/kelvanekit/findingforms.h"
#include "tools/kelvanekit/visibletext.h"

#include <algorithm>

namespace Vorn {

namespace {

// Columns of a source line that are shown, and those in front of the place of interest where the line is longer.
constexpr int kShownColumns = 100;
constexpr int kColumnsBefore = 40;
constexpr std::size_t kLeastGutter = 4;
constexpr std::string_view kCut = "\xE2\x80\xA6";

struct Painter {
    bool colors;

    void Paint(std::string& out, std::string_view style, std::string_view text) const {
        if (colors) {
            out.append("\x1B[").append(style).append("m").append(text).append("\x1B[0m");
        } else {
            out += text;
        }
    }
};

constexpr std::string_view kBold = "1";
constexpr std::string_view kBlue = "1;34";
constexpr std::string_view kGreen = "1;32";

std::string_view StyleOf(Severity severity) {
    constexpr std::string_view kStyles[] = {"1;31", "1;35", "1;36"};
    return kStyles[static_cast<std::size_t>(severity)];
}

// A source line as it is shown, with the columns of its range.
struct Excerpt {
    std::string text;
    int begin = 0;
    int end = 0;
};

// The columns that a part of a line fills.
int ColumnsOf(std::string_view text) {
    int columns = 0;
    while (!text.empty()) {
        const VisibleCharacter character = FirstVisible(text);
        columns += character.width;
        text.remove_prefix(character.length);
    }
    return columns;
}

Excerpt MakeExcerpt(std::string_view line, std::size_t begin, std::size_t end) {
    Excerpt excerpt;
    excerpt.begin = ColumnsOf(line.substr(0, begin));
    excerpt.end = excerpt.begin + std::max(ColumnsOf(line.substr(begin, end - begin)), 1);
    const int whole = ColumnsOf(line);
    const int first = whole <= kShownColumns ? 0 : std::max(0, excerpt.begin - kColumnsBefore);
    const int last = first + kShownColumns;
    int column = 0;
    if (first > 0) {
        excerpt.text += kCut;
    }
    while (!line.empty() && column < last) {
        const VisibleCharacter character = FirstVisible(line);
        if (column >= first) {
            excerpt.text += character.text;
        } else if (column + character.width > first) {
            // Half of a wide character is left.
            excerpt.text.append(static_cast<std::size_t>(column + character.width - first), ' ');
        }
        column += character.width;
        line.remove_prefix(character.length);
    }
    if (!line.empty()) {
        excerpt.text += kCut;
    }
    const int shift = first > 0 ? first - 1 : 0;
    excerpt.end = std::min(excerpt.end, std::max(last, excerpt.begin + 1)) - shift;
    excerpt.begin -= shift;
    return excerpt;
}

void PrintHead(std::string& out, const ReportedFinding& reported, const Painter& painter) {
    const FindingPlace& place = reported.finding.place;
    std::string where;
    AppendVisible(where, reported.file);
    where += reported.IsInText()
                 ? ':' + std::to_string(place.line) + ':' + std::to_string(CharacterColumn(reported.line, place.begin))
                 : ":+" + std::to_string(place.offset);
    painter.Paint(out, kBold, where + ": ");
    painter.Paint(out, StyleOf(reported.severity), std::string(NameOf(reported.severity)) + ": ");
    std::string message;
    AppendVisible(message, reported.finding.message);
    painter.Paint(out, kBold, message);
    out.append(" [").append(reported.finding.code->name).append("]\n");
}

void PrintExcerpt(std::string& out, const ReportedFinding& reported, std::size_t gutter, const Painter& painter) {
    const FindingPlace& place = reported.finding.place;
    const auto inLine = [&](std::int32_t byte) {
        return std::min(static_cast<std::size_t>(std::max(byte, 0)), reported.line.size());
    };
    const std::size_t begin = inLine(place.begin);
    const Excerpt excerpt = MakeExcerpt(reported.line, begin, std::max(begin, inLine(place.end)));
    const std::string number = std::to_string(place.line);
    painter.Paint(out, kBlue, std::string(gutter - number.size(), ' ') + number + " | ");
    out.append(excerpt.text).append("\n");
    painter.Paint(out, kBlue, std::string(gutter, ' ') + " | ");
    out.append(static_cast<std::size_t>(excerpt.begin), ' ');
    painter.Paint(out, kGreen, '^' + std::string(static_cast<std::size_t>(excerpt.end - excerpt.begin - 1), '~'));
    out += '\n';
}

void PrintDetail(std::string& out, std::string_view name, std::string_view text, std::size_t gutter,
                 const Painter& painter) {
    painter.Paint(out, kBlue, std::string(gutter, ' ') + " = ");
    painter.Paint(out, kBold, std::string(name) + ": ");
    AppendVisible(out, text);
    out += '\n';
}

} // namespace

void PrintPretty(std::string& out, const ReportedFinding& reported, bool colors) {
    const Painter painter{colors};
    const Finding& finding = reported.finding;
    const std::size_t gutter = std::max(kLeastGutter, std::to_string(finding.place.line).size() + 1);
    PrintHead(out, reported, painter);
    if (!reported.line.empty()) {
        PrintExcerpt(out, reported, gutter, painter);
    }
    // A key by itself stands in the line already.
    if (finding.key.find_first_of(".[") != std::string::npos || (!finding.key.empty() && !reported.IsInText())) {
        PrintDetail(out, "key", finding.key, gutter, painter);
    }
    if (!finding.help.empty()) {
        PrintDetail(out, "help", finding.help, gutter, painter);
    }
}

} // namespace Vorn
