#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Vorn {

// What became of a process: a status, or the signal that killed it.
struct ProcessResult {
    int status = 0;
    int signal = 0;
    std::string output;
    // Standard error, without the source position in front of failed checks.
    std::string reports;

    // Killed by a signal of its own making, not for running too long.
    bool EndedAbnormally() const;
};

enum class Tracing { Off, On };

// Runs the built converter in `folder` with the arguments given, for a minute at most. With tracing a debugger is
// attached to it all the time. `prepare` runs in the new process, right before it becomes the converter.
ProcessResult RunConverter(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
                           Tracing tracing = Tracing::Off, void (*prepare)() = nullptr);

// The same with another program.
ProcessResult RunProgram(const char* program, const std::vector<std::string>& arguments,
                         const std::filesystem::path& folder, Tracing tracing = Tracing::Off,
                         void (*prepare)() = nullptr);

} // namespace Vorn
