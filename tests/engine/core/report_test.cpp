#include "engine/core/debugoutput.h"
#include "engine/file/filelog.h"
#include "engine/file/filesystem.h"
#include "tests/support/enginetest.h"

#include <optional>
#include <unistd.h>

namespace Vorn {

namespace {

TEST(SourcePosition, IsThatOfTheCaller) {
    const SourcePosition here = SourcePosition::Here();
    EXPECT_EQ(here.line, __LINE__ - 1);
    EXPECT_STREQ(here.file, "tests/engine/core/report_test.cpp");
}

struct Handled {
    std::string file;
    int line;
    std::string text;
    bool isFailure;

    friend bool operator==(const Handled&, const Handled&) = default;
};

class HandlerTest : public testing::Test, public ReportHandler {
protected:
    HandlerTest() { g_Reporting.reportHandler = this; }
    ~HandlerTest() override { g_Reporting = {}; }

    void Handle(const char* file, int line, std::u16string_view text, bool isFailure) override {
        handled.push_back({file, line, Utf8(text), isFailure});
    }

    std::vector<Handled> handled;
};

TEST_F(HandlerTest, GetsEverythingWithItsPlace) {
    CheckAssert(true, "fine");
    CheckAssert(false, "a < b", {"folder/file.cpp", 12});
    ReportError(u"%s %d%%\n", u"text", 7);
    ReportErrorAt(u"%s", u"a%sb%%.txt");
    LogLine({u"line %d", {"log.cpp", 3}}, 1);
    const std::vector<Handled> expected = {{"folder/file.cpp", 12, "a < b", true},
                                           {"", -1, "text 7%\n", true},
                                           {"", -1, "a%sb%.txt", true},
                                           {"log.cpp", 3, "line 1", false}};
    EXPECT_EQ(handled, expected);
}

TEST_F(HandlerTest, GetsNoChecksWhileTheyAreOff) {
    g_Reporting.debugChecksOff = true;
    CheckAssert(false, "silent");
    ReportError(u"report");
    ASSERT_EQ(handled.size(), 1u);
    EXPECT_EQ(handled[0].text, "report");
}

TEST_F(HandlerTest, ReportsCostByTheBytesOfTheirTexts) {
    const auto costOf = [](const std::u16string& text) {
        const std::uint64_t before = GetReportCost();
        ReportError(u"%s", text.c_str());
        return GetReportCost() - before;
    };
    EXPECT_EQ(costOf(u""), 1u);
    EXPECT_EQ(costOf(std::u16string(255, u'x')), 1u);
    EXPECT_EQ(costOf(std::u16string(256, u'x')), 2u);
    EXPECT_EQ(costOf(std::u16string(128, u'\u00FC')), 2u);
    EXPECT_EQ(costOf(std::u16string(171, u'\u8239')), 3u);
    const std::uint64_t before = GetReportCost();
    CheckAssert(false, "check");
    LogLine(u"line");
    g_Reporting.debugChecksOff = true;
    CheckAssert(false, "silent");
    EXPECT_EQ(GetReportCost() - before, 2u);
}

TEST_F(HandlerTest, GetsReportsCutAtTheirCapacity) {
    ReportError(u"%s", std::u16string(5000, u'x').c_str());
    ASSERT_EQ(handled.size(), 2u);
    EXPECT_EQ(handled[0].text, "! FAILED( hr )");
    EXPECT_EQ(handled[1].text.size(), 4095u);
}

// Without a handler reports go to standard error, the log file and dialogs.
class SinkTest : public testing::Test, public MessageHandler {
protected:
    SinkTest() {
        g_Reporting = {};
        g_Reporting.messageHandler = this;
        logFile = files.Open(NameOf(folder.Path() / "log"), FileAccess::Write, FileTranslation::Text);
        log.emplace(*logFile);
        g_Reporting.log = &*log;
    }
    ~SinkTest() override { g_Reporting = {}; }

    int Show(std::u16string_view title, std::u16string_view text) override {
        shown.push_back(Utf8(title) + ": " + Utf8(text));
        return answer;
    }

    static std::string TakeStandardError() {
        FlushDebugOutput();
        return testing::internal::GetCapturedStderr();
    }

    std::string TakeLog() {
        files.Close(logFile);
        g_Reporting.log = nullptr;
        return ReadBytes(folder.Path() / "log").value_or("").substr(3);
    }

    TempFolder folder;
    FileSystem files;
    File* logFile = nullptr;
    std::optional<FileLog> log;
    Reports shown;
    int answer = 0;
};

TEST_F(SinkTest, PadsThePositionOfChecks) {
    testing::internal::CaptureStderr();
    CheckAssert(false, "x > 0", {"engine/a/../b/file.cpp", 7});
    CheckAssert(false, "y", {"an/extraordinarily/deep/folder/of/the/source/file.cpp", 12345});
    ReportError(u"no line end");
    ReportError(u"Größe\n");
    LogLine(u"a line");
    const std::string expected = "engine\\b\\file.cpp(7)                              : assert! [x > 0]\n"
                                 "an\\extraordinarily\\deep\\folder\\of\\the\\source\\file.cpp(12345): assert! [y]\n";
    EXPECT_EQ(TakeStandardError(), expected + "no line end\nGr\xC3\xB6\xC3\x9F"
                                              "e\na line\n");
    std::string logged = expected + "no line endGr\xC3\xB6\xC3\x9F"
                                    "e\na line";
    for (std::size_t at = 0; (at = logged.find('\n', at)) != std::string::npos; at += 2) {
        logged.replace(at, 1, "\r\n");
    }
    EXPECT_EQ(TakeLog(), logged);
    EXPECT_EQ(shown, Reports({"Assert: Assert @ engine/a/../b/file.cpp(7)\n\nx > 0\n",
                              "Assert: Assert @ an/extraordinarily/deep/folder/of/the/source/file.cpp(12345)\n\ny\n",
                              "Error: no line end\n",
                              "Error: Gr\xC3\xB6\xC3\x9F"
                              "e\n\n"}));
}

TEST_F(SinkTest, OneAnswerSilencesFurtherDialogsForChecks) {
    testing::internal::CaptureStderr();
    for (const int next : {2, 0, 1, 2}) {
        answer = next;
        CheckAssert(false, "check");
    }
    ReportError(u"report");
    TakeStandardError();
    EXPECT_EQ(shown.size(), 4u);
    EXPECT_TRUE(g_Reporting.suppressAssertDialogs);
    EXPECT_EQ(shown.back(), "Error: report\n");
}

} // namespace

} // namespace Vorn
