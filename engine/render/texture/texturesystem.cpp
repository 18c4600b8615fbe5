#include "engine/render/texture/texturesystem.h"

namespace Vorn {

FileTexture* TextureSystem::Acquire(std::u16string_view fileName) {
    if (firstFree == nullptr) {
        AddBlock();
    }
    FileTexture* texture = firstFree;
    firstFree = texture->nextFree;
    // Once as the name of the texture and once as that of its file: too long a text is reported for each.
    texture->fileName.Assign(fileName);
    texture->fileName.Assign(fileName);
    ++textureCount;
    return texture;
}

void TextureSystem::Release(FileTexture* texture) {
    if (texture != nullptr) {
        texture->nextFree = firstFree;
        firstFree = texture;
        --textureCount;
    }
}

// Textures are allocated in blocks, so that reading a state of a brush usually allocates nothing.
void TextureSystem::AddBlock() {
    constexpr std::size_t kBlockSize = 32;
    blocks.push_back(std::make_unique_for_overwrite<FileTexture[]>(kBlockSize));
    for (std::size_t i = 0; i < kBlockSize; ++i) {
        FileTexture& texture = blocks.back()[i];
        texture.owner = this;
        texture.nextFree = firstFree;
        firstFree = &texture;
    }
}

} // namespace Vorn
