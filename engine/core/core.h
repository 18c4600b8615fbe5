#pragma once

#include <memory>
#include <string_view>

namespace Vorn {

class FileArchiveSystem;
class FileStore;
class FileSystem;
class MeshSystem;
class TextureSystem;
struct FieldContext;

// Owner of the engine's systems. Records get what they need of them from the context of their archive. Users include
// the headers of the systems.
class Core {
    struct Systems;
    std::unique_ptr<Systems> systems;

public:
    // Files are those of the platform.
    Core();
    explicit Core(FileStore& files);
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;
    ~Core();

    // A well-known directory by its place in the table; all are empty.
    std::u16string_view GetDirectory(int kind) const;

    FileSystem& fileSystem;
    TextureSystem& textureSystem;
    MeshSystem& meshSystem;
    FileArchiveSystem& fileArchiveSystem;
    FieldContext& context;
};

} // namespace Vorn
