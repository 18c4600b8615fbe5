#include "tests/support/process.h"
#include "tests/support/tempfolder.h"
#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/findingcodes.h"

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
    void Put(const std::string& name, std::string_view bytes) { WriteBytes(folder.Path() / name, bytes); }

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
        EXPECT_NE(manual.find(".Cm " + std::string(command.name) + '\n'), std::string::npos) << command.name;
    }
    std::set<std::string> described = OptionsIn(manual, "\n.It Fl -");
    // The one with a short form.
    EXPECT_NE(manual.find("\n.It Fl h , -help\n"), std::string::npos);
    described.insert("help");
    EXPECT_EQ(described, offered);
    const std::string synopsis = manual.substr(0, manual.find(".Sh DESCRIPTION"));
    EXPECT_EQ(OptionsIn(synopsis, " Fl -").size() + OptionsIn(synopsis, "\n.Fl -").size(), offered.size());
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

TEST_F(KitTest, AReaderThatGoesAwayAndAFullDiskAreNoAbnormalEnds) {
    EXPECT_EQ(RunShell("{ kit check --explain all; echo $? >status; } | true; cat status").output, "2\n");
    const ProcessResult full = RunShell("kit check --explain all >/dev/full");
    EXPECT_EQ(full.status, 2);
    EXPECT_EQ(full.reports, "kelvane-kit: the output cannot be written: No space left on device\n");
    EXPECT_EQ(RunShell("kit check --explain all >&-").status, 0);
}

} // namespace

} // namespace Vorn
