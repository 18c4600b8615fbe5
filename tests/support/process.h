#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Vorn {

// How a process ended: its status, or the signal that killed it.
struct ProcessResult {
    int status = 0;
    int signal = 0;
    std::string output;
    // Standard error, without the source positions of failed checks.
    std::string reports;

    // Killed by a signal, but not because of the time limit.
    bool EndedAbnormally() const;
};

enum class Tracing { Off, On };

// Runs the built converter in `folder` with the arguments given, for a minute at most. With tracing a debugger is
// attached all the time. `prepare` is called in the new process before the converter is started.
ProcessResult RunConverter(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
                           Tracing tracing = Tracing::Off, void (*prepare)() = nullptr);

// The same with another program.
ProcessResult RunProgram(const char* program, const std::vector<std::string>& arguments,
                         const std::filesystem::path& folder, Tracing tracing = Tracing::Off,
                         void (*prepare)() = nullptr);

} // namespace Vorn
