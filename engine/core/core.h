#pragma once

#include "engine/archive/filearchivesystem.h"
#include "engine/datastructures/fixedarray.h"
#include "engine/file/filesystem.h"
#include "engine/render/mesh/meshsystem.h"
#include "engine/render/texture/texturesystem.h"

namespace Vorn {

// Owner of the engine's systems. Records reach the systems of the core made last through GetCore.
class Core {
public:
    Core();
    Core(const Core&) = delete;
    Core& operator=(const Core&) = delete;
    ~Core();

    // A well-known directory by its place in the table; empty until engine set-up fills it, which the converter never
    // runs.
    std::u16string_view GetDirectory(int kind) const { return directories[kind].path.View(); }

    FileSystem fileSystem;
    FileArchiveSystem fileArchiveSystem{fileSystem};
    MeshSystem meshSystem{fileSystem, fileArchiveSystem};
    TextureSystem textureSystem;

private:
    struct WellKnownDirectory {
        std::int32_t kind = 0;
        FixedString<260> path;
    };

    FixedArray<WellKnownDirectory, 34> directories;
    Core* previous;
};

Core& GetCore();

} // namespace Vorn
