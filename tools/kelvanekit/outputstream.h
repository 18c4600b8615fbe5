#pragma once

#include <cstddef>
#include <string>
#include <string_view>

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

    // Whether something could not be written; all that follows is dropped. `Problem` is empty if nobody reads any more.
    bool HasFailed() const { return failed; }
    const std::string& Problem() const { return problem; }

private:
    bool WriteAll(std::string_view bytes);

    const Target target;
    std::string buffer;
    bool failed = false;
    std::string problem;
};

} // namespace Vorn
