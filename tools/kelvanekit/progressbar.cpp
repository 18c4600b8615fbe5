#include "tools/kelvanekit/progressbar.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr std::chrono::milliseconds kFirst{1000};
constexpr std::chrono::milliseconds kBetween{100};
constexpr std::size_t kWidth = 40;

} // namespace

ProgressBar::ProgressBar(OutputStream& _errors, std::size_t _total)
    : errors(_errors), total(std::max<std::size_t>(_total, 1)), enabled(_errors.IsTerminal()),
      due(Clock::now() + kFirst) {}

void ProgressBar::Show(std::size_t done) {
    if (!enabled) {
        return;
    }
    const Clock::time_point now = Clock::now();
    if (now < due) {
        return;
    }
    due = now + kBetween;
    const std::size_t filled = kWidth * std::min(done, total) / total;
    errors.Write("\r[" + std::string(filled, '#') + std::string(kWidth - filled, ' ') + "] " + std::to_string(done) +
                 " of " + std::to_string(total));
    errors.Flush();
    visible = true;
}

void ProgressBar::Clear() {
    if (visible) {
        // To the beginning of the line, and nothing behind it.
        errors.Write("\r");
        errors.Write(std::string(kWidth + 2 * std::to_string(total).size() + 7, ' '));
        errors.Write("\r");
        errors.Flush();
        visible = false;
        due = Clock::now();
    }
}

} // namespace Vorn
