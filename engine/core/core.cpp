#include "engine/core/core.h"

#include "engine/archive/fieldcontext.h"
#include "engine/archive/filearchivesystem.h"
#include "engine/datastructures/fixedarray.h"
#include "engine/file/filesystem.h"
#include "engine/render/mesh/meshsystem.h"
#include "engine/render/texture/texturesystem.h"

namespace Vorn {

struct Core::Systems {
    explicit Systems(FileStore& files) : fileSystem(files) {}

    FileSystem fileSystem;
    TextureSystem textureSystem;
    FieldContext context{&textureSystem, &meshSystem, nullptr, nullptr, true};
    FileArchiveSystem fileArchiveSystem{fileSystem, context};
    MeshSystem meshSystem{fileSystem, fileArchiveSystem};

    struct WellKnownDirectory {
        std::int32_t kind = 0;
        FixedString<260> path;
    };
    FixedArray<WellKnownDirectory, 34> directories;
};

Core::Core() : Core(NativeFiles()) {}

Core::Core(FileStore& files)
    : systems(std::make_unique<Systems>(files)), fileSystem(systems->fileSystem), textureSystem(systems->textureSystem),
      meshSystem(systems->meshSystem), fileArchiveSystem(systems->fileArchiveSystem), context(systems->context) {}

Core::~Core() = default;

std::u16string_view Core::GetDirectory(int kind) const {
    return systems->directories[kind].path.View();
}

} // namespace Vorn
