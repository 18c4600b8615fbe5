#pragma once

#include "engine/string/fixedstring.h"

#include <memory>
#include <vector>

namespace Vorn {

class TextureSystem;

// A texture as far as records need it: its names, and its extent in pixels, 0 without an image.
class FileTexture {
public:
    // The system that handed it out.
    TextureSystem& GetOwner() const { return *owner; }
    // As long as no image file is looked for, its file name.
    const FixedString<256>& GetName() const { return fileName; }
    const FixedString<256>& GetFileName() const { return fileName; }
    std::int32_t GetWidth() const { return 0; }
    std::int32_t GetHeight() const { return 0; }

private:
    friend class TextureSystem;

    FixedString<256> fileName;
    TextureSystem* owner = nullptr;
    FileTexture* nextFree = nullptr;
};

// Hands out textures by name. In the name-only mode that the converter runs in, every call gives an object of its own
// that only holds the name, and no image file is looked for.
class TextureSystem {
public:
    TextureSystem() = default;
    TextureSystem(const TextureSystem&) = delete;
    TextureSystem& operator=(const TextureSystem&) = delete;

    // Where image files are; only its capacity of 255 units matters as long as none is looked for.
    void SetFolder(std::u16string_view path) { folder.Assign(path); }
    void SetNameOnlyTextures(bool on) { nameOnlyTextures = on; }
    bool HasNameOnlyTextures() const { return nameOnlyTextures; }

    // A name over 255 units is cut with the checks of Copy.
    FileTexture* Acquire(std::u16string_view fileName);

    // Does nothing on null.
    void Release(FileTexture* texture);

    std::int32_t GetTextureCount() const { return textureCount; }

private:
    void AddBlock();

    std::vector<std::unique_ptr<FileTexture[]>> blocks;
    FileTexture* firstFree = nullptr;
    std::int32_t textureCount = 0;
    FixedString<256> folder;
    bool nameOnlyTextures = false;
};

} // namespace Vorn
