#pragma once

namespace Vorn {

// While it lives, a signal that asks the program to end is only noted, so that the work comes to a place where nothing
// is left behind; then the signal takes effect. A second one takes effect at once.
class Interruption {
public:
    Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption();

    static bool IsWanted();
};

} // namespace Vorn
