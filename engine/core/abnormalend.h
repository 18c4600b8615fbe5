#pragma once

namespace Vorn {

// The one way in which the process ends by a fault: what was written reaches its file, then the process aborts, with no
// unwinding and no text of its own.
[[noreturn]] void EndAbnormally();

// Something that has to be brought to safety before the process ends abnormally. Lives in a list of its thread while it
// exists, and is called in the thread that ends, the latest first. One that throws keeps the process alive: the end is
// an exception then, for whoever made the guard.
class EndGuard {
public:
    EndGuard();
    EndGuard(const EndGuard&) = delete;
    EndGuard& operator=(const EndGuard&) = delete;

    // Must not allocate: the end may come from memory running out.
    virtual void BeforeAbnormalEnd() = 0;

protected:
    ~EndGuard();

private:
    friend void EndAbnormally();

    EndGuard* next;
};

// The largest storage in bytes of a list that grows. One that asks for more ends the process, so that the same file
// ends the same way on every machine.
inline constexpr unsigned long long kMaxListBytes = 2147483647;

} // namespace Vorn
