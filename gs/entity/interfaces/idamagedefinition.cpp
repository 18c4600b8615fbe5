#include "gs/entity/interfaces/idamagedefinition.h"

#include "engine/core/reporting.h"
#include "engine/render/mesh/meshsystem.h"

namespace Vorn {

void IDamageDefinition::Fields(FieldIo& io) {
    io.Uint(u"numRandomDebrisLarge", numRandomDebrisLarge);
    io.Uint(u"numRandomDebrisSmall", numRandomDebrisSmall);
    io.BoundedList(u"numSpecificDebris", specificDebrisMeshNames, io.Names(u"specificDebrisMeshName", NameKind::Mesh));
    io.Enum(u"armorType", armorType);
    if (io.Reading() && io.Context().meshes != nullptr) {
        ReportMissingMeshes(*io.Context().meshes);
    }
}

void IDamageDefinition::ReportMissingMeshes(const MeshSystem& meshes) const {
    for (const FixedString<256>& name : specificDebrisMeshNames) {
        FixedString<260> path;
        if (!meshes.FindMeshFile(path, name.View())) {
            ReportError(u"IDamage debris mesh does not exist: %s", name);
        }
    }
}

} // namespace Vorn
