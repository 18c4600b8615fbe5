#include "gs/entity/interfaces/ichangemeshdef.h"

namespace Vorn {

void IChangeMeshDef::Fields(FieldIo& io) {
    io.BoundedList(u"MeshNameInfoCount", meshNameInfos, io.Records(u"MeshNameInfo"));
    io.Value(u"meshNameIncreasedEffectName", meshNameIncreasedEffectName);
    io.Value(u"meshNameDecreasedEffectName", meshNameDecreasedEffectName);
    if (io.Reading()) {
        CheckUnconditionalMeshes();
    }
}

void IChangeMeshDef::CheckUnconditionalMeshes() const {
    for (int i = 1; i < meshNameInfos.Size(); ++i) {
        CheckAssert(meshNameInfos[i].criteriaType != CriteriaType::None, "false");
    }
}

} // namespace Vorn
