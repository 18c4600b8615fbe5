#pragma once

#include "engine/string/fixedstring.h"

#include <memory>
#include <vector>

namespace Vorn {

class TextureSystem;

// What records need of a texture: its names, and its size in pixels, which is 0 without an image.
class FileTexture {
public:
    static constexpr int kNameCapacity = 256;

    // The system that created it.
    TextureSystem& GetOwner() const { return *owner; }
    // The same as the file name as long as no image file is searched for.
    const FixedString<kNameCapacity>& GetName() const { return fileName; }
    const FixedString<kNameCapacity>& GetFileName() const { return fileName; }
    std::int32_t GetWidth() const { return 0; }
    std::int32_t GetHeight() const { return 0; }

private:
    friend class TextureSystem;

    FixedString<kNameCapacity> fileName;
    TextureSystem* owner = nullptr;
    FileTexture* nextFree = nullptr;
};

// Provides textures by name. In the name-only mode, which the converter uses, every call returns a new object that only
// holds the name, and no image file is searched for.
class TextureSystem {
public:
    TextureSystem() = default;
    TextureSystem(const TextureSystem&) = delete;
    TextureSystem& operator=(const TextureSystem&) = delete;

    // The folder of image files, at most 255 units. Not used as long as no image file is searched for.
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
