#include "engine/archive/archiveversion.h"
#include "tests/support/binaryform.h"
#include "tests/support/casefile.h"
#include "tests/support/caseupdate.h"
#include "tests/support/process.h"
#include "tests/support/tempfolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

constexpr const char* kForms[] = {"txt", "bin"};

std::string Header(bool isBinary, const std::string& version) {
    if (version == "none") {
        return isBinary ? "BIN\n" : "\xEF\xBB\xBFTXT\r\n";
    }
    return isBinary ? "BIN2\n" + Bytes32(static_cast<std::uint32_t>(std::stoi(version)))
                    : "\xEF\xBB\xBFTXT2\r\nZephArchiveVersion " + version + "\r\n";
}

// The bytes of a text with \r, \n, \t, \0, \\, \xHH and \xHH*N in it, which is N times the byte.
std::string Unescaped(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const char mark = text.size() > 1 && text[0] == '\\' ? text[1] : '\0';
        constexpr std::string_view kMarks = "rnt0\\";
        constexpr std::string_view kBytes("\r\n\t\0\\", 5);
        if (mark == 'x') {
            const char byte = static_cast<char>(std::stoi(std::string(text.substr(2, 2)), nullptr, 16));
            text.remove_prefix(4);
            std::size_t digits = 0;
            const bool isRepeated = text.starts_with('*');
            const std::size_t times = isRepeated ? std::stoul(std::string(text.substr(1)), &digits) : 1;
            bytes.append(times, byte);
            text.remove_prefix(isRepeated ? 1 + digits : 0);
        } else if (mark != '\0') {
            bytes += kBytes.at(kMarks.find(mark));
            text.remove_prefix(2);
        } else {
            bytes += text[0];
            text.remove_prefix(1);
        }
    }
    return bytes;
}

// The bytes of each line in a text file.
std::vector<std::string> TextFields(const Lines& lines) {
    std::vector<std::string> fields;
    for (const std::string& line : lines) {
        fields.push_back(line + "\r\n");
    }
    return fields;
}

std::string Joined(const std::vector<std::string>& fields) {
    std::string bytes;
    for (const std::string& field : fields) {
        bytes += field;
    }
    return bytes;
}

std::vector<std::string> Fields(bool isBinary, const Lines& lines) {
    return isBinary ? BinaryFields(lines) : TextFields(lines);
}

std::string CurrentHeader(const std::string& form) {
    return Header(form == "bin", std::to_string(kArchiveVersion));
}

// The lines of a text file behind its header.
Lines SplitFields(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find("\r\n"), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 2, text.size()));
    }
    return lines;
}

// Text as pairs of bytes, or without the mark in front and with line feeds alone.
std::string Recoded(const std::string& text, const std::string& encoding) {
    std::string bytes;
    if (encoding.starts_with("utf16")) {
        for (const char16_t unit : Utf16(text)) {
            const char low = static_cast<char>(unit & 0xFF);
            const char high = static_cast<char>(unit >> 8);
            bytes += encoding == "utf16-little" ? std::string{low, high} : std::string{high, low};
        }
    } else if (encoding == "plain") {
        std::copy_if(text.begin() + 3, text.end(), std::back_inserter(bytes), [](char byte) { return byte != '\r'; });
    } else {
        throw std::runtime_error("no encoding " + encoding);
    }
    return bytes;
}

// The source of a case: its lines, and the bytes of the file. The edits that only a source has are
//   binary                the binary form, else the text form alone
//   version N|none        the version in the header
//   header BYTES          all in front of the first field
//   bytes PATH BYTES      the bytes of one line, with its end
//   cut PATH[+N]          the file ends in front of a line, or N bytes behind
//   append BYTES          more at the end
//   encoding NAME         utf16-little, utf16-big, or plain: without a mark, with line feeds alone
//   whole BYTES           the whole file
class Source {
public:
    Source(const Case& tested, Lines _lines, bool _isBinary) : lines(std::move(_lines)), isBinary(_isBinary) {
        for (const SidedEdit& sided : tested.edits) {
            if (sided.side != Side::Out && !ApplyEdit(sided.edit, lines)) {
                byteEdits.push_back(sided.edit);
            }
        }
        header = CurrentHeader(isBinary ? "bin" : "txt");
        std::vector<std::string> fields = Fields(isBinary, lines);
        for (const Edit& edit : byteEdits) {
            EditBytes(edit, fields);
        }
        bytes = whole.value_or(header + Joined(fields));
        if (!encoding.empty()) {
            bytes = Recoded(bytes, encoding);
        }
    }

    const std::string& Bytes() const { return bytes; }

    SourceLines AsLines() const {
        const auto headerLines = std::count(header.begin(), header.end(), '\n');
        return {SplitFields(bytes), static_cast<std::size_t>(headerLines), bytes.ends_with('\n')};
    }

private:
    void EditBytes(const Edit& edit, std::vector<std::string>& fields) {
        std::string_view rest = edit.rest;
        if (edit.verb == "version") {
            header = Header(isBinary, edit.rest);
        } else if (edit.verb == "header") {
            header = Unescaped(rest);
        } else if (edit.verb == "bytes") {
            std::string& field = fields.at(FindLine(lines, TakeWord(rest)));
            field = Unescaped(rest);
        } else if (edit.verb == "cut") {
            const std::size_t plus = std::min(rest.find('+'), rest.size());
            const std::size_t last = FindLine(lines, rest.substr(0, plus));
            const std::string count(rest.substr(std::min(plus + 1, rest.size())));
            fields.resize(last + 1);
            fields[last].resize(count.empty() ? 0 : std::stoul(count));
        } else if (edit.verb == "append") {
            fields.push_back(Unescaped(rest));
        } else if (edit.verb == "encoding") {
            encoding = rest;
        } else if (edit.verb == "whole") {
            whole = Unescaped(rest);
        } else if (edit.verb != "binary") {
            throw std::runtime_error("no edit " + edit.verb);
        }
    }

    Lines lines;
    const bool isBinary;
    std::vector<Edit> byteEdits;
    std::string header;
    std::optional<std::string> whole;
    std::string encoding;
    std::string bytes;
};

struct Outcome {
    std::optional<std::string> bytes;
    ProcessResult process;
};

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
        if (std::getenv("KELVANE_UPDATE_CONTENT") != nullptr) {
            Update();
            return;
        }
        for (const bool isBinary : {false, true}) {
            if (HasSource(isBinary)) {
                const Source source(tested, Base(), isBinary);
                Compare(source, "txt");
                Compare(source, "bin");
            }
        }
        ReadBack();
    }

private:
    // Two levels below the scratch folder, where the search for data files finds nothing.
    fs::path Folder() const { return scratch.Path() / "a" / "b"; }

    const Lines& Base() const {
        const auto found = file.contents.find(tested.from);
        if (found == file.contents.end()) {
            throw std::runtime_error("no content " + tested.from);
        }
        return found->second;
    }

    bool HasEdit(std::string_view verb) const {
        return std::any_of(tested.edits.begin(), tested.edits.end(),
                           [&](const SidedEdit& sided) { return sided.side == Side::In && sided.edit.verb == verb; });
    }

    // A source that somebody damaged exists in one form alone; that of an older version has both.
    bool HasSource(bool isBinary) const {
        const bool isWhole = std::none_of(tested.edits.begin(), tested.edits.end(),
                                          [](const SidedEdit& sided) { return sided.side == Side::In; });
        return isWhole || HasEdit("version") || HasEdit("binary") == isBinary;
    }

    void EditResult(const SidedEdit& sided) {
        std::string_view rest = sided.edit.rest;
        if (sided.side == Side::Out && (sided.edit.verb == "bytes" || sided.edit.verb == "text")) {
            const std::string path(TakeWord(rest));
            rawFields[sided.edit.verb == "text" ? "txt" : "bin"][path] = Unescaped(rest);
        } else if (!ApplyEdit(sided.edit, result)) {
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
        return outcome;
    }

    std::string ExpectedBytes(const std::string& form) const {
        std::vector<std::string> fields = Fields(form == "bin", result);
        if (const auto found = rawFields.find(form); found != rawFields.end()) {
            for (const auto& [path, bytes] : found->second) {
                fields.at(FindLine(result, path)) = bytes;
            }
        }
        return CurrentHeader(form) + Joined(fields);
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
        if (got.process.reports != ExpectedReports(source)) {
            ShowLines("reports", DescribeReports(got.process.reports, source.AsLines()));
        }
        ComparePlaces(got.process);
        EXPECT_EQ(got.process.EndedAbnormally(), tested.ends);
        const bool isWritten = !tested.ends && !tested.writesNothing;
        EXPECT_EQ(got.bytes.has_value(), isWritten) << "whether a file is written";
        if (got.bytes && isWritten && *got.bytes != ExpectedBytes(form)) {
            const std::string_view fields = std::string_view(*got.bytes).substr(CurrentHeader(form).size());
            ShowLines("result",
                      form == "txt" ? DescribeChanges(result, SplitFields(fields)) : DescribeBytes(result, fields));
        }
    }

    static void ShowLines(const std::string& what, const Lines& lines) {
        std::string text;
        for (const std::string& line : lines) {
            text += line + '\n';
        }
        ADD_FAILURE() << "other " << what << ":\n" << text;
    }

    void ComparePlaces(const ProcessResult& process) const {
        std::string_view rest = process.reports;
        std::map<std::string, std::string> found;
        for (const std::string& place : process.places) {
            rest.remove_prefix(rest.find("assert! [") + 9);
            found[std::string(rest.substr(0, rest.find("]\n")))] = place;
        }
        for (const auto& [check, place] : tested.places) {
            EXPECT_EQ(found[check], place) << check;
        }
    }

    void ReadBack() const {
        const bool isSame = HasSource(true) && !HasEdit("version") && tested.reports.empty() && rawFields.empty();
        if (tested.ends || tested.writesNothing || tested.changesAgain || isSame || !rawFields.empty()) {
            return;
        }
        SCOPED_TRACE("the result read back");
        const std::string text = Convert(ExpectedBytes("bin"), "txt").bytes.value_or(CurrentHeader("txt"));
        if (text != ExpectedBytes("txt")) {
            ShowLines("result", DescribeChanges(result, SplitFields(text.substr(CurrentHeader("txt").size()))));
        }
    }

    // Makes what comes out now the expected part of the case.
    void Update() {
        const Source source(tested, Base(), !HasSource(false));
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
        const Lines reports = DescribeReports(text.process.reports, source.AsLines());
        generated.insert(generated.end(), reports.begin(), reports.end());
        file.Update(tested, generated);
    }

    Lines DescribeResult(const std::string& text, const std::string& binary) {
        result = Base();
        for (const SidedEdit& sided : tested.edits) {
            if (sided.side == Side::Both || (sided.side == Side::Out && sided.edit.verb == "blank")) {
                EditResult(sided);
            }
        }
        const Lines actual = SplitFields(std::string_view(text).substr(CurrentHeader("txt").size()));
        Lines generated = DescribeChanges(result, actual);
        const Lines bytes = DescribeBytes(actual, std::string_view(binary).substr(CurrentHeader("bin").size()));
        generated.insert(generated.end(), bytes.begin(), bytes.end());
        return generated;
    }

    CaseFile& file;
    const Case& tested;
    const TempFolder scratch;
    Lines result;
    // The bytes of lines that are not those of their spelling, by the form.
    std::map<std::string, std::map<std::string, std::string>> rawFields;
};

// A sample is what the converter itself would write, in text form, but that it may be of an older version: what comes
// out holds all its lines in their order.
class SampleTest : public testing::Test {
public:
    explicit SampleTest(fs::path _source) : source(std::move(_source)) {}

    void TestBody() override {
        const TempFolder scratch;
        const std::string type = ConversionTypeOf(source.parent_path().filename());
        const auto convert = [&](const fs::path& from, const char* to, const char* form) {
            const ProcessResult result = RunConverter({type, from, to, form}, scratch.Path());
            EXPECT_EQ(result.status, 0);
            EXPECT_EQ(result.reports, "");
        };
        convert(source, "same", "txt");
        convert(source, "binary", "bin");
        convert("binary", "back", "txt");
        EXPECT_EQ(ReadBytes(scratch.Path() / "same"), ReadBytes(source));
        EXPECT_EQ(ReadBytes(scratch.Path() / "back"), ReadBytes(source));
    }

private:
    const fs::path source;
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
