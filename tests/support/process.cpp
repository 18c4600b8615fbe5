#include "tests/support/process.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Vorn {

namespace {

constexpr unsigned kSecondsToRun = 60;

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

Stream MakeStream() {
    return {std::tmpfile(), std::fclose};
}

std::string Content(std::FILE* stream) {
    std::string content;
    std::rewind(stream);
    for (int byte = std::getc(stream); byte != EOF; byte = std::getc(stream)) {
        content += static_cast<char>(byte);
    }
    return content;
}

std::string WithoutPositions(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        const std::string_view line = text.substr(0, end);
        const std::size_t check = line.find(": assert! [");
        result += line.substr(check == std::string_view::npos ? 0 : check + 2);
        text.remove_prefix(end);
    }
    return result;
}

[[noreturn]] void BecomeProgram(const char* program, const std::vector<std::string>& arguments, const char* folder,
                                Tracing tracing, void (*prepare)()) {
    std::vector<char*> argv = {const_cast<char*>(program)};
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    const rlimit noCoreFile = {0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
    alarm(kSecondsToRun);
    if (tracing == Tracing::On) {
        // The leak check cannot run in a traced process.
        setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    }
    if (prepare != nullptr) {
        prepare();
    }
    if (chdir(folder) == 0) {
        execv(program, argv.data());
    }
    _exit(127);
}

// Waits for the end; a traced process is sent on at each stop.
int WaitFor(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) == child && WIFSTOPPED(status)) {
        const int signal = WSTOPSIG(status) == SIGTRAP ? 0 : WSTOPSIG(status);
        ptrace(PTRACE_CONT, child, nullptr, signal);
    }
    return status;
}

} // namespace

bool ProcessResult::EndedAbnormally() const {
    return signal != 0 && signal != SIGALRM;
}

ProcessResult RunConverter(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
                           Tracing tracing, void (*prepare)()) {
    return RunProgram(KELVANE_EXECUTABLE, arguments, folder, tracing, prepare);
}

ProcessResult RunProgram(const char* program, const std::vector<std::string>& arguments,
                         const std::filesystem::path& folder, Tracing tracing, void (*prepare)()) {
    const Stream output = MakeStream();
    const Stream reports = MakeStream();
    const std::string folderName = folder.string();
    const pid_t child = fork();
    if (child == 0) {
        dup2(fileno(output.get()), STDOUT_FILENO);
        dup2(fileno(reports.get()), STDERR_FILENO);
        BecomeProgram(program, arguments, folderName.c_str(), tracing, prepare);
    }
    const int status = WaitFor(child);
    ProcessResult result;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    result.output = Content(output.get());
    result.reports = WithoutPositions(Content(reports.get()));
    return result;
}

} // namespace Vorn
