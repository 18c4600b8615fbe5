#pragma once

#include "engine/archive/fieldcontext.h"
#include "engine/render/mesh/mesh.h"
#include "engine/render/texture/texturesystem.h"
#include "engine/window/brushset.h"
#include "gs/entity/entitydef.h"
#include "gs/player/playersystem.h"
#include "gs/render/particle/particlesimulationdefinition.h"
#include "tools/kelvane/contentkind.h"

#include <memory>

namespace Vorn {

// The content of a file as its records hold it: read once, by the same lists of fields as a conversion, and then
// written as a conversion would.
class LoadedContent {
public:
    explicit LoadedContent(ContentKind kind);

    // Reads all behind header and version.
    void Read(Archive& archive);

    // Changes what a conversion changes between reading and writing.
    void Write(Archive& archive);

    // Null for other types of content.
    const Mesh::Data* GetMesh() const { return mesh.get(); }
    const BrushSet* GetBrushes() const { return brushes.get(); }

private:
    void Fields(FieldIo& io);

    // Outlive the brushes.
    TextureSystem textures;
    PlayerSystem players;
    FieldContext context;
    std::unique_ptr<Mesh::Data> mesh;
    std::unique_ptr<BrushSet> brushes;
    std::unique_ptr<ParticleSimulationDefinition> particle;
    std::unique_ptr<EntityDef> entity;
};

} // namespace Vorn
