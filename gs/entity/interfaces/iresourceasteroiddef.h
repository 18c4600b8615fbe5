#pragma once

#include "engine/archive/record.h"
#include "gs/entity/interfaces/ihuddefinition.h"
#include "gs/entity/support/sharedenums.h"

namespace Vorn {

// An asteroid that holds a resource, with up to two meshes to choose from. Checks require that both distances of
// placement are 0 or more.
struct IResourceAsteroidDef : Record {
    Resource resource = Resource::Invalid;
    IHUDDefinition hud;
    BrushRef mainViewIcon;
    BrushRef picture;
    FixedVector<FixedString<256>, 2> meshNames;
    FixedString<256> nameStringID;
    FixedString<256> descStringID;
    float nearPlacementDistOffset = 0.0f;
    float farPlacementDistOffset = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
