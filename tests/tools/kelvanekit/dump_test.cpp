#include "fuzz/damage.h"
#include "tests/support/process.h"
#include "tests/support/tempfolder.h"
#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/check/contentdiff.h"
#include "tools/kelvanekit/contentdump.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

std::string Binary(ContentKind kind, std::string_view bytes) {
    ContentConverter converter;
    EXPECT_EQ(converter.Convert(kind, "x", bytes, FileArchiveType::Binary), ConversionResult::Converted);
    return std::string(converter.Bytes());
}

std::string Sample(const std::string& name) {
    return ReadBytes(fs::path(KELVANE_SAMPLES) / name).value();
}

// The differences of two contents, one a line.
std::string Differences(ContentKind kind, const std::string& before, const std::string& after) {
    ContentReading left(kind, before, nullptr);
    ContentReading right(kind, after, nullptr);
    left.ReadFields(true);
    right.ReadFields(true);
    std::string shown;
    CompareFields(&left.Reader(), &right.Reader(), [&](const FieldDifference& difference) {
        const auto side = [](const std::string_view* value) { return value == nullptr ? "()" : std::string(*value); };
        shown += difference.path + ' ' + side(difference.before) + ' ' + side(difference.after) + '\n';
    });
    return shown;
}

// Lines of a text from the first that has `from` in it up to the next that has `to`.
std::string WithoutLines(std::string text, std::string_view from, std::string_view to) {
    const std::size_t begin = text.rfind('\n', text.find(from)) + 1;
    const std::size_t end = text.rfind('\n', text.find(to, begin + 1)) + 1;
    return text.erase(begin, end - begin);
}

std::string With(std::string text, std::string_view from, std::string_view to) {
    EXPECT_NE(text.find(from), std::string::npos) << from;
    return text.replace(text.find(from), from.size(), to);
}

TEST(DiffTest, BothFormsOfASampleAreTheSame) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(KELVANE_SAMPLES)) {
        if (const auto kind = ContentKindOfFile(entry.path().string()); entry.is_regular_file() && kind) {
            const std::string text = ReadBytes(entry.path()).value();
            EXPECT_EQ(Differences(*kind, text, Binary(*kind, text)), "") << entry.path();
        }
    }
}

TEST(DiffTest, DifferencesAreToldByTheirKeys) {
    const std::string frigate = Sample("entity/frigate_lancer.entity");
    const auto changed = [&](std::string_view from, std::string_view to) {
        return Differences(ContentKind::Entity, frigate, Binary(ContentKind::Entity, With(frigate, from, to)));
    };
    EXPECT_EQ(changed("slotCount 6.000000", "slotCount 7.500000"), "slotCount 6.000000 7.500000\n");
    EXPECT_EQ(changed("defaultAutoAttackRange \"GravityWell\"", "defaultAutoAttackRange \"LocalArea\""),
              "defaultAutoAttackRange \"GravityWell\" \"LocalArea\"\n");
    const std::string buoy = Sample("mesh/signal-buoy.mesh");
    EXPECT_EQ(Differences(ContentKind::Mesh, buoy, With(buoy, "iVertex0 0", "iVertex0 1")),
              "MeshData.Triangle[0].iVertex0 0 1\n");
}

// An entry that is put in or taken out does not change those behind it.
TEST(DiffTest, EntriesAreAlignedWithThoseLikeThem) {
    const std::string icons = Sample("brushes/hud-icons.brushes");
    const std::size_t count = icons.find("brushCount ") + 11;
    const int number = std::stoi(icons.substr(count));
    std::string fewer = icons;
    fewer.replace(count, icons.find_first_of("\r\n", count) - count, std::to_string(number - 1));
    fewer = WithoutLines(fewer, "brush\r", "brush\r");
    const std::string removed = Differences(ContentKind::Brushes, icons, fewer);
    EXPECT_TRUE(removed.starts_with("brush[0].name ")) << removed;
    EXPECT_EQ(removed.find("brush[1]"), std::string::npos) << removed;
    std::string added = Differences(ContentKind::Brushes, fewer, icons);
    EXPECT_EQ(std::ranges::count(added, '\n'), std::ranges::count(removed, '\n'));
    EXPECT_NE(added.find(" () "), std::string::npos);
}

TEST(DiffTest, FilesThatOnlyOneSideHasAreTold) {
    const TempFolder folder;
    WriteBytes(folder.Path() / "a.entity", Sample("entity/weapon_standard.entity"));
    WriteBytes(folder.Path() / "b.entity", "no content at all");
    const auto run = [&](const std::vector<std::string>& arguments) {
        return RunProgram(KELVANE_KIT_EXECUTABLE, arguments, folder.Path());
    };
    EXPECT_EQ(run({"diff", "a.entity", "a.entity"}).status, 0);
    const ProcessResult added = run({"diff", "/dev/null", "a.entity"});
    EXPECT_EQ(added.status, 1);
    EXPECT_EQ(added.output, "ZephArchiveVersion: added 194\nentityType: added \"Weapon\"\n");
    EXPECT_EQ(run({"diff", "a.entity", "b.entity"}).status, 2);
    EXPECT_EQ(run({"diff", "a.entity", "none.entity"}).status, 2);
}

class DumpTest : public testing::Test {
protected:
    std::vector<nlohmann::json> Dump(const std::string& name, const std::string& bytes) {
        WriteBytes(folder.Path() / name, bytes);
        const ProcessResult result =
            RunProgram(KELVANE_KIT_EXECUTABLE, {"dump", "--format", "json", name}, folder.Path());
        EXPECT_EQ(result.status, 0) << result.reports;
        std::vector<nlohmann::json> lines;
        for (std::string_view rest = result.output; !rest.empty();) {
            const std::size_t end = rest.find('\n');
            lines.push_back(nlohmann::json::parse(rest.substr(0, end)));
            rest.remove_prefix(end + 1);
        }
        return lines;
    }

    TempFolder folder;
};

TEST_F(DumpTest, EveryByteOfABinaryFileIsShownOnce) {
    const std::string bytes = Binary(ContentKind::Mesh, Sample("mesh/signal-buoy.mesh"));
    const std::vector<nlohmann::json> lines = Dump("buoy.mesh", bytes);
    EXPECT_EQ(lines[0]["form"], "binary");
    EXPECT_EQ(lines[0]["version"], 194);
    std::size_t place = 5;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i]["offset"], place);
        place += lines[i]["bytes"].get<std::string>().size() / 2;
    }
    EXPECT_EQ(place, bytes.size());
    EXPECT_EQ(lines[1]["key"], "ZephArchiveVersion");
    EXPECT_EQ(lines[1]["bytes"], "c2000000");
}

TEST_F(DumpTest, WhatIsWrongStandsBehindItsField) {
    const std::string frigate = Sample("entity/frigate_lancer.entity");
    std::vector<nlohmann::json> lines = Dump("f.entity", With(frigate, "slotCount 6.000000", "slotCount six"));
    const auto wrong =
        std::ranges::find_if(lines, [](const nlohmann::json& line) { return line.contains("severity"); });
    ASSERT_NE(wrong, lines.end());
    EXPECT_EQ((*wrong)["code"], "number-expected");
    EXPECT_EQ((*(wrong - 1))["key"], "slotCount");
    EXPECT_EQ((*(wrong - 1))["line"], (*wrong)["line"]);

    const std::string binary = Binary(ContentKind::Entity, frigate);
    lines = Dump("f.entity", binary.substr(0, 100));
    EXPECT_EQ(lines.back()["code"], "truncated");
    lines = Dump("f.entity", binary + "rest");
    EXPECT_EQ(lines.back()["code"], "trailing-content");
    EXPECT_EQ(lines.back()["offset"], binary.size());
}

// Nothing that is read of damaged bytes lies outside of them.
TEST_F(DumpTest, DamagedFilesAreShown) {
    Random random(29);
    const std::string frigate = Binary(ContentKind::Entity, Sample("entity/frigate_lancer.entity"));
    for (int i = 0; i < 40; ++i) {
        const std::string damaged = Damage(frigate, {frigate}, random);
        ContentReading reading(ContentKind::Entity, damaged, nullptr);
        if (!damaged.empty() && reading.ReadFields(true) && reading.IsBinary()) {
            std::size_t total = 0;
            for (std::size_t ask = 0; ask < reading.Reader().Asks().size(); ++ask) {
                total += reading.BytesOf(static_cast<std::int32_t>(ask)).size();
            }
            EXPECT_LE(total, damaged.size()) << i;
        }
    }
}

TEST_F(DumpTest, TheShortFormIsTheSameForBothForms) {
    const std::string frigate = Sample("entity/frigate_lancer.entity");
    WriteBytes(folder.Path() / "text.entity", frigate);
    WriteBytes(folder.Path() / "binary.entity", Binary(ContentKind::Entity, frigate));
    const auto keys = [&](const char* name) {
        return RunProgram(KELVANE_KIT_EXECUTABLE, {"dump", "--format", "keys", name}, folder.Path()).output;
    };
    EXPECT_EQ(keys("text.entity"), keys("binary.entity"));
    EXPECT_NE(keys("text.entity").find("\nslotCount 6.000000\n"), std::string::npos);
}

} // namespace

} // namespace Vorn
