#include "tests/support/process.h"
#include "tests/support/tempfolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

constexpr const char* kForms[] = {"txt", "bin"};

struct Outcome {
    std::optional<std::string> bytes;
    std::string reports;
    bool ended;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

// One content of a folder below tests/content:
//   NAME.txt, NAME.bin                       both forms of one content, converted in all four directions
//   NAME.source, NAME.expected.txt and .bin  a source, and what must come of it; absent: no file is written
//   NAME.reports                             what is reported, or NAME.reports.txt and .bin if the written forms differ
//   NAME.ends                                the process ends abnormally
class ContentTest : public testing::Test {
public:
    explicit ContentTest(fs::path _stem)
        : stem(std::move(_stem)), type(ConversionTypeOf(stem.parent_path().filename())) {}

    void TestBody() override {
        const bool isPair = !fs::exists(Path(".source"));
        if (std::getenv("KELVANE_UPDATE_CONTENT") != nullptr) {
            Update(isPair);
        }
        for (const char* form : kForms) {
            if (isPair) {
                Compare(Path(".txt"), Path(), form);
                Compare(Path(".bin"), Path(), form);
            } else {
                Compare(Path(".source"), Path(".expected"), form);
            }
        }
    }

private:
    fs::path Path(const std::string& ending = "") const { return stem.string() + ending; }

    // The converter runs two levels below the scratch folder, where the search for data files finds nothing.
    Outcome Convert(const fs::path& source, const std::string& form) const {
        const TempFolder scratch;
        const fs::path folder = scratch.Path() / "a" / "b";
        fs::create_directories(folder);
        fs::copy_file(source, folder / "source");
        const ProcessResult result = RunConverter({type, "source", "destination", form}, folder);
        EXPECT_TRUE(result.status == 0 || result.EndedAbnormally())
            << "status " << result.status << ", signal " << result.signal << '\n'
            << result.reports;
        return {ReadBytes(folder / "destination"), result.reports, result.EndedAbnormally()};
    }

    Outcome Expected(const fs::path& expectedStem, const std::string& form) const {
        const auto reports = ReadBytes(Path(".reports." + form));
        return {ReadBytes(expectedStem.string() + "." + form),
                reports ? *reports : ReadBytes(Path(".reports")).value_or(""), fs::exists(Path(".ends"))};
    }

    void Compare(const fs::path& source, const fs::path& expectedStem, const std::string& form) const {
        SCOPED_TRACE(source.filename().string() + " to " + form);
        const Outcome expected = Expected(expectedStem, form);
        const Outcome got = Convert(source, form);
        EXPECT_EQ(got.reports, expected.reports);
        EXPECT_EQ(got.ended, expected.ended);
        EXPECT_EQ(got.bytes.has_value(), expected.bytes.has_value()) << "whether a file is written";
        if (got.bytes && expected.bytes && *got.bytes != *expected.bytes) {
            const auto [at, other] =
                std::mismatch(got.bytes->begin(), got.bytes->end(), expected.bytes->begin(), expected.bytes->end());
            ADD_FAILURE() << "bytes differ from offset " << at - got.bytes->begin() << " on";
            if (form == "txt") {
                EXPECT_EQ(*got.bytes, *expected.bytes);
            }
        }
    }

    // Makes what comes out the expected files, for review in the version control.
    void Update(bool isPair) const {
        const fs::path source = Path(isPair ? ".txt" : ".source");
        const fs::path expectedStem = Path(isPair ? "" : ".expected");
        const Outcome text = Convert(source, "txt");
        const Outcome binary = Convert(source, "bin");
        const bool sameReports = text.reports == binary.reports;
        Put(expectedStem.string() + ".txt", text.bytes);
        Put(expectedStem.string() + ".bin", binary.bytes);
        Put(Path(".reports"), sameReports && !text.reports.empty() ? std::optional(text.reports) : std::nullopt);
        Put(Path(".reports.txt"), sameReports ? std::nullopt : std::optional(text.reports));
        Put(Path(".reports.bin"), sameReports ? std::nullopt : std::optional(binary.reports));
        Put(Path(".ends"), text.ended ? std::optional("") : std::nullopt);
    }

    static void Put(const fs::path& path, const std::optional<std::string>& bytes) {
        if (bytes) {
            WriteBytes(path, *bytes);
        } else {
            fs::remove(path);
        }
    }

    const fs::path stem;
    const std::string type;
};

// A sample is what the converter itself would write, in text form.
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

// The stem of a content's leading file; nothing for the files that go with one.
std::optional<fs::path> StemOf(const fs::path& file) {
    const fs::path stem = file.parent_path() / file.stem();
    const bool isLeading =
        file.extension() == ".source" ||
        (file.extension() == ".txt" && stem.extension() != ".expected" && stem.extension() != ".reports");
    return isLeading ? std::optional(stem) : std::nullopt;
}

template <class Test>
void Register(const std::string& suite, const fs::path& path) {
    testing::RegisterTest(suite.c_str(), path.filename().c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [path]() -> testing::Test* { return new Test(path); });
}

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

// Runs before main: the folders are the list of tests.
const bool g_Registered = [] {
    ForEachFile(KELVANE_CONTENT, [](const fs::path& file) {
        if (const auto stem = StemOf(file)) {
            Register<ContentTest>("content/" + file.parent_path().filename().string(), *stem);
        }
    });
    ForEachFile(KELVANE_SAMPLES, [](const fs::path& file) { Register<SampleTest>("samples", file); });
    return true;
}();

} // namespace

} // namespace Vorn
