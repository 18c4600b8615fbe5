#include "tests/support/tempfolder.h"
#include "tools/kelvanekit/destination.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

class DestinationTest : public testing::Test {
protected:
    std::string Name(const std::string& name) const { return (folder.Path() / name).string(); }
    std::string Write(const std::string& name, std::string_view bytes, const DestinationOptions& options = {}) {
        DestinationWriter writer(options);
        const std::string problem = writer.Write(Name(name), bytes);
        return problem.empty() ? writer.Finish() : problem;
    }
    std::optional<std::string> Get(const std::string& name) { return ReadBytes(folder.Path() / name); }
    mode_t ModeOf(const std::string& name) {
        struct stat status = {};
        EXPECT_EQ(stat(Name(name).c_str(), &status), 0);
        return status.st_mode & 07777;
    }
    // Names that begin with a dot among them.
    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder.Path())) {
            names.push_back(entry.path().filename().string());
        }
        std::ranges::sort(names);
        return names;
    }
    // The temporary file of a destination that is there, as a killed process leaves it.
    std::string LeaveTemporaryFile(const std::string& name) {
        if (const pid_t child = fork(); child == 0) {
            const rlimit tooSmall = {0, 0};
            std::signal(SIGXFSZ, SIG_DFL);
            setrlimit(RLIMIT_FSIZE, &tooSmall);
            DestinationWriter({}).Write(Name(name), "killed");
            _exit(0);
        } else {
            waitpid(child, nullptr, 0);
        }
        std::vector<std::string> names = Names();
        return names.empty() ? "" : names.front();
    }

    TempFolder folder;
};

TEST_F(DestinationTest, KeepsPermissionsAndFollowsLinks) {
    EXPECT_EQ(Write("a", "one"), "");
    chmod(Name("a").c_str(), 0640);
    fs::create_directory(Name("sub"));
    fs::create_symlink("../b", Name("sub/link"));
    fs::create_symlink("a", Name("b"));
    EXPECT_EQ(Write("sub/link", "two"), "");
    EXPECT_EQ(Get("a"), "two");
    EXPECT_EQ(ModeOf("a"), 0640U);
    fs::create_symlink("new", Name("dangling"));
    EXPECT_EQ(Write("dangling", "three"), "");
    EXPECT_EQ(Get("new"), "three");
    fs::create_symlink("round", Name("round"));
    EXPECT_EQ(Write("round", "four"), "Too many levels of symbolic links");
    EXPECT_EQ(Write("sub", "five"), "Is a directory");
    EXPECT_EQ(Names(), (std::vector<std::string>{"a", "b", "dangling", "new", "round", "sub"}));
}

TEST_F(DestinationTest, KeepsAnOldFileBehindANewOne) {
    WriteBytes(Name("b"), "old");
    chmod(Name("b").c_str(), 0640);
    WriteBytes(Name("c"), "same");
    const auto written = fs::last_write_time(Name("c")) - std::chrono::hours(1);
    fs::last_write_time(Name("c"), written);
    fs::create_symlink("b", Name("link"));
    DestinationWriter writer({});
    for (const auto& [name, bytes] : {std::pair("a", "one"), {"b", "two"}, {"d", "new"}, {"c", "same"}}) {
        EXPECT_EQ(writer.Write(Name(name), bytes), "");
        EXPECT_EQ(Get(name), bytes);
    }
    EXPECT_EQ(ModeOf("b"), 0640U);
    EXPECT_EQ(fs::last_write_time(Name("c")), written);
    EXPECT_EQ(writer.Write(Name("e"), "new"), "");
    EXPECT_EQ(writer.Write(Name("link"), "three"), "");
    EXPECT_EQ(Get("b"), "three");
    EXPECT_EQ(Names(), (std::vector<std::string>{"a", "b", "c", "d", "e", "link"}));
}

TEST_F(DestinationTest, WritesDirectlyToWhatIsNoFile) {
    EXPECT_EQ(DestinationWriter({}).Write("/dev/null", "anything"), "");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    ASSERT_EQ(mkfifo(Name("pipe").c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = Get("pipe").value_or(""); });
    EXPECT_EQ(Write("pipe", "through"), "");
    reader.join();
    EXPECT_EQ(read, "through");
}

TEST_F(DestinationTest, MakesFolders) {
    DestinationOptions options;
    options.sync = true;
    EXPECT_EQ(Write("x/y/a", "one", options), "");
    EXPECT_EQ(Get("x/y/a"), "one");
    EXPECT_EQ(Write("x/y/a/b", "two", options), "Not a directory");
}

TEST_F(DestinationTest, WriteProtectionHolds) {
    // Nothing is protected from the superuser.
    constexpr uid_t kNobody = 65534;
    const uid_t user = geteuid();
    if (user == 0) {
        ASSERT_EQ(chown(folder.Path().c_str(), kNobody, kNobody), 0);
        ASSERT_EQ(seteuid(kNobody), 0);
    }
    EXPECT_EQ(Write("a", "one"), "");
    chmod(Name("a").c_str(), 0444);
    EXPECT_EQ(Write("a", "two"), "Permission denied");
    EXPECT_EQ(Get("a"), "one");
    EXPECT_EQ(seteuid(user), 0);
}

TEST_F(DestinationTest, RemovesWhatAKilledRunLeftAndWaitsForOneThatLives) {
    WriteBytes(Name("a"), "old");
    const std::string left = LeaveTemporaryFile("a");
    ASSERT_TRUE(left.starts_with(".kelvane-kit-")) << left;
    const int descriptor = open(Name(left).c_str(), O_RDONLY);
    ASSERT_EQ(flock(descriptor, LOCK_EX), 0);
    std::thread owner([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_EQ(Get("a"), "old") << "written in spite of the lock";
        close(descriptor);
    });
    EXPECT_EQ(Write("a", "new"), "");
    owner.join();
    EXPECT_EQ(Names(), std::vector<std::string>{"a"});
    EXPECT_EQ(Get("a"), "new");
}

#if defined(__linux__) && defined(__x86_64__)

// What befalls the child at one of its system calls.
enum class Fault { Kill, DiskFull, Interrupted };

bool IsOfFiles(unsigned long long call) {
    static constexpr unsigned long long kCalls[] = {
        SYS_openat, SYS_flock,  SYS_fstat, SYS_newfstatat, SYS_read,     SYS_write,     SYS_fcntl,     SYS_close,
        SYS_linkat, SYS_fchmod, SYS_fsync, SYS_unlinkat,   SYS_renameat, SYS_faccessat, SYS_faccessat2};
    return std::ranges::find(kCalls, call) != std::end(kCalls);
}

// Runs a child up to its n-th system call of files and lets the fault befall it there. Its status, -1 if it was killed,
// or nothing if it came to its end before.
template <class Run>
std::optional<int> RunWithFault(int n, Fault fault, Run run) {
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        _exit(run());
    }
    int status = 0;
    waitpid(child, &status, 0);
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    bool isEntry = true;
    bool isHit = false;
    int count = 0;
    while (ptrace(PTRACE_SYSCALL, child, nullptr, nullptr) == 0 && waitpid(child, &status, 0) == child &&
           WIFSTOPPED(status)) {
        user_regs_struct registers = {};
        ptrace(PTRACE_GETREGS, child, nullptr, &registers);
        if (isEntry && IsOfFiles(registers.orig_rax) && ++count == n) {
            isHit = true;
            if (fault == Fault::Kill) {
                kill(child, SIGKILL);
                waitpid(child, &status, 0);
                return -1;
            }
            // No such call: it does nothing and fails.
            registers.orig_rax = static_cast<unsigned long long>(-1);
            ptrace(PTRACE_SETREGS, child, nullptr, &registers);
        } else if (!isEntry && isHit && count == n) {
            const int error = fault == Fault::DiskFull ? ENOSPC : EINTR;
            registers.rax = static_cast<unsigned long long>(-error);
            ptrace(PTRACE_SETREGS, child, nullptr, &registers);
            ++count;
        }
        isEntry = !isEntry;
    }
    return isHit ? std::optional(WEXITSTATUS(status)) : std::nullopt;
}

class DestinationFaultTest : public DestinationTest, public testing::WithParamInterface<Fault> {};

TEST_P(DestinationFaultTest, LeavesAWholeFileAndNothingElse) {
    const Fault fault = GetParam();
    for (const std::optional<std::string>& old : {std::optional<std::string>(), std::optional<std::string>("old")}) {
        const auto reset = [&] { old ? WriteBytes(Name("a"), *old) : void(fs::remove(Name("a"))); };
        DestinationOptions options;
        options.sync = true;
        bool isReached = true;
        int n = 1;
        for (; isReached; ++n) {
            SCOPED_TRACE("system call " + std::to_string(n));
            reset();
            const std::optional<int> status =
                RunWithFault(n, fault, [&] { return Write("a", "all of the new bytes", options).empty() ? 0 : 1; });
            isReached = status.has_value();
            const std::optional<std::string> present = Get("a");
            EXPECT_TRUE(present == old || present == "all of the new bytes") << present.value_or("no file");
            if (status == 0) {
                EXPECT_EQ(present, "all of the new bytes");
            }
            EXPECT_EQ(Write("a", "later"), "");
            EXPECT_EQ(Names(), std::vector<std::string>{"a"});
        }
        EXPECT_GT(n, 10);
    }
}

INSTANTIATE_TEST_SUITE_P(All, DestinationFaultTest, testing::Values(Fault::Kill, Fault::DiskFull, Fault::Interrupted));

#endif

} // namespace

} // namespace Vorn
