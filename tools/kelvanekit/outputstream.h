#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace Vorn {

// Standard output or standard error, through a buffer. Text is UTF-8, on a console of any platform.
class OutputStream {
public:
    enum class Target { Output = 1, Error = 2 };

    explicit OutputStream(Target _target) : target(_target) {}
    OutputStream(const OutputStream&) = delete;
    OutputStream& operator=(const OutputStream&) = delete;
    ~OutputStream() { Flush(); }

    bool IsTerminal() const;

    // Colours are shown at a terminal, unless the environment asks for none.
    bool ShowsColors() const;

    // Buffers the text, and writes what is there once it is much.
    void Write(std::string_view text);
    void Flush();

    // Whether something could not be written; all that follows is dropped.
    bool HasFailed() const { return failed; }

    // The reason, given once; empty if all was written, or if nobody reads any more.
    std::string TakeProblem() { return std::exchange(problem, {}); }

private:
    bool WriteAll(std::string_view bytes);

    const Target target;
    std::string buffer;
    bool failed = false;
    std::string problem;
};

} // namespace Vorn
