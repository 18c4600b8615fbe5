#include "tests/support/caseupdate.h"

#include "tests/support/binaryform.h"

#include <algorithm>

namespace Vorn {

namespace {

using Offset = Lines::difference_type;

constexpr std::string_view kMissing = "Text FileArchive missing Label.";
constexpr std::string_view kCheck = "assert! [";

// The length of the longest common part of a[i...] and b[j...], for all i and j.
std::vector<std::vector<int>> CommonLengths(const Lines& a, const Lines& b) {
    std::vector lengths(a.size() + 1, std::vector<int>(b.size() + 1));
    for (std::size_t i = a.size(); i-- > 0;) {
        for (std::size_t j = b.size(); j-- > 0;) {
            lengths[i][j] = a[i] == b[j] ? lengths[i + 1][j + 1] + 1 : std::max(lengths[i + 1][j], lengths[i][j + 1]);
        }
    }
    return lengths;
}

// Changes `lines` from `at` on: `dropped` of them become `added`. The changes are added to `result`.
class Changes {
public:
    explicit Changes(Lines _lines) : lines(std::move(_lines)) {}

    // Returns the index after the change. Lines with the same key at either end are the same line with another value.
    std::size_t Replace(std::size_t at, std::size_t dropped, const Lines& added) {
        const std::size_t common = std::min(dropped, added.size());
        std::size_t front = 0;
        while (front < common && IsSameKey(lines[at + front], added[front])) {
            Set(at + front, added[front]);
            ++front;
        }
        std::size_t back = 0;
        while (back < common - front && IsSameKey(lines[at + dropped - back - 1], added[added.size() - back - 1])) {
            ++back;
        }
        at += front;
        Drop(at, dropped - front - back);
        const Lines middle(added.begin() + static_cast<Offset>(front), added.end() - static_cast<Offset>(back));
        Add(at, middle);
        at += middle.size();
        for (; back > 0; --back) {
            Set(at++, added[added.size() - back]);
        }
        return at;
    }

    const Lines& Result() const { return result; }

private:
    static bool IsSameKey(const std::string& line, const std::string& other) {
        return KeyOfLine(line) == KeyOfLine(other) && DepthOf(line) == DepthOf(other);
    }

    void Tell(const std::string& change) { result.push_back("out " + change); }

    void Set(std::size_t at, const std::string& line) {
        if (lines[at] != line) {
            Tell("set " + PathOf(lines, at) + " " + std::string(ValueOf(line)));
            lines[at] = line;
        }
    }

    void Add(std::size_t at, const Lines& added) {
        if (added.empty()) {
            return;
        }
        Tell("add before " + PathOf(lines, at));
        for (const std::string& line : added) {
            result.push_back("|" + line);
        }
        lines.insert(lines.begin() + static_cast<Offset>(at), added.begin(), added.end());
    }

    void Drop(std::size_t at, std::size_t dropped) {
        if (dropped == 0) {
            return;
        }
        if (EndOfBlock(lines, at) == at + dropped) {
            Tell("drop " + PathOf(lines, at));
        } else if (EndOfBlock(lines, at + dropped - 1) == at + dropped) {
            Tell("drop " + PathOf(lines, at) + " to " + PathOf(lines, at + dropped - 1));
        } else {
            for (std::size_t i = 0; i < dropped; ++i) {
                Tell("drop-label " + PathOf(lines, at));
                lines.erase(lines.begin() + static_cast<Offset>(at));
            }
            return;
        }
        lines.erase(lines.begin() + static_cast<Offset>(at), lines.begin() + static_cast<Offset>(at + dropped));
    }

    Lines lines;
    Lines result;
};

Lines SplitLines(std::string_view text) {
    Lines lines;
    for (; !text.empty(); text.remove_prefix(std::min(lines.back().size() + 1, text.size()))) {
        lines.emplace_back(text.substr(0, text.find('\n')));
    }
    return lines;
}

std::string Escaped(std::string_view bytes) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string escaped;
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        escaped += {'\\', 'x', kDigits[number / 16], kDigits[number % 16]};
    }
    return escaped;
}

std::string WithEscapes(std::string_view text) {
    std::string escaped;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t times = std::min(text.find_first_not_of(text[i], i), text.size()) - i;
        constexpr std::size_t kManyTimes = 40;
        if (times > kManyTimes) {
            escaped += Escaped(text.substr(i, 1)) + "*" + std::to_string(times);
            i += times;
            continue;
        }
        const char sign = text[i++];
        escaped += sign == '\\' ? "\\\\" : sign == '\r' ? "\\r" : sign == '\0' ? "\\0" : std::string(1, sign);
    }
    return escaped;
}

// Collects the lines of a case for the reports.
class ReportLines {
public:
    explicit ReportLines(const SourceLines& _source) : source(_source) {}

    // Removes the report of a missing key from the start of `reports` if there is one.
    bool TakeMissing(std::string_view& reports) {
        const std::string key = ValueBehind(reports, "Label: ");
        const std::string number = ValueBehind(reports, "Line Number:");
        if (!reports.starts_with(kMissing) || source.lines.empty() || number.empty() || std::stoul(number) < misses) {
            return false;
        }
        const std::size_t lineNumber = std::stoul(number);
        const std::size_t waiting = std::min(lineNumber - misses, source.lines.size());
        const std::string report = source.MissingReport(key, lineNumber, waiting);
        if (waiting < source.headerLines || !reports.starts_with(report)) {
            return false;
        }
        reports.remove_prefix(report.size());
        const std::size_t again = lineNumber - misses - waiting;
        misses += again + 1;
        Tell(key, " at " + PathOf(source.Content(), waiting - source.headerLines), again);
        return true;
    }

    void TakeLine(const std::string& line, std::size_t times) {
        std::string_view text = line;
        std::string verb = "report";
        misses += line == kMissing ? 1 : 0;
        if (line.starts_with(kCheck) && line.ends_with(']')) {
            verb = "check";
            text = text.substr(kCheck.size(), text.size() - kCheck.size() - 1);
        }
        const std::string shown = verb == "check" ? std::string(text) : WithEscapes(text);
        result.push_back(verb + (times > 1 ? "s " + std::to_string(times) : "") + " " + shown);
    }

    void TakeParagraphs(const Lines& lines) {
        result.push_back("report");
        for (const std::string& line : lines) {
            result.push_back("|" + WithEscapes(line));
        }
    }

    const Lines& Result() const { return result; }

private:
    static std::string ValueBehind(std::string_view reports, std::string_view start) {
        const std::size_t at = std::min(reports.find(start), reports.size() - start.size());
        const std::string_view value = reports.substr(at + start.size());
        return std::string(value.substr(0, value.find('\n')));
    }

    void Tell(const std::string& key, const std::string& place, std::size_t again) {
        constexpr std::size_t kWidth = 110;
        const bool isSame = again == 0 && !result.empty() && result.back().starts_with("missing") &&
                            result.back().ends_with(place) && result.back().size() + key.size() < kWidth;
        if (isSame) {
            result.back().insert(result.back().size() - place.size(), " " + key);
        } else {
            result.push_back("missing " + key + place + (again == 0 ? "" : "+" + std::to_string(again)));
        }
    }

    const SourceLines& source;
    std::size_t misses = 0;
    Lines result;
};

// The number of lines that the first report has, which may contain empty or indented lines.
std::size_t ParagraphLines(const Lines& lines) {
    std::size_t end = 1;
    std::size_t last = 1;
    for (; end < lines.size() && lines[end] != kMissing && !lines[end].starts_with(kCheck); ++end) {
        if (lines[end].empty() || lines[end].front() == ' ') {
            last = end + 1;
        }
    }
    return last > 1 ? end : 1;
}

} // namespace

Lines DescribeChanges(Lines expected, const Lines& actual) {
    const auto common = CommonLengths(expected, actual);
    Changes changes(expected);
    std::size_t at = 0;
    for (std::size_t i = 0, j = 0; i < expected.size() || j < actual.size(); ++at) {
        if (i < expected.size() && j < actual.size() && expected[i] == actual[j]) {
            ++i;
            ++j;
            continue;
        }
        const std::size_t firstDropped = i;
        Lines added;
        while ((i < expected.size() || j < actual.size()) &&
               (i == expected.size() || j == actual.size() || expected[i] != actual[j])) {
            if (j == actual.size() || (i < expected.size() && common[i + 1][j] >= common[i][j + 1])) {
                ++i;
            } else {
                added.push_back(actual[j++]);
            }
        }
        at = changes.Replace(at, i - firstDropped, added) - 1;
    }
    return changes.Result();
}

Lines DescribeReports(std::string_view reports, const SourceLines& source) {
    ReportLines result(source);
    while (!reports.empty()) {
        if (result.TakeMissing(reports)) {
            continue;
        }
        const Lines lines = SplitLines(reports);
        const auto next = std::find_if(lines.begin(), lines.end(), [&](const auto& line) { return line != lines[0]; });
        const std::size_t times = static_cast<std::size_t>(next - lines.begin());
        const std::size_t paragraphs = times == 1 ? ParagraphLines(lines) : 1;
        if (paragraphs > 1) {
            result.TakeParagraphs({lines.begin(), lines.begin() + static_cast<Offset>(paragraphs)});
        } else {
            result.TakeLine(lines[0], times);
        }
        for (std::size_t i = 0; i < std::max(times, paragraphs); ++i) {
            reports.remove_prefix(std::min(lines[i].size() + 1, reports.size()));
        }
    }
    return result.Result();
}

Lines DescribeBytes(const Lines& text, std::string_view fields) {
    Lines result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string expected = BinaryValue(text[i]);
        std::size_t size = expected.size();
        if (ValueOf(text[i]).starts_with('"') && fields.size() >= 4) {
            size = 4 + 2 * (static_cast<unsigned char>(fields[0]) + 256u * static_cast<unsigned char>(fields[1]));
        }
        const std::string_view actual = fields.substr(0, size);
        if (actual != expected) {
            result.push_back("out bytes " + PathOf(text, i) + " " + Escaped(actual));
        }
        fields.remove_prefix(actual.size());
    }
    return result;
}

} // namespace Vorn
