#pragma once

#include "tools/kelvanekit/outputstream.h"

#include <chrono>

namespace Vorn {

// A bar on standard error, at a terminal and once the work takes longer than a second.
class ProgressBar {
public:
    ProgressBar(OutputStream& _errors, std::size_t _total);
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar() { Clear(); }

    // So many steps are done.
    void Show(std::size_t done);

    // Takes the bar off the screen, for other output; the next step brings it back.
    void Clear();

private:
    using Clock = std::chrono::steady_clock;

    OutputStream& errors;
    const std::size_t total;
    const bool enabled;
    bool visible = false;
    Clock::time_point due;
};

} // namespace Vorn
