#pragma once

#include "tools/kelvanekit/check/mend.h"
#include "tools/kelvanekit/check/sourcetext.h"

#include <functional>

namespace Vorn {

// Passes over the lines of a text in order, but for lines that mends leave out or exchange.
class LineCursor {
public:
    // What is told of a mend when its line is reached.
    using OnMend = std::function<void(const Mend& mend)>;

    // The mends are those of lines.
    LineCursor(const SourceText& _text, Mends _mends);

    // The number of the next line, and where it begins.
    std::int32_t Line() const { return line; }
    const char* Place() const { return place; }
    bool IsAtEnd() const { return place == text.End(); }

    // The next line without its end.
    std::string_view Ahead() const;

    // Whether the next line may be passed by PassTo: there is no mend.
    bool IsPlain() const { return line != stopLine; }

    // Passes the next line, whose end is known.
    void PassTo(const char* end) {
        place = end;
        ++line;
    }
    // The same in the order of the mends.
    void Pass();

    void GoTo(std::int32_t newLine);

    // Follows the mends of the next line. From now on no line that has one is plain.
    void FollowMends(const OnMend& onMend);

    // No line is plain any more, or not the next one.
    void StopForGood() { isStopped = true, stopLine = line; }
    void StopHere() { stopLine = line; }

private:
    void UpdateStop();

    const SourceText& text;
    Mends mends;
    std::size_t nextMend = 0;
    const char* place;
    std::int32_t line = 0;
    std::int32_t stopLine = kNone;
    // The first of two lines that change places, until both are passed.
    std::int32_t swapLine = kNone;
    bool isSwapDone = false;
    bool isStopped = false;
};

} // namespace Vorn
