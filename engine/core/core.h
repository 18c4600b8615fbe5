#pragma once

#include "engine/archive/fieldcontext.h"
#include "engine/archive/filearchivesystem.h"
#include "engine/datastructures/fixedarray.h"
#include "engine/file/filesystem.h"
#include "engine/render/mesh/meshsystem.h"
#include "engine/render/texture/texturesystem.h"

namespace Vorn {

// Owner of the engine's systems. Records reach what they need of them through the context of their archive.
class Core {
public:
    explicit Core(FileStore& files = NativeFiles()) : fileSystem(files) {}
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;

    // A well-known directory by its place in the table; empty until engine set-up fills it, which the converter never
    // runs.
    std::u16string_view GetDirectory(int kind) const { return directories[kind].path.View(); }

    FileSystem fileSystem;
    TextureSystem textureSystem;
    FieldContext context{&textureSystem, &meshSystem, nullptr, true};
    FileArchiveSystem fileArchiveSystem{fileSystem, context};
    MeshSystem meshSystem{fileSystem, fileArchiveSystem};

private:
    struct WellKnownDirectory {
        std::int32_t kind = 0;
        FixedString<260> path;
    };

    FixedArray<WellKnownDirectory, 34> directories;
};

} // namespace Vorn
