#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/sharedenums.h"

namespace Vorn {

class MeshSystem;

// What has hull and armor. Each mesh of specific debris that is read is searched for as a file and reported if there is
// none; its name is kept.
struct IDamageDefinition : Record {
    std::uint32_t numRandomDebrisLarge = 0;
    std::uint32_t numRandomDebrisSmall = 0;
    FixedVector<FixedString<256>, 2> specificDebrisMeshNames;
    ArmorType armorType = ArmorType::Invalid;

    void Fields(FieldIo& io) override;

private:
    void ReportMissingMeshes(const MeshSystem& meshes) const;
};

} // namespace Vorn
