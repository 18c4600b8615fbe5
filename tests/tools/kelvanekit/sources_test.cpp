#include "tools/kelvanekit/sources.h"

#include "tests/support/tempfolder.h"
#include "tools/kelvane/contentkind.h"
#include "tools/kelvanekit/glob.h"
#include "tools/kelvanekit/inputfile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

class SourcesTest : public testing::Test {
protected:
    SourcesTest() : previous(fs::current_path()) { fs::current_path(folder.Path()); }
    ~SourcesTest() override { fs::current_path(previous); }

    static void Put(const Names& names) {
        for (const std::string& name : names) {
            fs::create_directories(fs::path("./" + name).parent_path());
            WriteBytes(name, name);
        }
    }

    static SourceOptions In(Names names, Names excludes = {}, std::optional<ContentKind> kind = {}) {
        SourceOptions options;
        options.names = std::move(names);
        options.excludes = std::move(excludes);
        options.type = kind;
        return options;
    }
    static Names Found(const SourceOptions& options) {
        Names names;
        for (const SourceFile& file : FindSources(options).files) {
            names.push_back(file.name);
        }
        return names;
    }
    static Names Problems(const SourceOptions& options) { return FindSources(options).problems; }

    TempFolder folder;
    const fs::path previous;
};

TEST_F(SourcesTest, FoldersAreWalkedInTheOrderOfTheirNames) {
    Put({"a/z.entity", "a/B.MESH", "a/b/c/y.particle", "a/b.brushes", "a/readme.txt", "a/.entity", "a/entity",
         "x.entity"});
    EXPECT_EQ(Found(In({"a"})), (Names{"a/B.MESH", "a/b/c/y.particle", "a/b.brushes", "a/z.entity"}));
    EXPECT_EQ(Found(In({"x.entity", "a/b/"})), (Names{"x.entity", "a/b/c/y.particle"}));
    EXPECT_EQ(Found(In({"a"}, {}, ContentKind::Mesh)), Names{"a/B.MESH"});
}

TEST_F(SourcesTest, KindAndTailFollowFromTheName) {
    Put({"a/b/x.mesh", "plain"});
    SourceOptions options = In({"a", "plain", "-"});
    options.stdinName = "s.brushes";
    const std::vector<SourceFile> files = FindSources(options).files;
    ASSERT_EQ(files.size(), 2u);
    EXPECT_EQ(files[0].kind, ContentKind::Mesh);
    EXPECT_EQ(files[0].Tail(), "b/x.mesh");
    EXPECT_EQ(files[1].name, "s.brushes");
    EXPECT_TRUE(files[1].isStandardInput);
    EXPECT_EQ(files[1].kind, ContentKind::Brushes);
    const SourceFile typed = FindSources(In({"a/b/x.mesh"}, {}, ContentKind::Entity)).files.at(0);
    EXPECT_EQ(typed.kind, ContentKind::Entity);
    EXPECT_EQ(typed.Tail(), "x.mesh");
}

TEST_F(SourcesTest, EachFileComesOnce) {
    Put({"a/x.entity", "a/y.entity"});
    fs::create_symlink("x.entity", "a/linked.entity");
    fs::create_directory_symlink("..", "a/up");
    fs::create_directory_symlink("a", "other");
    EXPECT_EQ(Found(In({"a", "a/x.entity", "./a/../a/y.entity", "other", fs::absolute("a").string()})),
              (Names{"a/linked.entity", "a/y.entity"}));
    EXPECT_EQ(Found(In({"a/y.entity", "a"})), (Names{"a/y.entity", "a/linked.entity"}));
}

TEST_F(SourcesTest, ExcludedNamesAreLeftOut) {
    Put({"a/x.entity", "a/old/x.entity", "a/b/old/y.entity", "a/b/z.entity", "old.entity"});
    EXPECT_EQ(Found(In({"a"}, {"old"})), (Names{"a/b/z.entity", "a/x.entity"}));
    EXPECT_EQ(Found(In({"a", "old.entity"}, {"x.*", "old.*", "b/old"})), Names{"a/b/z.entity"});
    EXPECT_EQ(Found(In({"a"}, {"a/**/[yz].entity"})), (Names{"a/old/x.entity", "a/x.entity"}));
}

TEST_F(SourcesTest, WhatCannotBeWorkedOnIsNamed) {
    Put({"a/x.entity", "plain"});
    fs::create_symlink("nowhere", "a/broken.entity");
    EXPECT_EQ(Problems(In({"plain", "missing.entity", "a", "-"})),
              (Names{"plain: its ending tells no type; give it by --type", "missing.entity: No such file or directory",
                     "a/broken.entity: No such file or directory",
                     "standard input: give its type by --type, or a name by --stdin-name"}));
}

TEST_F(SourcesTest, FilesAndPipesAreReadWhole) {
    const std::string large(300000, 'x');
    WriteBytes("large", large);
    WriteBytes("empty", "");
    mkfifo("pipe", 0600);
    std::thread writer([&] { WriteBytes("pipe", large); });
    InputFile input;
    EXPECT_EQ(input.Read("pipe"), "");
    writer.join();
    EXPECT_EQ(input.Bytes(), large);
    EXPECT_EQ(input.Read("empty"), "");
    EXPECT_EQ(input.Bytes(), "");
    EXPECT_EQ(input.Read("large"), "");
    EXPECT_EQ(input.Bytes(), large);
    EXPECT_EQ(input.Read("missing"), "No such file or directory");
    EXPECT_EQ(input.Read("."), "Is a directory");
    EXPECT_EQ(input.Bytes(), "");
}

TEST(GlobTest, PatternsAndTexts) {
    struct Case {
        std::string_view pattern;
        std::string_view text;
        bool matches;
    };
    constexpr Case kCases[] = {
        {"", "", true},
        {"", "a", false},
        {"*", "", true},
        {"*", "abc", true},
        {"*", "a/b", false},
        {"**", "a/b/c", true},
        {"a*c", "abbc", true},
        {"a*c", "abcb", false},
        {"a?c", "abc", true},
        {"a?c", "a/c", false},
        {"*.x", "a.b.x", true},
        {"[a-c]x", "bx", true},
        {"[!a-c]x", "bx", false},
        {"[!a-c]x", "dx", true},
        {"[]]", "]", true},
        {"[a", "[a", true},
        {"[!x]", "/", false},
        {"[a-]", "-", true},
        {"a/**/b", "a/b", true},
        {"a/**/b", "a/x/y/b", true},
        {"a/**b", "a/x/yb", true},
        {"**/b", "b", true},
        {"**/b", "a/b", true},
        {"a/**", "a/b/c", true},
        {"*a*b*c", "xaxbxc", true},
        {"*a*b*c", "xaxcxb", false},
        {"**a**b", "a/x/b", true},
        {"a*", "ba", false},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(MatchesGlob(c.pattern, c.text), c.matches) << c.pattern << " on " << c.text;
    }
    // Many stars on a text that nearly matches end soon.
    std::string stars;
    for (int i = 0; i < 40; ++i) {
        stars += "*a";
    }
    EXPECT_FALSE(MatchesGlob(stars + "b", std::string(2000, 'a')));
}

} // namespace

} // namespace Vorn
