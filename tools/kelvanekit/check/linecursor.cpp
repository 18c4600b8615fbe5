#include "tools/kelvanekit/check/linecursor.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Vorn {

LineCursor::LineCursor(const SourceText& _text, Mends _mends)
    : text(_text), mends(std::move(_mends)), place(_text.Start()) {
    std::ranges::stable_sort(mends, {}, &Mend::line);
    UpdateStop();
}

std::string_view LineCursor::Ahead() const {
    const auto left = static_cast<std::size_t>(text.End() - place);
    const void* lineFeed = left == 0 ? nullptr : std::memchr(place, '\n', left);
    std::string_view content(
        place, lineFeed == nullptr ? left : static_cast<std::size_t>(static_cast<const char*>(lineFeed) - place));
    if (content.ends_with('\r')) {
        content.remove_suffix(1);
    }
    return content;
}

void LineCursor::Pass() {
    if (swapLine == kNone) {
        const void* lineFeed = std::memchr(place, '\n', static_cast<std::size_t>(text.End() - place));
        PassTo(lineFeed == nullptr ? text.End() : static_cast<const char*>(lineFeed) + 1);
        UpdateStop();
    } else if (!isSwapDone) {
        isSwapDone = true;
        GoTo(swapLine);
    } else {
        GoTo(std::exchange(swapLine, kNone) + 2);
    }
}

void LineCursor::GoTo(std::int32_t newLine) {
    line = std::min(newLine, text.LineCount());
    place = text.LineStart(line);
    UpdateStop();
}

void LineCursor::FollowMends(const OnMend& onMend) {
    while (swapLine == kNone && nextMend < mends.size() && mends[nextMend].line <= line) {
        const Mend& mend = mends[nextMend++];
        if (mend.line < line) {
            continue;
        }
        onMend(mend);
        if (mend.kind == Mend::Kind::SkipLines) {
            GoTo(line + mend.value);
        } else {
            swapLine = line;
            isSwapDone = false;
            GoTo(line + 1);
        }
    }
    UpdateStop();
}

void LineCursor::UpdateStop() {
    if (swapLine != kNone || isStopped) {
        stopLine = line;
    } else {
        stopLine = nextMend < mends.size() ? mends[nextMend].line : kNone;
    }
}

} // namespace Vorn
