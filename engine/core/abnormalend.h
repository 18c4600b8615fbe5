#pragma once

namespace Vorn {

// Ends the process because of a fault, the only way to do so: what was written is flushed to its files, then the
// process aborts, without unwinding and without a message.
[[noreturn]] void EndAbnormally();

// Is called before the process ends abnormally, to save what must not be lost. Guards are in a list of their thread as
// long as they exist, and those of the thread that ends are called, the latest one first. A guard that throws keeps the
// process alive: its owner catches the exception instead.
class EndGuard {
public:
    EndGuard();
    EndGuard(const EndGuard&) = delete;
    EndGuard& operator=(const EndGuard&) = delete;

    // Must not allocate: the reason of the end may be that memory ran out.
    virtual void BeforeAbnormalEnd() = 0;

protected:
    ~EndGuard();

private:
    friend void EndAbnormally();

    EndGuard* next;
};

// The most bytes that a growing list may allocate. A request for more ends the process, so that the same file has the
// same result on every machine.
inline constexpr unsigned long long kMaxListBytes = 2147483647;

} // namespace Vorn
