#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "engine/render/texture/texturesystem.h"

namespace Vorn {

// What a brush record holds: margins, five states, both, or only the one state that all share.
enum class ArchiveContent : std::int32_t { Invalid = -1, Simple, MarginsAndStates, Margins, States };

inline constexpr EnumRow<ArchiveContent> kArchiveContentRows[] = {
    {ArchiveContent::Simple, u"Simple"},
    {ArchiveContent::MarginsAndStates, u"MarginsAndStates"},
    {ArchiveContent::Margins, u"Margins"},
    {ArchiveContent::States, u"States"}};
inline constexpr auto kArchiveContentTexts = TextsInOrder<ArchiveContent::States>(kArchiveContentRows);
template <>
inline constexpr EnumTable kEnumTable<ArchiveContent> = MakeTable("ArchiveContent", kArchiveContentTexts);

// A named picture for the interface: pixels on a texture for each state of a control, with margins in pixels. Writing
// derives the content from the data, so that a brush is always written in its shortest form.
class Brush : public Record {
public:
    static constexpr int kStateCount = 5;

    // In the order left, right, top, bottom, unlike a Rectangle.
    struct Margins : Record {
        std::uint32_t left = 0;
        std::uint32_t right = 0;
        std::uint32_t top = 0;
        std::uint32_t bottom = 0;

        void Fields(FieldIo& io) override;
        bool IsZero() const { return (left | right | top | bottom) == 0; }
    };

    // One corner of a quad in texture coordinates; without an image these are infinite or not numbers.
    struct Corner {
        float u;
        float v;
    };
    struct TextureQuad {
        Corner corners[4];
    };

    // BrushSet::ReleaseTextures releases the texture, not the destructor.
    class StateInfo : public Record {
    public:
        static constexpr int kQuadCount = 10;

        StateInfo() = default;
        // A copy acquires a texture of its own under the same file name.
        StateInfo(const StateInfo& other);
        StateInfo& operator=(const StateInfo& other);

        void Fields(FieldIo& io) override;

        // The quads of box and margins: top left, left, bottom left, top right, right, bottom right, top, bottom,
        // centre, whole box. Without a texture each is the whole texture.
        TextureQuad GetTextureQuad(int i, const Margins& stretchMargins) const;

        // Same box and same texture, where textures that only have names are the same by name, case included.
        bool IsLike(const StateInfo& other) const;

        void ReleaseTexture();

    private:
        bool HasTextureOf(const StateInfo& other) const;

        FileTexture* texture = nullptr;
        Rectangle pixelBox = {-1, -1, -1, -1};
    };

    void Fields(FieldIo& io) override;

    const FixedString<128>& GetName() const { return name; }
    StateInfo& GetState(int i) { return states[i]; }
    TextureQuad GetTextureQuad(int state, int i) const { return states[state].GetTextureQuad(i, stretchMargins); }
    void ReleaseTextures();

private:
    ArchiveContent ContentFromData() const;
    bool StatesDiffer() const;
    void ShareFirstState();

    FixedString<128> name;
    FixedArray<StateInfo, kStateCount> states;
    Margins stretchMargins;
    Margins contentMargins;
};

} // namespace Vorn
