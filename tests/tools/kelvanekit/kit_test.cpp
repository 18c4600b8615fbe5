#include "tests/support/casesource.h"
#include "tests/support/process.h"
#include "tests/support/tempfolder.h"
#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

using Arguments = std::vector<std::string>;

// Runs of the built program on files of a fresh folder.
class KitTest : public testing::Test {
protected:
    ProcessResult Run(const Arguments& arguments) {
        return RunProgram(KELVANE_KIT_EXECUTABLE, arguments, folder.Path());
    }
    // A shell command in which `kit` is the program.
    ProcessResult RunShell(const std::string& command) {
        return RunProgram("/bin/sh", {"-c", "kit() { '" KELVANE_KIT_EXECUTABLE "' \"$@\"; }\n" + command},
                          folder.Path());
    }
    void Put(const std::string& name, std::string_view bytes) {
        fs::create_directories((folder.Path() / name).parent_path());
        WriteBytes(folder.Path() / name, bytes);
    }
    // Standard output without its colours, at a terminal.
    std::string RunAtTerminal(const std::string& command) {
        return RunProgram("/usr/bin/script", {"-qec", command, "/dev/null"}, folder.Path()).output;
    }

    void PutSample(const std::string& name, const std::string& sample) {
        Put(name, InCurrentVersion(ReadBytes(KELVANE_SAMPLES "/" + sample).value()));
    }

    const std::string kClean = CurrentHeader(false) + "onlyLoadOnDemand FALSE\r\nbrushCount 0\r\n";
    const std::string kWrong = CurrentHeader(false) + "onlyLoadOnDemand true\r\nbrushCount 0 x\r\n";
    static constexpr std::string_view kLines[] = {"a.brushes:3:18: error: ", "a.brushes:4:13: error: "};

    TempFolder folder;
};

// All words of a text that begin with two dashes, up to what cannot be in an option.
std::set<std::string> OptionsIn(std::string_view text, std::string_view dashes) {
    std::set<std::string> options;
    for (std::size_t place = text.find(dashes); place != std::string_view::npos; place = text.find(dashes, place)) {
        place += dashes.size();
        const std::size_t end = text.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", place);
        options.emplace(text.substr(place, end - place));
    }
    return options;
}

TEST_F(KitTest, HelpAndManualNameTheSameOptions) {
    std::set<std::string> offered = OptionsIn(Run({"--help"}).output, "--");
    const std::string manual = ReadBytes(KELVANE_KIT_MANUAL).value();
    for (const Command& command : Commands()) {
        const ProcessResult help = Run({command.name, "--help"});
        EXPECT_EQ(help.status, 0);
        EXPECT_TRUE(help.output.starts_with(command.summary)) << help.output;
        offered.merge(OptionsIn(help.output, "--"));
        EXPECT_NE(manual.find("\n.SS " + std::string(command.name) + '\n'), std::string::npos) << command.name;
    }
    std::set<std::string> described = OptionsIn(manual, "\n.B \\-\\-");
    described.merge(OptionsIn(manual, "\n.BI \\-\\-"));
    described.merge(OptionsIn(manual, "\n.BR \\-h \", \" \\-\\-"));
    EXPECT_EQ(described, offered);
    const std::string synopsis = manual.substr(0, manual.find(".SH DESCRIPTION"));
    EXPECT_EQ(OptionsIn(synopsis, "\\-\\-"), offered);
}

TEST_F(KitTest, WrongUsageIsExplained) {
    struct Case {
        Arguments arguments;
        std::string message;
        std::string help;
    };
    const Case cases[] = {
        {{}, "no command is given", ""},
        {{"chek", "x"}, "no command 'chek'; did you mean `check`?", ""},
        {{"check"}, "FILE|FOLDER is required", " check"},
        {{"check", "--format", "gitub", "x"},
         "--format: 'gitub' is none of pretty|line|json|sarif|github; did you mean `github`?",
         " check"},
        {{"check", "--disable", "x", "x"}, "--disable: no code 'x'", " check"},
        {{"check", "--jobs", "0", "x"}, "--jobs: Value 0 not in range 1 to 1024", " check"},
        {{"check", "--explain", "mising-key"},
         "--explain: no code 'mising-key'; did you mean `missing-key`?",
         " check"},
    };
    for (const Case& c : cases) {
        const ProcessResult result = Run(c.arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.reports, "kelvane-kit: " + c.message + "\nTry 'kelvane-kit" + c.help + " --help'.\n");
    }
}

TEST_F(KitTest, VersionAndExplanations) {
    EXPECT_TRUE(Run({"--version"}).output.starts_with("kelvane-kit "));
    for (const FindingCode& code : kFindingCodes) {
        const ProcessResult result = Run({"check", "--explain", std::string(code.name)});
        EXPECT_EQ(result.status, 0);
        EXPECT_TRUE(result.output.ends_with(code.explanation)) << result.output;
    }
}

TEST_F(KitTest, StatusSaysWhatBecameOfTheFiles) {
    Put("a.brushes", kClean);
    const ProcessResult clean = Run({"check", "a.brushes"});
    EXPECT_EQ(clean.status, 0);
    EXPECT_EQ(clean.output, "");
    EXPECT_EQ(clean.reports, "0 errors, 0 warnings in 1 file\n");
    Put("a.brushes", kWrong);
    const ProcessResult wrong = Run({"check", "--format", "line", "."});
    EXPECT_EQ(wrong.status, 1);
    EXPECT_EQ(wrong.reports, "2 errors, 0 warnings in 1 file\n");
    std::size_t place = 0;
    for (const std::string_view line : kLines) {
        place = wrong.output.find(line, place);
        EXPECT_NE(place, std::string::npos) << wrong.output;
    }
    const ProcessResult missing = Run({"check", "--format", "line", "none.mesh", "a.brushes", "plain"});
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.output.substr(0, kLines[0].size()), kLines[0]);
    EXPECT_EQ(missing.reports, "kelvane-kit: none.mesh: No such file or directory\n"
                               "kelvane-kit: plain: No such file or directory\n"
                               "2 errors, 0 warnings in 1 file\n");
    Put("plain", kClean);
    EXPECT_EQ(Run({"check", "plain"}).reports, "kelvane-kit: plain: its ending tells no type; give it by --type\n"
                                               "0 errors, 0 warnings in 0 files\n");
    EXPECT_EQ(Run({"check", "--type", "brushes", "plain"}).status, 0);
}

TEST_F(KitTest, StandardInputHasANameAndAType) {
    Put("w", kWrong);
    const ProcessResult result = RunShell("cat w | kit check --format line --stdin-name dir/a.brushes -");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output.substr(0, 4 + kLines[0].size()), "dir/" + std::string(kLines[0]));
    EXPECT_EQ(RunShell("kit check --type brushes --format line - <w | cut -c -8 | head -n 1").output, "<stdin>:\n");
    EXPECT_EQ(RunShell("kit check - <w").status, 2);
}

TEST_F(KitTest, FindingsAreLimitedDisabledAndRaised) {
    Put("a.brushes", kWrong);
    Put("b.brushes", kWrong);
    const ProcessResult limited = Run({"check", "--format", "line", "--max-findings", "3", "."});
    EXPECT_EQ(std::count(limited.output.begin(), limited.output.end(), '\n'), 3);
    EXPECT_EQ(limited.reports, "4 errors, 0 warnings in 2 files, of which 3 are shown\n");
    const ProcessResult disabled = Run({"check", "--disable", "bad-boolean", "--disable", "number-with-rest", "."});
    EXPECT_EQ(disabled.status, 0) << disabled.output;
    Put("c.brushes", "TXT2\nZephArchiveVersion 9999\nonlyLoadOnDemand FALSE\nbrushCount 0\n");
    EXPECT_EQ(Run({"check", "c.brushes"}).reports, "0 errors, 1 warning in 1 file\n");
    EXPECT_EQ(Run({"check", "--warnings-as-errors", "c.brushes"}).reports, "1 error, 0 warnings in 1 file\n");
}

TEST_F(KitTest, TheOutputIsTheSameForAnyNumberOfJobs) {
    for (int i = 0; i < 300; ++i) {
        Put("f" + std::to_string(i % 7) + "/" + std::to_string(i) + ".brushes", i % 3 == 0 ? kWrong : kClean);
    }
    fs::create_symlink("nowhere", folder.Path() / "f3/x.mesh");
    const ProcessResult one = Run({"check", "--jobs", "1", "."});
    EXPECT_EQ(one.reports, "kelvane-kit: ./f3/x.mesh: No such file or directory\n"
                           "200 errors, 0 warnings in 300 files\n");
    for (const char* form : {"pretty", "sarif", "json"}) {
        const std::string output = Run({"check", "--jobs", "1", "--format", form, "."}).output;
        for (const char* jobs : {"2", "7"}) {
            EXPECT_EQ(Run({"check", "--jobs", jobs, "--format", form, "."}).output, output);
        }
    }
}

TEST_F(KitTest, ColorsAreForTerminals) {
    Put("a.brushes", kWrong);
    const std::string check = KELVANE_KIT_EXECUTABLE " check a.brushes";
    const std::string color = "\x1B[";
    EXPECT_EQ(Run({"check", "a.brushes"}).output.find(color), std::string::npos);
    EXPECT_NE(Run({"check", "--color", "always", "a.brushes"}).output.find(color), std::string::npos);
    EXPECT_NE(RunAtTerminal("TERM=xterm " + check).find(color), std::string::npos);
    EXPECT_EQ(RunAtTerminal("TERM=xterm NO_COLOR=1 " + check).find(color), std::string::npos);
    EXPECT_NE(RunAtTerminal("TERM=xterm NO_COLOR=1 " + check + " --color always").find(color), std::string::npos);
    EXPECT_EQ(RunAtTerminal("TERM=dumb " + check).find(color), std::string::npos);
    EXPECT_EQ(RunAtTerminal("TERM=xterm " + check + " --color never").find(color), std::string::npos);
    EXPECT_EQ(RunAtTerminal("TERM=xterm " + check + " --format json").find(color), std::string::npos);
}

TEST_F(KitTest, NamesAreLookedUp) {
    PutSample("c/squad.entity", "entity/squad_thornwing.entity");
    PutSample("c/FighterSwallowtail.entity", "entity/fighter_swallowtail.entity");
    EXPECT_EQ(Run({"check", "c/squad.entity"}).output, "");
    const auto check = [&] { return Run({"check", "--root", "c", "--format", "line", "c/squad.entity"}).output; };
    EXPECT_EQ(check().find("`FighterSwallowtail`"), std::string::npos) << check();
    fs::rename(folder.Path() / "c/FighterSwallowtail.entity", folder.Path() / "c/FighterSwallowtai.entity");
    EXPECT_NE(check().find("`FighterSwallowtail` (did you mean `FighterSwallowtai`?) [unresolved-name]"),
              std::string::npos)
        << check();
    // A frigate by the name of the fighter.
    Put("c/FighterSwallowtail.entity", ReadBytes(KELVANE_SAMPLES "/entity/frigate_lancer.entity").value());
    EXPECT_NE(check().find("of the class `Frigate`, and the key wants `Fighter`"), std::string::npos) << check();
    const Arguments convert = {"convert", "--to", "bin", "--output", "out", "c/squad.entity"};
    EXPECT_EQ(Run(convert).status, 0);
    Arguments strict = convert;
    strict.insert(strict.end(), {"--root", "c"});
    EXPECT_EQ(Run(strict).status, 1);
}

TEST_F(KitTest, MeshesAndIdsOfListsAreLookedUp) {
    PutSample("c/frigate.entity", "entity/frigate_lancer.entity");
    Put("c/meshes/Shield_Lancer.mesh", "");
    const auto check = [&](const std::string& option, const std::string& value) {
        return Run({"check", option, value, "--format", "line", "c/frigate.entity"}).output;
    };
    EXPECT_EQ(check("--root", "c").find("`Shield_Lancer`"), std::string::npos);
    fs::remove(folder.Path() / "c/meshes/Shield_Lancer.mesh");
    EXPECT_NE(check("--root", "c").find("there is no mesh `Shield_Lancer`"), std::string::npos);
    Put("names", "IDS_OTHER\n");
    const std::string missing = check("--strings", "names");
    const std::size_t begin = missing.find("`IDS_") + 1;
    ASSERT_NE(begin, 0u) << missing;
    const std::string id = missing.substr(begin, missing.find('`', begin) - begin);
    // With white space around it, and a carriage return.
    Put("names", "IDS_OTHER\r\n \t" + id + " \r\n");
    EXPECT_LT(check("--strings", "names").size(), missing.size());
    EXPECT_EQ(check("--strings", "names").find("no string id `" + id), std::string::npos);
    EXPECT_EQ(Run({"check", "--sounds", "none", "c/frigate.entity"}).status, 2);
}

TEST_F(KitTest, AReaderThatGoesAwayAndAFullDiskAreNoAbnormalEnds) {
    // More than fits in a pipe.
    for (int i = 0; i < 400; ++i) {
        Put(std::to_string(i) + ".brushes", kWrong);
    }
    const ProcessResult closed = RunShell("{ kit check .; echo $? >status; } | head -c 1 >/dev/null; cat status");
    EXPECT_EQ(closed.output, "2\n");
    EXPECT_EQ(closed.reports.find("cannot be written"), std::string::npos) << closed.reports;
    const ProcessResult full = RunShell("kit check --explain all >/dev/full");
    EXPECT_EQ(full.status, 2);
    EXPECT_EQ(full.reports, "kelvane-kit: the output cannot be written: No space left on device\n");
    EXPECT_EQ(RunShell("kit check --explain all >&-").status, 0);
}

} // namespace

} // namespace Vorn
