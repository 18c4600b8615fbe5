#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/meshnameinfo.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// The meshes of an entity whose looks change as research or upgrades go on, and the effects of a change. Only the first
// mesh should be unconditional: a check tells of each later one.
struct ChangeMeshFields : Record {
    FixedVector<MeshNameInfo, 12> meshNameInfos;
    ParticleSimulationDefinitionRef meshNameIncreasedEffectName;
    ParticleSimulationDefinitionRef meshNameDecreasedEffectName;

    void Fields(FieldIo& io) override;

private:
    void CheckUnconditionalMeshes() const;
};

// The same for each kind of owner. The number of meshes that the game keeps room for differs; the file and its limit of
// 12 do not.
template <int MESH_CAPACITY>
struct IChangeMeshDef : ChangeMeshFields {
    static constexpr int kMeshCapacity = MESH_CAPACITY;
};

} // namespace Vorn
