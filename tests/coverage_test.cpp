#include "gs/entity/entitytypes.h"
#include "tests/support/casefile.h"
#include "tests/support/process.h"
#include "tests/support/tempfolder.h"
#include "tools/kelvane/contentkind.h"

#include <gtest/gtest.h>

#include <set>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

std::string Narrow(std::u16string_view text) {
    return {text.begin(), text.end()};
}

// What must be complete when something is added.
class CoverageTest : public testing::Test {
protected:
    static std::string FileIn(const fs::path& path) { return ReadBytes(fs::path(KELVANE_SOURCES) / path).value_or(""); }
};

TEST_F(CoverageTest, EachTypeOfEntityHasContents) {
    std::set<std::string> types;
    for (const fs::directory_entry& entry : fs::directory_iterator(KELVANE_CONTENT)) {
        const CaseFile file(entry.path(), KELVANE_SAMPLES);
        for (const Case& tested : file.cases) {
            const auto content = file.contents.find(tested.from);
            ASSERT_NE(content, file.contents.end()) << entry.path() << ": " << tested.from;
            types.emplace(ValueOf(content->second.front()));
        }
    }
    for (std::int32_t i = 0; i < kEntityTypeTable.rowCount; ++i) {
        const EntityTypeRow* row = FindEntityType(static_cast<EntityType>(i));
        EXPECT_TRUE(row->make == nullptr || types.contains('"' + Narrow(row->text) + '"')) << Narrow(row->text);
    }
}

TEST_F(CoverageTest, EachTypeOfContentIsDocumented) {
    std::vector<std::string> types = {"saveGame"};
    for (const ContentKindRow& row : ContentKinds()) {
        types.emplace_back(row.name);
    }
    const std::string usage = RunConverter({}, fs::temp_directory_path()).output;
    const std::string completion = FileIn("tools/kelvane/completion.bash");
    const std::string module = FileIn("cmake/KelvaneConvert.cmake");
    const std::string manual = FileIn("docs/kelvane.1.in");
    const std::string readme = FileIn("README.md");
    for (const std::string& type : types) {
        EXPECT_NE(usage.find(type), std::string::npos) << type;
        EXPECT_NE(completion.find(type), std::string::npos) << type;
        EXPECT_NE(module.find(type), std::string::npos) << type;
        EXPECT_TRUE(manual.find("\n.B " + type + "\n") != std::string::npos ||
                    manual.find("\n.BR " + type + " ") != std::string::npos)
            << type;
        EXPECT_NE(readme.find("| `" + type + "` |"), std::string::npos) << type;
    }
}

} // namespace

} // namespace Vorn
