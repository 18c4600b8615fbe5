#include "tests/tools/kelvanekit/keyfiles.h"

#include "engine/core/reporting.h"
#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/keyforms.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Vorn {

namespace {

using Json = KeyFiles::Json;

constexpr unsigned kSeed = 16;

// The reference in its JSON form is all that the tests know.
const Json& Reference() {
    static const Json reference = [] {
        const KeyModel& model = AllKeys();
        KeySelection all;
        all.isAll = true;
        for (std::size_t i = 0; i < model.records.size(); ++i) {
            all.records.push_back(static_cast<std::int32_t>(i));
        }
        std::string text;
        PrintKeysAsJson(text, model, all);
        return Json::parse(text);
    }();
    return reference;
}

std::vector<const Json*> Files() {
    std::vector<const Json*> files;
    for (const Json& record : Reference().at("records")) {
        if (record.contains("type")) {
            files.push_back(&record);
        }
    }
    return files;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string text = "\xEF\xBB\xBF";
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

void CollectKeys(const Json& keys, std::vector<const Json*>& all) {
    for (const Json& key : keys) {
        all.push_back(&key);
        if (key.contains("entry") && key.at("rule") != "derived") {
            CollectKeys(key.at("entry"), all);
        }
    }
}

std::string_view TakeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, text.find('\n') + 1);
    text.remove_prefix(line.size());
    return line;
}

// The text without the lists that a conversion computes anew.
std::string WithoutDerived(const Json& file, std::string_view text) {
    std::vector<const Json*> keys;
    for (const Json& record : Reference().at("records")) {
        if (record.at("name") == file.at("name") || !record.contains("type")) {
            CollectKeys(record.at("keys"), keys);
        }
    }
    std::set<std::string, std::less<>> derived;
    for (const Json* key : keys) {
        if (key->value("rule", "") == "derived") {
            derived.insert(key->at("key"));
            derived.insert(key->at("entry").at(0).at("key"));
        }
    }
    std::string kept;
    while (!text.empty()) {
        const std::string_view line = TakeLine(text);
        kept += derived.contains(KeyOf(line)) ? "" : line;
    }
    return kept;
}

// The written text, with the lines of the source where these have a text that is none: another may be written for it.
std::string WithNone(std::string_view written, std::string_view source) {
    std::string text;
    while (!written.empty()) {
        const std::string_view line = TakeLine(written);
        const std::string_view given = TakeLine(source);
        text += given.find("\"Invalid\"") == std::string_view::npos ? line : given;
    }
    return text;
}

class KeyFilesTest : public testing::Test, private ReportHandler {
protected:
    KeyFilesTest() { converter.SetReportHandler(this); }

    ConversionResult Convert(const Json& file, const std::string& source) {
        reports.clear();
        return converter.Convert(ContentKindNamed(std::string(file.at("type"))).value(), "name", source,
                                 FileArchiveType::Text);
    }

    // Reports that the reference does not tell of.
    std::string UnknownReports(const KeyFiles& files) const {
        std::string unknown;
        for (const std::string& report : reports) {
            if (!files.PossibleReports().contains(report)) {
                unknown += report + '\n';
            }
        }
        return unknown;
    }

    int CountReports(const std::string& part) const {
        return static_cast<int>(std::ranges::count_if(
            reports, [&](const std::string& report) { return report.find(part) != std::string::npos; }));
    }

    ContentConverter converter;
    std::vector<std::string> reports;

private:
    void Handle(const char*, int, std::u16string_view text, bool) override {
        reports.emplace_back(Trimmed(ToUtf8(text)));
    }
};

TEST_F(KeyFilesTest, FilesOfEveryBranchComeBackAsTheyAre) {
    constexpr int kMostFiles = 400;
    constexpr int kIdleFiles = 12;
    KeyFiles files(Reference(), kSeed);
    int classesWithCleanFiles = 0;
    for (const Json* file : Files()) {
        SCOPED_TRACE(file->at("name"));
        int cleanFiles = 0;
        int idle = 0;
        for (int i = 0; i < kMostFiles && idle < kIdleFiles; ++i) {
            const auto progress = [&] {
                std::size_t count = files.Written().size();
                for (const auto& [key, texts] : files.Texts()) {
                    count += texts.size();
                }
                return count;
            };
            const std::size_t before = progress();
            const std::string source = Joined(files.Write(*file, Reference().at("version"), Flaw::None));
            idle = progress() == before ? idle + 1 : 0;
            ASSERT_EQ(Convert(*file, source), ConversionResult::Converted) << source;
            ASSERT_EQ(UnknownReports(files), "") << source;
            if (file->at("type") == "mesh") {
                ASSERT_EQ(WithoutDerived(*file, converter.Bytes()), WithoutDerived(*file, source));
            } else {
                ASSERT_EQ(WithNone(converter.Bytes(), source), source);
            }
            cleanFiles += reports.empty() ? 1 : 0;
        }
        classesWithCleanFiles += cleanFiles > 0 ? 1 : 0;
    }
    // Random values seldom suit each other in a few of them.
    EXPECT_GT(classesWithCleanFiles, 44);
    for (const Json& record : Reference().at("records")) {
        std::vector<const Json*> keys;
        CollectKeys(record.at("keys"), keys);
        for (const Json* key : keys) {
            EXPECT_TRUE(files.Written().contains(key) || key->contains("before")) << record.at("name") << ' ' << *key;
        }
    }
}

// The version in front of each one that keys came with.
std::set<int> OldVersions() {
    std::set<int> versions;
    for (const Json& record : Reference().at("records")) {
        std::vector<const Json*> keys;
        CollectKeys(record.at("keys"), keys);
        for (const Json* key : keys) {
            for (const char* limit : {"since", "before"}) {
                if (key->contains(limit)) {
                    versions.insert(key->at(limit).get<int>() - 1);
                }
            }
        }
    }
    return versions;
}

TEST_F(KeyFilesTest, FilesOfOlderVersionsAreTaken) {
    constexpr int kFilesOfAVersion = 6;
    KeyFiles files(Reference(), kSeed);
    const std::set<int> versions = OldVersions();
    EXPECT_GT(versions.size(), 1U);
    for (const int version : versions) {
        for (const Json* file : Files()) {
            for (int i = 0; i < kFilesOfAVersion; ++i) {
                const std::string source = Joined(files.Write(*file, version, Flaw::None));
                ASSERT_EQ(Convert(*file, source), ConversionResult::Converted) << source;
                ASSERT_EQ(UnknownReports(files), "") << source;
            }
        }
    }
    for (const Json& record : Reference().at("records")) {
        std::vector<const Json*> keys;
        CollectKeys(record.at("keys"), keys);
        for (const Json* key : keys) {
            EXPECT_TRUE(files.Written().contains(key) || !key->contains("before")) << *key;
        }
    }
}

class KeyFlawsTest : public KeyFilesTest {
protected:
    // Puts the flaw into all keys that can have it, and hands the flawed keys of each file to `expect`.
    template <class Expect>
    void PutEverywhere(Flaw flaw, Expect expect) {
        constexpr int kIdleFiles = 4;
        KeyFiles files(Reference(), kSeed);
        std::size_t count = 0;
        for (const Json* file : Files()) {
            for (int idle = 0; idle < kIdleFiles;) {
                const std::string source = Joined(files.Write(*file, Reference().at("version"), flaw));
                idle = files.FlawedKeys().empty() ? idle + 1 : 0;
                const ConversionResult result = Convert(*file, source);
                if (!files.FlawedKeys().empty()) {
                    SCOPED_TRACE(std::string(file->at("name")) + ' ' +
                                 std::string(files.FlawedKeys().back()->at("key")));
                    expect(files.FlawedKeys(), result);
                }
                count += files.FlawedKeys().size();
            }
        }
        EXPECT_GT(count, 10U);
    }
};

TEST_F(KeyFlawsTest, OneUnitTooManyIsReported) {
    PutEverywhere(Flaw::TextTooLong, [&](const auto& keys, ConversionResult result) {
        EXPECT_EQ(result, ConversionResult::Converted);
        // A few texts are cut when they are kept, not when they are read.
        const int cutLater = CountReports("GetLength( source ) < destination.m_BufferSize");
        EXPECT_GE(CountReports("numCharsCopied < bufferSize") + cutLater, static_cast<int>(keys.size()));
    });
}

TEST_F(KeyFlawsTest, EachUnknownTextIsReported) {
    PutEverywhere(Flaw::TextUnknown, [&](const auto& keys, ConversionResult result) {
        EXPECT_EQ(result, EndsIfFlawed(*keys.back()) ? ConversionResult::Ended : ConversionResult::Converted);
        EXPECT_EQ(CountReports("Failed to convert 'None of "), static_cast<int>(keys.size()));
        for (const Json* key : keys) {
            const std::string choices = key->at("choices");
            EXPECT_GT(CountReports("' to a " + choices.substr(0, choices.find(' ')) + "::enum value."), 0) << choices;
        }
    });
}

TEST_F(KeyFlawsTest, OneEntryTooManyIsReported) {
    PutEverywhere(Flaw::ListTooLong, [&](const auto& keys, ConversionResult result) {
        const bool isFatal = EndsIfFlawed(*keys.back());
        EXPECT_EQ(result, isFatal ? ConversionResult::Ended : ConversionResult::Converted);
        for (const Json* key : keys) {
            const int limit = key->at("limit");
            const std::string rule = key->at("rule");
            if (rule == "bounded") {
                EXPECT_EQ(CountReports(std::string(key->at("key")) + " exceeds the maximum allowed. " +
                                       std::to_string(limit + 1) + " requested but only " + std::to_string(limit)),
                          1);
            } else if (rule == "reported") {
                EXPECT_GT(
                    CountReports('(' + std::to_string(limit + 1) + "). Can only support " + std::to_string(limit)), 0);
            } else if (!isFatal) {
                EXPECT_GT(CountReports(rule == "exact" ? "elementCount == data->Size()" : "m_CurrentSize < MAX_SIZE"),
                          0);
            }
        }
    });
}

} // namespace

} // namespace Vorn
