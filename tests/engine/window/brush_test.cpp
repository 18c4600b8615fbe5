#include "engine/window/brushlayout.h"
#include "engine/window/brushset.h"
#include "tests/support/archivetest.h"

#include <cmath>

namespace Vorn {

namespace {

class BrushTest : public ArchiveTest {
protected:
    Brush ReadBrush(std::string_view text) {
        Brush brush;
        Read(std::string(kTextHeader) + std::string(text), [&](FieldIo& io) { brush.Fields(io); });
        return brush;
    }
};

constexpr const char* kFrame = "name \"Frame\"\ncontent \"Margins\"\nstretchMargins\n\tleft 1\n\tright 2\n\ttop 3\n"
                               "\tbottom 4\ncontentMargins\n\tleft 0\n\tright 0\n\ttop 0\n\tbottom 0\n"
                               "fileName \"F.dds\"\npixelBox [ 10 , 0 , 30 , 40 ]\n";

// Without an image the extent is 0, and a division by it is infinite, or not a number at the edge 0.
TEST_F(BrushTest, TextureQuadsWithoutAnImage) {
    Brush brush = ReadBrush(kFrame);
    const Brush::TextureQuad topLeft = brush.GetTextureQuad(4, 0);
    EXPECT_TRUE(std::isinf(topLeft.corners[0].u));
    EXPECT_TRUE(std::isnan(topLeft.corners[0].v));
    EXPECT_TRUE(std::isinf(topLeft.corners[2].v));
    brush.ReleaseTextures();
    const Brush::TextureQuad untouched = Brush::StateInfo().GetTextureQuad(9, {});
    EXPECT_EQ(untouched.corners[1].u, 1.0f);
    EXPECT_EQ(untouched.corners[3].v, 1.0f);
}

// The sign of each coordinate shows on which side of 0 an edge is, and so which margin was used.
TEST_F(BrushTest, MarginsPartTheTexture) {
    const auto corners = [&](std::string_view margins) {
        std::string text = kFrame;
        text.replace(text.find("\tleft 1"), 34, margins);
        text.replace(text.find("[ 10"), 20, "[ -5 , -5 , 10 , 10 ]");
        Brush brush = ReadBrush(text);
        const Brush::TextureQuad quad = brush.GetTextureQuad(0, 8);
        brush.ReleaseTextures();
        std::string signs;
        for (const float edge : {quad.corners[0].u, quad.corners[2].u, quad.corners[0].v, quad.corners[2].v}) {
            signs += edge > 0.0f ? '+' : '-';
        }
        return signs;
    };
    EXPECT_EQ(corners("\tleft 1\n\tright 2\n\ttop 3\n\tbottom 4\n"), "-+-+");
    EXPECT_EQ(corners("\tleft 6\n\tright 2\n\ttop 3\n\tbottom 4\n"), "++-+");
    EXPECT_EQ(corners("\tleft 1\n\tright 6\n\ttop 3\n\tbottom 4\n"), "---+");
    EXPECT_EQ(corners("\tleft 1\n\tright 2\n\ttop 6\n\tbottom 4\n"), "-+++");
    EXPECT_EQ(corners("\tleft 1\n\tright 2\n\ttop 3\n\tbottom 6\n"), "-+--");
}

TEST_F(BrushTest, CopiesHaveTexturesOfTheirOwn) {
    Brush brush = ReadBrush(kFrame);
    EXPECT_EQ(core->textureSystem.GetTextureCount(), 5);
    Brush copy(brush);
    EXPECT_EQ(core->textureSystem.GetTextureCount(), 10);
    EXPECT_TRUE(copy.GetState(0).IsLike(brush.GetState(3)));
    brush.ReleaseTextures();
    EXPECT_FALSE(copy.GetState(0).IsLike(brush.GetState(0))) << "no texture is unlike any texture";
    EXPECT_TRUE(brush.GetState(1).IsLike(brush.GetState(0)));
    copy = brush;
    EXPECT_EQ(core->textureSystem.GetTextureCount(), 0);
    EXPECT_EQ(copy.GetName().View(), u"Frame");
}

TEST_F(BrushTest, SetsGiveAllTexturesBack) {
    std::string text = "TXT\nonlyLoadOnDemand TRUE\nbrushCount 20\n";
    for (int i = 0; i < 20; ++i) {
        text += "brush\n" + std::string(kFrame);
    }
    BrushSet set(Put("set", text));
    set.Load(core->fileArchiveSystem);
    EXPECT_EQ(set.GetBrushes().Size(), 20);
    EXPECT_EQ(set.GetBrushes().Capacity(), 20);
    EXPECT_EQ(core->textureSystem.GetTextureCount(), 100);
    set.ReleaseTextures();
    EXPECT_EQ(core->textureSystem.GetTextureCount(), 0);
    EXPECT_EQ(set.GetBrushes().Size(), 0);
}

TEST_F(BrushTest, LayoutsInText) {
    constexpr std::string_view kText = "textureName \"Pips.dds\"\r\nstartTopLeft [ 4 , 8 ]\r\nwidth 6\r\nheight 7\r\n"
                                       "rowItemCount 10\r\nhorizontalStride 12\r\nverticalStride 14\r\n";
    BrushLayout layout;
    const Fields fields = [&](FieldIo& io) { layout.Fields(io); };
    Read(std::string(kTextHeader) + std::string(kText), fields);
    EXPECT_EQ(Written(FileArchiveType::Text, fields), kText);
    layout = BrushLayout();
    EXPECT_EQ(Written(FileArchiveType::Text, fields),
              "textureName \"\"\r\nstartTopLeft [ 0 , 0 ]\r\nwidth 0\r\nheight 0\r\nrowItemCount 0\r\n"
              "horizontalStride 0\r\nverticalStride 0\r\n");
}

} // namespace

} // namespace Vorn
