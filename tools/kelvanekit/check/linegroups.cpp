#include "tools/kelvanekit/check/linegroups.h"

#include "tools/kelvanekit/check/askedfield.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr std::int32_t kLongestMerge = 48;
constexpr std::int32_t kLongestRun = 1000;

} // namespace

std::int32_t RemarkLength(const SourceText& text, std::int32_t line) {
    const std::string_view key = KeyOf(text.Line(line));
    const Remark remark = RemarkOf(key);
    if (line >= text.LineCount() || (!key.empty() && remark == Remark::None)) {
        return 0;
    }
    if (remark == Remark::MergeMiddle) {
        for (std::int32_t end = line + 1; end < std::min(line + kLongestMerge, text.LineCount()); ++end) {
            if (RemarkOf(KeyOf(text.Line(end))) == Remark::MergeEnd) {
                return end - line + 1;
            }
        }
    }
    return 1;
}

std::int32_t GroupLength(const SourceText& text, std::int32_t line) {
    const std::int32_t indentation = IndentationOf(text.Line(line));
    std::int32_t end = line + 1;
    while (end < text.LineCount() && IndentationOf(text.Line(end)) > indentation) {
        ++end;
    }
    return end - line;
}

std::int32_t RepeatedLine(const SourceText& text, std::int32_t line) {
    const std::string_view key = KeyOf(text.Line(line));
    std::int32_t repeated = kNone;
    for (std::int32_t at = line; at > std::max(line - kLongestRun, 0) && KeyOf(text.Line(at - 1)) == key; --at) {
        if (Trimmed(text.Line(at - 1)) == Trimmed(text.Line(at))) {
            if (repeated != kNone) {
                return kNone;
            }
            repeated = at;
        }
    }
    return repeated;
}

} // namespace Vorn
