#include "tests/support/casesource.h"
#include "tests/support/process.h"
#include "tests/support/tempfolder.h"
#include "tools/kelvanekit/convertplan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sys/resource.h>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

using Arguments = std::vector<std::string>;

SourceFile Source(const std::string& name, std::size_t tail) {
    return {name, ContentKind::Entity, false, tail};
}

TEST(ConvertPlanTest, FoldersGetTheFilesWithTheirSubFolders) {
    const TempFolder folder;
    const std::string root = folder.Path().string();
    const std::vector<SourceFile> one = {Source("x/a.entity", 2)};
    EXPECT_EQ(PlanConversions(one, {"x/a.entity"}, root + "/out").destinations, std::vector{root + "/out"});
    EXPECT_EQ(PlanConversions(one, {"x/a.entity"}, root + "/out/").destinations, std::vector{root + "/out/a.entity"});
    EXPECT_EQ(PlanConversions(one, {"x/a.entity"}, root).destinations, std::vector{root + "/a.entity"});
    EXPECT_EQ(PlanConversions(one, {"x/a.entity", "y"}, root + "/out").destinations,
              std::vector{root + "/out/a.entity"});
    const ConvertPlan plan =
        PlanConversions({Source("x/a.entity", 2), Source("x/deep/a.entity", 2)}, {"x", "y"}, "out");
    EXPECT_EQ(plan.destinations, (std::vector<std::string>{"out/a.entity", "out/deep/a.entity"}));
    EXPECT_TRUE(plan.problems.empty());
    SourceFile input = Source("/some/where/b.entity", 0);
    input.isStandardInput = true;
    EXPECT_EQ(PlanConversions({input}, {"-"}, "out/").destinations, std::vector<std::string>{"out/b.entity"});
}

TEST(ConvertPlanTest, RefusesDestinationsThatAreNotFree) {
    const auto problemsOf = [](const std::vector<SourceFile>& sources, const std::string& output) {
        return PlanConversions(sources, {"x", "y"}, output).problems;
    };
    EXPECT_EQ(problemsOf({Source("x/a.entity", 2), Source("y/b.entity", 2), Source("y/a.entity", 2)}, "out"),
              std::vector<std::string>{"'x/a.entity' and 'y/a.entity' would both become 'out/a.entity'"});
    EXPECT_EQ(problemsOf({Source("x/y/a.entity", 2), Source("y/a.entity", 2)}, "."),
              std::vector<std::string>{"'x/y/a.entity' would overwrite 'y/a.entity', which is to be converted too"});
    EXPECT_EQ(problemsOf({Source("x/a.entity", 2), Source("x/b.entity", 2)}, "x/../x"), std::vector<std::string>())
        << "files may be converted onto themselves";
}

// Runs of the built program on files of a fresh folder.
class ConvertTest : public testing::Test {
protected:
    ConvertTest() {
        fs::copy(KELVANE_SAMPLES, folder.Path() / "in", fs::copy_options::recursive);
        for (const auto& [name, bytes] : Tree("in")) {
            Put("in/" + name, InCurrentVersion(bytes));
        }
        Put("damaged.brushes", CurrentHeader(false) + "onlyLoadOnDemand maybe\r\nbrushCount 0\r\n");
    }

    ProcessResult Run(Arguments arguments, void (*prepare)() = nullptr) {
        arguments.insert(arguments.begin(), "convert");
        return RunProgram(KELVANE_KIT_EXECUTABLE, arguments, folder.Path(), Tracing::Off, prepare);
    }
    std::optional<std::string> Get(const std::string& name) { return ReadBytes(folder.Path() / name); }
    void Put(const std::string& name, std::string_view bytes) {
        fs::create_directories((folder.Path() / name).parent_path());
        WriteBytes(folder.Path() / name, bytes);
    }

    // The names and bytes of all files below a folder.
    std::map<std::string, std::string> Tree(const std::string& name) {
        std::map<std::string, std::string> tree;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder.Path() / name)) {
            if (entry.is_regular_file()) {
                tree[fs::relative(entry.path(), folder.Path() / name).string()] = ReadBytes(entry.path()).value();
            }
        }
        return tree;
    }

    TempFolder folder;
};

TEST_F(ConvertTest, WholeFoldersThereAndBack) {
    for (const char* jobs : {"1", "3"}) {
        const std::string out = std::string("out") + jobs;
        const ProcessResult result = Run({"--to", "bin", "--output", out, "--jobs", jobs, "in"});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.reports, "0 errors, 0 warnings in 62 files\n");
    }
    EXPECT_EQ(Tree("out1"), Tree("out3"));
    EXPECT_EQ(Run({"--to", "txt", "--output", "back", "--sync", "out1"}).status, 0);
    EXPECT_EQ(Tree("back"), Tree("in"));
    EXPECT_EQ(Run({"--to", "txt", "--output", "out1", "out1"}).status, 0);
    EXPECT_EQ(Tree("out1"), Tree("in")) << "files may be converted onto themselves";
}

TEST_F(ConvertTest, FilesThatDoNotChangeAreNotTouched) {
    ASSERT_EQ(Run({"--to", "bin", "--output", "out", "in/mesh"}).status, 0);
    const fs::path file = folder.Path() / "out" / "signal-buoy.mesh";
    const fs::file_time_type old = fs::last_write_time(file) - std::chrono::hours(1);
    fs::last_write_time(file, old);
    EXPECT_EQ(Run({"--to", "bin", "--output", "out", "in/mesh"}).status, 0);
    EXPECT_EQ(fs::last_write_time(file), old);
    EXPECT_EQ(Run({"--to", "bin", "--output", "out", "--touch", "in/mesh"}).status, 0);
    EXPECT_GT(fs::last_write_time(file), old);
}

TEST_F(ConvertTest, SourcesWithErrorsLeaveTheirDestinations) {
    Put("out/damaged.brushes", "old");
    const Arguments arguments = {"--to", "txt", "--output", "out", "--format", "line", "damaged.brushes", "in/brushes"};
    const ProcessResult strict = Run(arguments);
    EXPECT_EQ(strict.status, 1);
    EXPECT_EQ(strict.output, "");
    EXPECT_TRUE(strict.reports.starts_with("damaged.brushes:3:18: error: ")) << strict.reports;
    EXPECT_TRUE(strict.reports.ends_with("\nnot converted:\n  damaged.brushes\n")) << strict.reports;
    EXPECT_EQ(Get("out/damaged.brushes"), "old");
    EXPECT_EQ(Get("out/hud-icons.brushes"), Get("in/brushes/hud-icons.brushes"));
    Arguments lenient = arguments;
    lenient.push_back("--lenient");
    EXPECT_EQ(Run(lenient).status, 0);
    EXPECT_EQ(RunConverter({"brushes", "damaged.brushes", "converted", "txt"}, folder.Path()).status, 0);
    EXPECT_EQ(Get("out/damaged.brushes"), Get("converted"));
}

TEST_F(ConvertTest, ContentsThatEndTheConverterAreFindings) {
    Put("huge.brushes", CurrentHeader(false) + "onlyLoadOnDemand FALSE\r\nbrushCount 2147483647\r\n");
    Put(std::string(80, 'n') + ".entity", ReadBytes(folder.Path() / "in/entity/weapon_standard.entity").value());
    for (const std::string& name : {std::string("huge.brushes"), std::string(80, 'n') + ".entity"}) {
        const ProcessResult result = Run({"--lenient", "--to", "bin", "--format", "line", "--output", "out", name});
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.reports.find(": error: a conversion "), std::string::npos) << result.reports;
        EXPECT_FALSE(Get("out"));
    }
}

TEST_F(ConvertTest, WorkThatCannotBeDone) {
    const auto expectProblem = [&](const Arguments& arguments, const std::string& problem) {
        const ProcessResult result = Run(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_NE(result.reports.find(problem), std::string::npos) << result.reports;
    };
    const std::string mesh = "in/mesh/signal-buoy.mesh";
    expectProblem({"--to", "bin", "--output", mesh + "/", mesh}, "Not a directory");
    expectProblem({"--to", "bin", "--output", "out", "in/missing.mesh"}, "in/missing.mesh: No such file");
    expectProblem({"--to", "bin", "--output", "/dev/full", mesh}, "/dev/full: No space left on device");
    Put("copy/signal-buoy.mesh", Get(mesh).value());
    expectProblem({"--to", "bin", "--output", "out", "copy", "in/mesh"}, "would both become 'out/signal-buoy.mesh'");
    EXPECT_FALSE(fs::exists(folder.Path() / "out"));
}

TEST_F(ConvertTest, ALimitOfFileSizesIsLikeAFullDisk) {
    Put("out.mesh", "old");
    const ProcessResult result = Run({"--to", "bin", "--output", "out.mesh", "in/mesh/patrol-cutter.mesh"}, [] {
        const rlimit limit = {4096, 4096};
        setrlimit(RLIMIT_FSIZE, &limit);
    });
    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.reports.find("out.mesh: File too large"), std::string::npos) << result.reports;
    EXPECT_EQ(Get("out.mesh"), "old");
}

TEST_F(ConvertTest, StandardInputAndOutputAndRunsAtTheSameTime) {
    const std::string kit = "'" KELVANE_KIT_EXECUTABLE "' convert --to txt ";
    const std::string mesh = Get("in/mesh/signal-buoy.mesh").value();
    const auto shell = [&](const std::string& command) {
        return RunProgram("/bin/sh", {"-c", command}, folder.Path());
    };
    EXPECT_EQ(shell("cat in/mesh/signal-buoy.mesh | " + kit + "--stdin-name x.mesh --output y.mesh -").status, 0);
    EXPECT_EQ(Get("y.mesh"), mesh);
    EXPECT_EQ(shell(kit + "--output /dev/stdout in/mesh/signal-buoy.mesh | cat").output, mesh);
    EXPECT_EQ(shell("for i in 1 2 3 4; do " + kit + "--output both in & done; wait").status, 0);
    EXPECT_EQ(Tree("both"), Tree("in"));
}

} // namespace

} // namespace Vorn
