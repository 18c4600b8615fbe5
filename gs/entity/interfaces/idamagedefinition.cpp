#include "gs/entity/interfaces/idamagedefinition.h"

#include "engine/core/core.h"
#include "engine/core/reporting.h"

namespace Vorn {

void IDamageDefinition::Fields(FieldIo& io) {
    io.Uint(u"numRandomDebrisLarge", numRandomDebrisLarge);
    io.Uint(u"numRandomDebrisSmall", numRandomDebrisSmall);
    io.BoundedList(u"numSpecificDebris", specificDebrisMeshNames,
                   [&](FixedString<256>& name) { io.String(u"specificDebrisMeshName", name); });
    io.Enum(u"armorType", armorType);
    if (io.Reading()) {
        ReportMissingMeshes();
    }
}

void IDamageDefinition::ReportMissingMeshes() const {
    for (const FixedString<256>& name : specificDebrisMeshNames) {
        FixedString<260> path;
        if (!GetCore().meshSystem.FindMeshFile(path, name.View())) {
            ReportError(u"IDamage debris mesh does not exist: %s", name);
        }
    }
}

} // namespace Vorn
