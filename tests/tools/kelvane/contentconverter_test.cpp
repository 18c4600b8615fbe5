#include "tests/support/casesource.h"
#include "tests/support/tempfolder.h"
#include "tools/kelvane/contentconverter.h"

#include <gtest/gtest.h>

#include <set>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

struct Content {
    ContentKind kind;
    std::string bytes;
};

// All samples, and the sources of all cases.
std::vector<Content> AllContents() {
    std::vector<Content> contents;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(KELVANE_SAMPLES)) {
        if (const auto kind = ContentKindOfFile(entry.path().string())) {
            contents.push_back({*kind, ReadBytes(entry.path()).value()});
        }
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(KELVANE_CONTENT)) {
        const CaseFile file(entry.path(), KELVANE_SAMPLES);
        for (const Case& tested : file.cases) {
            for (const bool isBinary : {false, true}) {
                if (HasSource(tested, isBinary)) {
                    const Source source(tested, BaseOf(file, tested), isBinary);
                    contents.push_back({ContentKindNamed(file.type).value(), source.Bytes()});
                }
            }
        }
    }
    return contents;
}

// The contents' tests compare each conversion with that of a process of its own.
TEST(ContentConverterTest, GivesTheSameBytesWhateverWasConvertedBefore) {
    const std::vector<Content> contents = AllContents();
    ASSERT_GT(contents.size(), 100U);
    for (const FileArchiveType form : {FileArchiveType::Text, FileArchiveType::Binary}) {
        ContentConverter converter;
        const auto convert = [&](const Content& content) {
            const ConversionResult result = converter.Convert(content.kind, "name", content.bytes, form);
            return std::pair(result, std::string(converter.Bytes()));
        };
        std::vector<std::pair<ConversionResult, std::string>> forwards;
        for (const Content& content : contents) {
            forwards.push_back(convert(content));
        }
        for (std::size_t i = contents.size(); i-- > 0;) {
            EXPECT_EQ(convert(contents[i]), forwards[i]) << contents[i].bytes;
        }
    }
}

// Angles are kept in radians, which costs them their last decimals.
TEST(ContentConverterTest, OnlyAnglesPassThroughRadians) {
    ContentConverter converter;
    std::set<std::string> angles;
    for (const Content& content : AllContents()) {
        std::string source;
        for (const std::string& line : SplitFields(content.bytes)) {
            const std::string_view value = ValueOf(line);
            const bool isFloat = value.size() > 7 && value[value.size() - 7] == '.' && value.find('"') == value.npos;
            source += isFloat ? std::string(KeyOfLine(line)) + " 17.299999" : line;
            source += "\r\n";
        }
        if (converter.Convert(content.kind, "name", source, FileArchiveType::Text) == ConversionResult::Converted) {
            for (const std::string& line : SplitFields(converter.Bytes())) {
                if (ValueOf(line) == "17.299997") {
                    angles.emplace(KeyOfLine(line));
                }
            }
        }
    }
    EXPECT_EQ(angles, (std::set<std::string>{"angleOffset", "angleVariance", "angularSpeed", "firingTiltAngle",
                                             "maxAccelerationAngular", "maxDecelerationAngular", "maxRollAngle",
                                             "maxRollRate"}));
}

TEST(ContentConverterTest, TellsWhyNothingComesOfAContent) {
    ContentConverter converter;
    const auto convert = [&](ContentKind kind, std::string_view name, std::string_view bytes) {
        return converter.Convert(kind, name, bytes, FileArchiveType::Binary);
    };
    const std::string cosmetic = "TXT\nentityType \"Cosmetic\"\n";
    EXPECT_EQ(convert(ContentKind::Entity, "a/" + std::string(79, 'n') + ".entity", cosmetic),
              ConversionResult::Converted);
    EXPECT_EQ(convert(ContentKind::Entity, std::string(80, 'n') + ".entity", cosmetic), ConversionResult::Refused);
    EXPECT_EQ(convert(ContentKind::Entity, "n.entity", "TXT\nentityType \"Nothing\"\n"), ConversionResult::Refused);
    EXPECT_EQ(convert(ContentKind::Mesh, "m.mesh", "neither form"), ConversionResult::Ended);
    EXPECT_EQ(convert(ContentKind::Brushes, "b.brushes", "TXT\nonlyLoadOnDemand FALSE\nbrushCount 2147483647\n"),
              ConversionResult::Ended);
    EXPECT_EQ(convert(ContentKind::Brushes, "b.brushes", ""), ConversionResult::Converted) << "an empty set";
}

} // namespace

} // namespace Vorn
