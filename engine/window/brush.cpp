#include "engine/window/brush.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr Label kStateLabels[Brush::kStateCount] = {u"Disabled", u"Pressed", u"CursorOver", u"Focused", u"Normal"};

bool HoldsMargins(ArchiveContent content) {
    return content == ArchiveContent::MarginsAndStates || content == ArchiveContent::Margins;
}

bool HoldsStates(ArchiveContent content) {
    return content == ArchiveContent::MarginsAndStates || content == ArchiveContent::States;
}

FileTexture* AcquireSame(const FileTexture* texture) {
    return texture != nullptr ? texture->GetOwner().Acquire(texture->GetFileName().View()) : nullptr;
}

} // namespace

void Brush::Margins::Fields(FieldIo& io) {
    io.Uint(u"left", left);
    io.Uint(u"right", right);
    io.Uint(u"top", top);
    io.Uint(u"bottom", bottom);
}

Brush::StateInfo::StateInfo(const StateInfo& other)
    : Record(other), texture(AcquireSame(other.texture)), pixelBox(other.pixelBox) {}

Brush::StateInfo& Brush::StateInfo::operator=(const StateInfo& other) {
    if (this != &other) {
        ReleaseTexture();
        texture = AcquireSame(other.texture);
        pixelBox = other.pixelBox;
    }
    return *this;
}

void Brush::StateInfo::Fields(FieldIo& io) {
    FixedString<260> fileName;
    if (io.Writing() && texture != nullptr) {
        fileName.Assign(texture->GetFileName().View());
    }
    io.CutTo(FileTexture::kNameCapacity);
    io.String(u"fileName", fileName);
    if (io.Reading()) {
        ReleaseTexture();
        texture = io.Context().textures->Acquire(fileName.View());
    }
    io.Rectangle(u"pixelBox", pixelBox);
}

Brush::TextureQuad Brush::StateInfo::GetTextureQuad(int i, const Margins& margins) const {
    if (texture == nullptr || i < 0 || i >= kQuadCount) {
        return {{{0, 0}, {1, 0}, {1, 1}, {0, 1}}};
    }
    // Edges in pixels from one side to the other; sums wrap around like those of the box.
    const auto edge = [](std::int32_t side, std::uint32_t inward) {
        return static_cast<float>(static_cast<std::int32_t>(static_cast<std::uint32_t>(side) + inward));
    };
    const auto width = static_cast<float>(texture->GetWidth());
    const auto height = static_cast<float>(texture->GetHeight());
    const float us[] = {edge(pixelBox.left, 0) / width, edge(pixelBox.left, margins.left) / width,
                        edge(pixelBox.right, 0 - margins.right) / width, edge(pixelBox.right, 0) / width};
    const float vs[] = {edge(pixelBox.top, 0) / height, edge(pixelBox.top, margins.top) / height,
                        edge(pixelBox.bottom, 0 - margins.bottom) / height, edge(pixelBox.bottom, 0) / height};
    struct Region {
        int u0, v0, u1, v1;
    };
    static constexpr Region kRegions[kQuadCount] = {{0, 0, 1, 1}, {0, 1, 1, 2}, {0, 2, 1, 3}, {2, 0, 3, 1},
                                                    {2, 1, 3, 2}, {2, 2, 3, 3}, {1, 0, 2, 1}, {1, 2, 2, 3},
                                                    {1, 1, 2, 2}, {0, 0, 3, 3}};
    const Region& region = kRegions[i];
    return {{{us[region.u0], vs[region.v0]},
             {us[region.u1], vs[region.v0]},
             {us[region.u1], vs[region.v1]},
             {us[region.u0], vs[region.v1]}}};
}

bool Brush::StateInfo::IsLike(const StateInfo& other) const {
    return pixelBox == other.pixelBox && HasTextureOf(other);
}

bool Brush::StateInfo::HasTextureOf(const StateInfo& other) const {
    if (texture != nullptr && other.texture != nullptr && texture->GetOwner().HasNameOnlyTextures()) {
        return texture->GetFileName() == other.texture->GetFileName();
    }
    return texture == other.texture;
}

void Brush::StateInfo::ReleaseTexture() {
    if (texture != nullptr) {
        texture->GetOwner().Release(texture);
        texture = nullptr;
    }
}

void Brush::Fields(FieldIo& io) {
    io.String(u"name", name);
    ArchiveContent content = io.Writing() ? ContentFromData() : ArchiveContent::Invalid;
    io.Enum(u"content", content);
    if (HoldsMargins(content)) {
        io.Record(u"stretchMargins", stretchMargins);
        io.Record(u"contentMargins", contentMargins);
    }
    if (HoldsStates(content)) {
        for (int i = 0; i < kStateCount; ++i) {
            io.Record(kStateLabels[i], states[i]);
        }
    } else {
        io.Block(states[0]);
    }
    if (io.Reading() && !HoldsStates(content)) {
        ShareFirstState();
    }
}

void Brush::ShareFirstState() {
    for (int i = 1; i < kStateCount; ++i) {
        states[i] = states[0];
    }
}

ArchiveContent Brush::ContentFromData() const {
    const bool hasMargins = !stretchMargins.IsZero() || !contentMargins.IsZero();
    if (StatesDiffer()) {
        return hasMargins ? ArchiveContent::MarginsAndStates : ArchiveContent::States;
    }
    return hasMargins ? ArchiveContent::Margins : ArchiveContent::Simple;
}

// Likeness is transitive, so that it is enough to compare with the first state.
bool Brush::StatesDiffer() const {
    return !std::all_of(states.begin(), states.end(), [&](const StateInfo& state) { return state.IsLike(states[0]); });
}

void Brush::ReleaseTextures() {
    for (StateInfo& state : states) {
        state.ReleaseTexture();
    }
}

} // namespace Vorn
