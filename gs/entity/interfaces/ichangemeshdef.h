#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/meshnameinfo.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// The meshes of an entity whose looks change as research or upgrades go on, and the effects of a change. Only the first
// mesh should be unconditional: each later one fires the check "false".
struct IChangeMeshDef : Record {
    FixedVector<MeshNameInfo, 12> meshNameInfos;
    ParticleSimulationDefinitionRef meshNameIncreasedEffectName;
    ParticleSimulationDefinitionRef meshNameDecreasedEffectName;

    void Fields(FieldIo& io) override;

private:
    void CheckUnconditionalMeshes() const;
};

} // namespace Vorn
