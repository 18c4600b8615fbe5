#include "tests/support/casesource.h"
#include "tests/support/process.h"
#include "tests/support/tempfolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

using Arguments = std::vector<std::string>;

constexpr std::string_view kUsage = "Usage: kelvane type src dest [format]\n"
                                    "\t-type can be mesh, particle, brushes, entity,saveGame\n"
                                    "\t-format can be txt, bin. defaults to bin and bin only for saveGame\n";

// Runs of the built converter on small files of a fresh folder.
class DriverTest : public testing::Test {
protected:
    DriverTest() {
        Put("empty.brushes", emptySet);
        Put("damaged.brushes", CurrentHeader(false) + "wrong 1\n");
    }

    void Put(const std::string& name, std::string_view bytes) { WriteBytes(folder.Path() / name, bytes); }
    std::optional<std::string> Get(const std::string& name) { return ReadBytes(folder.Path() / name); }
    ProcessResult Run(const Arguments& arguments) { return RunConverter(arguments, folder.Path()); }

    // A run with status 0 and these reports, and nothing on standard output.
    void ExpectReports(const Arguments& arguments, const std::string& reports) {
        const ProcessResult result = Run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.reports, reports);
    }

    const std::string emptySet = CurrentHeader(false) + "onlyLoadOnDemand FALSE\r\nbrushCount 0\r\n";
    const std::string emptyBinary = CurrentHeader(true) + std::string(5, '\0');

    TempFolder folder;
};

std::string Unopened(const std::string& name) {
    return "Failed to Open File: '" + name + "'\n";
}

TEST_F(DriverTest, UsageAndUnknownTypes) {
    for (const Arguments& arguments : {Arguments{}, {"brushes"}, {"nonsense", "a"}, {"saveGame", "a"}}) {
        const ProcessResult result = Run(arguments);
        EXPECT_EQ(result.output, kUsage);
        EXPECT_EQ(result.status, 255);
        EXPECT_EQ(result.reports, "");
    }
    for (const std::string type : {"Mesh", "PARTICLE", "Brushes", "savegame", "entity ", "", "m\xC3\xBC\xFFsh"}) {
        const ProcessResult result = Run({type, "empty.brushes", "dest"});
        EXPECT_EQ(result.output, type + " is an unknown convert type");
        EXPECT_EQ(result.status, 255);
        EXPECT_EQ(result.reports, "");
    }
    EXPECT_FALSE(Get("dest"));
}

TEST_F(DriverTest, OnlyTxtSelectsText) {
    ExpectReports({"brushes", "empty.brushes", "dest", "txt", "ignored"}, "");
    EXPECT_EQ(Get("dest"), emptySet);
    for (const Arguments& format : {Arguments{}, {"bin"}, {"TXT"}, {"xyz"}, {""}}) {
        Arguments arguments = {"brushes", "empty.brushes", "dest"};
        arguments.insert(arguments.end(), format.begin(), format.end());
        ExpectReports(arguments, "");
        EXPECT_EQ(Get("dest"), emptyBinary);
    }
    ExpectReports({"brushes", "dest", "dest", "txt"}, "");
    EXPECT_EQ(Get("dest"), emptySet) << "a file may be converted onto itself";
}

TEST_F(DriverTest, SourcesThatDoNotOpenEndTheProcess) {
    Put("dest", "untouched");
    fs::create_directory(folder.Path() / "folder");
    for (const std::string source : {"missing", "folder", "empty.brushes/below", ""}) {
        const ProcessResult result = Run({"brushes", source, "dest"});
        EXPECT_TRUE(result.EndedAbnormally()) << source;
        EXPECT_EQ(result.reports, Unopened(source) + Unopened(source));
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(Get("dest"), "untouched");
    }
}

TEST_F(DriverTest, PipesAreSources) {
    const std::string pipe = (folder.Path() / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] { WriteBytes(pipe, emptySet); });
    ExpectReports({"brushes", "pipe", "dest"}, "");
    writer.join();
    EXPECT_EQ(Get("dest"), emptyBinary);
}

TEST_F(DriverTest, DestinationsThatFail) {
    fs::create_directory(folder.Path() / "folder");
    for (const std::string dest : {"no/where", "folder", ""}) {
        ExpectReports({"brushes", "empty.brushes", dest, "txt"}, Unopened(dest));
        ExpectReports({"saveGame", "empty.brushes", dest}, "");
    }
    if (fs::exists("/dev/full")) {
        ExpectReports({"brushes", "empty.brushes", "/dev/full", "txt"}, "assert! [closeResult == 0]\n");
        ExpectReports({"saveGame", "empty.brushes", "/dev/full"}, "");
    }
}

TEST_F(DriverTest, StatusIsNoWordOnTheContent) {
    const ProcessResult result = Run({"brushes", "damaged.brushes", "dest", "txt"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.reports.find("Label: brushCount\n"), std::string::npos);
    EXPECT_EQ(Get("dest"), emptySet);
    Put("garbage", "neither form");
    ExpectReports(
        {"brushes", "garbage", "dest"},
        "Missing \n in garbage\n\nThis is a mostly harmless error message usually caused by forgetting to hit "
        "enter at the end of the last line of the file\n"
        "Could not detect if Archive File is Binary or Text: garbage\n");
    EXPECT_EQ(Get("dest"), emptyBinary);
}

TEST_F(DriverTest, NamesOfAnyBytesOpen) {
    const std::string odd = "S\xFC\xC3\xB6\xF0\x9F\x9A\x80%%\\\"";
    Put(odd, emptySet);
    ExpectReports({"brushes", odd, odd + "2", "txt"}, "");
    EXPECT_EQ(Get(odd + "2"), emptySet);
    EXPECT_EQ(Run({"brushes", odd, odd + "/x"}).reports, Unopened("S\xEF\xBF\xBD\xC3\xB6\xF0\x9F\x9A\x80%%\\\"/x"));
    // The file is opened, but the name in reports is cut. The name of a brush set is cut before it is opened.
    const std::string steps(300, '/');
    ExpectReports({"brushes", "empty.brushes", folder.Path().string() + steps + "dest"},
                  "assert! [GetLength( source ) < destination.m_BufferSize]\nassert! [! FAILED( hr )]\n");
    EXPECT_EQ(Get("dest"), emptyBinary);
    EXPECT_TRUE(Run({"brushes", folder.Path().string() + steps + "empty.brushes", "dest"}).EndedAbnormally());
}

TEST_F(DriverTest, DefinitionsAreNamedAfterTheirFiles) {
    const std::string text = "TXT\nentityType \"Cosmetic\"\n";
    const std::string longest(79, 'n');
    Put(longest + ".entity", text);
    Put(longest + "n.entity", text);
    const std::string labels = Run({"entity", longest + ".entity", "dest"}).reports;
    EXPECT_TRUE(labels.starts_with("Text FileArchive missing Label.")) << labels;
    EXPECT_TRUE(Get("dest"));
    ExpectReports({"entity", longest + "n.entity", "none"}, "EntityDefName is too long: " + longest + "n\n");
    EXPECT_FALSE(Get("none"));
}

TEST_F(DriverTest, SaveGamesAreStamped) {
    std::string hundred(100, '\0');
    std::generate(hundred.begin(), hundred.end(), [n = 0]() mutable { return static_cast<char>(n++ * 7); });
    std::string stamped = hundred;
    stamped[4] = '(';
    std::string large(300000, 'x');
    std::string largeStamped = large;
    largeStamped[4] = '(';
    struct Row {
        std::string source;
        std::string dest;
    };
    const Row rows[] = {
        {"abc", std::string("abc\0(", 5)}, {"abcd", "abcd("}, {hundred, stamped}, {"", ""}, {large, largeStamped}};
    for (const Row& row : rows) {
        Put("save", row.source);
        ExpectReports({"saveGame", "save", "dest", "txt"}, "");
        EXPECT_EQ(Get("dest"), row.dest);
        EXPECT_EQ(Get("save"), row.source);
    }
    fs::create_directory(folder.Path() / "folder");
    for (const char* source : {"missing", "folder"}) {
        Put("dest", "old");
        ExpectReports({"saveGame", source, "dest"}, "");
        EXPECT_EQ(Get("dest"), "") << source;
    }
    ExpectReports({"saveGame", "save", "save"}, "");
    EXPECT_EQ(Get("save"), "");
}

TEST_F(DriverTest, FilesStayOffClosedStreams) {
    Run({"brushes", "damaged.brushes", "dest"});
    Put("closed", "");
    const ProcessResult result =
        RunConverter({"brushes", "damaged.brushes", "closed"}, folder.Path(), Tracing::Off, [] {
            for (const int stream : {0, 1, 2}) {
                close(stream);
            }
        });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Get("closed"), Get("dest"));
}

TEST_F(DriverTest, ALimitOfFileSizesIsLikeAFullDisk) {
    const ProcessResult result = RunConverter({"brushes", "empty.brushes", "dest"}, folder.Path(), Tracing::Off, [] {
        const rlimit tenBytes = {10, 10};
        setrlimit(RLIMIT_FSIZE, &tenBytes);
        // The limit applies to standard error too, which is a file here.
        dup2(open("/dev/null", O_WRONLY), 2);
    });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Get("dest"), emptyBinary.substr(0, 10));
}

TEST_F(DriverTest, DebuggersSilenceChecksOnly) {
    Put("count.brushes", "TXT\nonlyLoadOnDemand FALSE\nbrushCount none\nbrush");
    Put("label.brushes", "TXT\nonlyLoadOnDemand maybe\nbrushes 0\n");
    EXPECT_EQ(Run({"brushes", "count.brushes", "dest"}).reports, "assert! [result == 1]\n");
    const ProcessResult traced = RunConverter({"brushes", "count.brushes", "dest"}, folder.Path(), Tracing::On);
    EXPECT_EQ(traced.status, 0);
    EXPECT_EQ(traced.reports, "");
    const std::string both = Run({"brushes", "label.brushes", "dest"}).reports;
    EXPECT_TRUE(both.starts_with("assert! [false]\nText FileArchive missing Label."));
    EXPECT_EQ(RunConverter({"brushes", "label.brushes", "dest"}, folder.Path(), Tracing::On).reports,
              both.substr(both.find('\n') + 1));
}

} // namespace

} // namespace Vorn
