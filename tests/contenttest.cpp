#include "tests/support/caseupdate.h"
#include "tests/support/process.h"
#include "tests/support/tempfolder.h"
#include "tools/kelvane/contentconverter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

constexpr const char* kForms[] = {"txt", "bin"};

struct Outcome {
    std::optional<std::string> bytes;
    ProcessResult process;
};

// A conversion in this process, after many others, has the same result as one in a process of its own.
void CompareInProcess(const std::string& type, const std::string& source, const std::string& form,
                      const Outcome& expected) {
    static ContentConverter converter;
    const ConversionResult result = converter.Convert(ContentKindNamed(type).value(), "source", source,
                                                      form == "txt" ? FileArchiveType::Text : FileArchiveType::Binary);
    EXPECT_EQ(result == ConversionResult::Ended, expected.process.EndedAbnormally());
    if (!expected.process.EndedAbnormally()) {
        EXPECT_EQ(result == ConversionResult::Converted, expected.bytes.has_value());
        EXPECT_EQ(converter.Bytes(), expected.bytes.value_or(""));
    }
}

// Runs one case: the edited content, in the forms in which the edits make sense, to both forms. The result is read back
// from its binary form.
class CaseTest : public testing::Test {
public:
    CaseTest(CaseFile& _file, const Case& _tested) : file(_file), tested(_tested) {}

    void TestBody() override {
        result = Base();
        for (const SidedEdit& sided : tested.edits) {
            if (sided.side != Side::In) {
                EditResult(sided);
            }
        }
        fs::create_directories(Folder());
        if (!tested.eachPath.empty()) {
            RunEach();
            return;
        }
        if (std::getenv("KELVANE_UPDATE_CONTENT") != nullptr) {
            Update();
            return;
        }
        for (const bool isBinary : {false, true}) {
            if (HasSource(tested, isBinary)) {
                const Source source(tested, Base(), isBinary);
                Compare(source, "txt");
                Compare(source, "bin");
            }
        }
        ReadBack();
    }

private:
    // Two levels below the scratch folder, so that the search for data files stays inside.
    fs::path Folder() const { return scratch.Path() / "a" / "b"; }

    const Lines& Base() const { return BaseOf(file, tested); }

    // Texts that no other field depends on are written unchanged.
    void RunEach() const {
        const Source source(tested, Base(), false);
        for (std::string_view words : tested.eachWords) {
            while (!words.empty()) {
                Lines lines = result;
                const std::string word(TakeWord(words));
                ApplyEdit({"set", tested.eachPath + " \"" + word + "\"", {}}, lines);
                const std::string text = CurrentHeader(false) + Joined(FieldsOf(false, lines));
                const std::string binary = CurrentHeader(true) + Joined(FieldsOf(true, lines));
                const Outcome toBinary = Convert(text, "bin");
                EXPECT_EQ(toBinary.process.reports, ExpectedReports(source)) << word;
                EXPECT_TRUE(toBinary.bytes == binary) << word;
                EXPECT_TRUE(Convert(binary, "txt").bytes == text) << word;
            }
        }
    }

    void EditResult(const SidedEdit& sided) {
        std::string_view rest = sided.edit.rest;
        if (sided.side == Side::Out && (sided.edit.verb == "bytes" || sided.edit.verb == "text")) {
            const std::string path(TakeWord(rest));
            rawFields[sided.edit.verb == "text" ? "txt" : "bin"][path] = Unescaped(rest);
        } else if (!ApplyEdit(ResultPart(sided.edit), result)) {
            throw std::runtime_error("no edit " + sided.edit.verb);
        }
    }

    Outcome Convert(const std::string& bytes, const std::string& form) const {
        WriteBytes(Folder() / "source", bytes);
        fs::remove(Folder() / "destination");
        Outcome outcome;
        outcome.process = RunConverter({file.type, "source", "destination", form}, Folder());
        outcome.bytes = ReadBytes(Folder() / "destination");
        EXPECT_TRUE(outcome.process.status == 0 || outcome.process.EndedAbnormally())
            << "status " << outcome.process.status << ", signal " << outcome.process.signal;
        CompareInProcess(file.type, bytes, form, outcome);
        return outcome;
    }

    std::string ExpectedBytes(const std::string& form) const {
        std::vector<std::string> fields = FieldsOf(form == "bin", result);
        if (const auto found = rawFields.find(form); found != rawFields.end()) {
            for (const auto& [path, bytes] : found->second) {
                fields.at(FindLine(result, path)) = bytes;
            }
        }
        return CurrentHeader(form == "bin") + Joined(fields);
    }

    std::string ExpectedReports(const Source& source) const {
        std::string text;
        std::size_t misses = 0;
        for (const ExpectedReport& report : tested.reports) {
            std::string_view rest = report.rest;
            if (report.verb == "missing") {
                text += MissingKeys(rest, source.AsLines(), misses);
                continue;
            }
            int times = report.verb.ends_with('s') ? std::stoi(std::string(TakeWord(rest))) : 1;
            const std::string line =
                report.verb.starts_with("check") ? "assert! [" + std::string(rest) + "]" : Unescaped(rest);
            while (times-- > 0 && report.added.empty()) {
                text += line + '\n';
            }
            for (const std::string& added : report.added) {
                text += Unescaped(added) + '\n';
            }
            misses += line == "Text FileArchive missing Label." ? 1 : 0;
        }
        return text;
    }

    static std::string MissingKeys(std::string_view rest, const SourceLines& source, std::size_t& misses) {
        const std::size_t at = rest.rfind(" at ");
        const std::size_t plus = std::min(rest.rfind('+'), rest.size());
        const std::size_t waiting = source.headerLines + FindLine(source.Content(), rest.substr(at + 4, plus - at - 4));
        misses += plus < rest.size() ? std::stoul(std::string(rest.substr(plus + 1))) : 0;
        std::string text;
        for (rest = rest.substr(0, at); !rest.empty(); ++misses) {
            text += source.MissingReport(TakeWord(rest), waiting + misses, waiting);
        }
        return text;
    }

    void Compare(const Source& source, const std::string& form) const {
        SCOPED_TRACE("to " + form);
        const Outcome got = Convert(source.Bytes(), form);
        const std::string reports = Compared(got.process.reports);
        if (reports != ExpectedReports(source)) {
            ShowLines("reports", DescribeReports(reports, source.AsLines()));
        }
        EXPECT_EQ(got.process.EndedAbnormally(), tested.ends);
        const bool isWritten = !tested.ends && !tested.writesNothing;
        EXPECT_EQ(got.bytes.has_value(), isWritten) << "whether a file is written";
        if (got.bytes && isWritten && *got.bytes != ExpectedBytes(form)) {
            const std::string_view fields = std::string_view(*got.bytes).substr(CurrentHeader(form == "bin").size());
            ShowLines("result",
                      form == "txt" ? DescribeChanges(result, SplitFields(fields)) : DescribeBytes(result, fields));
        }
    }

    // The reports but for those that the case leaves open: a headline, an empty line, four lines and an empty one.
    std::string Compared(std::string reports) const {
        static constexpr std::string_view missing = "Text FileArchive missing Label.\n\n";
        std::size_t at = 0;
        while (tested.anyMissing && (at = reports.find(missing, at)) != std::string::npos) {
            std::size_t end = at + missing.size();
            for (int line = 0; line < 4; ++line) {
                end = reports.find('\n', end) + 1;
            }
            reports.erase(at, end - at + (reports.compare(end, 1, "\n") == 0 ? 1 : 0));
        }
        return reports;
    }

    static void ShowLines(const std::string& what, const Lines& lines) {
        std::string text;
        for (const std::string& line : lines) {
            text += line + '\n';
        }
        ADD_FAILURE() << "other " << what << ":\n" << text;
    }

    void ReadBack() const {
        const bool isSame =
            HasSource(tested, true) && !HasEdit(tested, "version") && tested.reports.empty() && rawFields.empty();
        if (tested.ends || tested.writesNothing || tested.changesAgain || isSame || !rawFields.empty()) {
            return;
        }
        SCOPED_TRACE("the result read back");
        const std::string text = Convert(ExpectedBytes("bin"), "txt").bytes.value_or(CurrentHeader(false));
        if (text != ExpectedBytes("txt")) {
            ShowLines("result", DescribeChanges(result, SplitFields(text.substr(CurrentHeader(false).size()))));
        }
    }

    // Replaces the expectations of the case by the current results.
    void Update() {
        const Source source(tested, Base(), !HasSource(tested, false));
        const Outcome text = Convert(source.Bytes(), "txt");
        const Outcome binary = Convert(source.Bytes(), "bin");
        Lines generated;
        if (text.process.EndedAbnormally()) {
            generated = {"ends"};
        } else if (!text.bytes) {
            generated = {"nothing"};
        } else {
            generated = DescribeResult(*text.bytes, binary.bytes.value());
        }
        const Lines reports = DescribeReports(Compared(text.process.reports), source.AsLines());
        generated.insert(generated.end(), reports.begin(), reports.end());
        file.Update(tested, generated);
    }

    Lines DescribeResult(const std::string& text, const std::string& binary) {
        result = Base();
        for (const SidedEdit& sided : tested.edits) {
            if (sided.side == Side::Both || (sided.side == Side::Out && sided.edit.verb.starts_with("blank"))) {
                EditResult(sided);
            }
        }
        const Lines actual = SplitFields(std::string_view(text).substr(CurrentHeader(false).size()));
        Lines generated = DescribeChanges(result, actual);
        const Lines bytes = DescribeBytes(actual, std::string_view(binary).substr(CurrentHeader(true).size()));
        generated.insert(generated.end(), bytes.begin(), bytes.end());
        return generated;
    }

    CaseFile& file;
    const Case& tested;
    const TempFolder scratch;
    Lines result;
    // By form and line, bytes that differ from those that the line stands for.
    std::map<std::string, std::map<std::string, std::string>> rawFields;
};

// A sample is written unchanged. The result of a sample of an older version has additional lines: those of the sample
// are among them, in the same order.
class SampleTest : public testing::Test {
public:
    explicit SampleTest(fs::path _source) : source(std::move(_source)) {}

    void TestBody() override {
        const std::string text = Convert(source, "txt");
        const Lines lines = SplitFields(text);
        const Lines fields(lines.begin() + 2, lines.end());
        auto at = fields.begin();
        for (const std::string& line : FieldsOfText(ReadBytes(source).value())) {
            at = std::find(at, fields.end(), line);
            ASSERT_NE(at, fields.end()) << line;
            ++at;
        }
        EXPECT_EQ(text, CurrentHeader(false) + Joined(FieldsOf(false, fields)));
        EXPECT_EQ(Convert(source, "bin"), CurrentHeader(true) + Joined(FieldsOf(true, fields)));
        EXPECT_EQ(Convert("bin", "txt"), text);
    }

private:
    std::string Convert(const fs::path& from, const char* form) const {
        const std::string type = ConversionTypeOf(source.parent_path().filename());
        const std::string sourceBytes = ReadBytes(scratch.Path() / from).value();
        const ProcessResult result = RunConverter({type, from, form, form}, scratch.Path());
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.reports, "");
        CompareInProcess(type, sourceBytes, form, {ReadBytes(scratch.Path() / form), result});
        return ReadBytes(scratch.Path() / form).value_or("");
    }

    const fs::path source;
    const TempFolder scratch;
};

template <class Action>
void ForEachFile(const fs::path& root, Action action) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    std::for_each(files.begin(), files.end(), action);
}

template <class Factory>
void Register(const std::string& suite, const std::string& name, Factory factory) {
    testing::RegisterTest(suite.c_str(), name.c_str(), nullptr, nullptr, __FILE__, __LINE__, factory);
}

// Runs before main: the files are the list of tests.
const bool g_Registered = [] {
    static std::vector<std::unique_ptr<CaseFile>> files;
    ForEachFile(KELVANE_CONTENT, [](const fs::path& path) {
        if (path.extension() != ".cases") {
            return;
        }
        CaseFile& file = *files.emplace_back(std::make_unique<CaseFile>(path, KELVANE_SAMPLES));
        for (const Case& tested : file.cases) {
            Register("content/" + path.stem().string(), tested.name,
                     [&]() -> testing::Test* { return new CaseTest(file, tested); });
        }
    });
    ForEachFile(KELVANE_SAMPLES, [](const fs::path& path) {
        Register("samples", path.filename(), [path]() -> testing::Test* { return new SampleTest(path); });
    });
    return true;
}();

} // namespace

} // namespace Vorn
