#include "gs/entity/support/meshnameinfo.h"

namespace Vorn {

void MeshNameInfo::Fields(FieldIo& io) {
    io.String(u"meshName", meshName, NameKind::Mesh);
    io.Enum(u"criteriaType", criteriaType);
    switch (criteriaType) {
    case CriteriaType::Research:
        io.Record(u"prerequisites", prerequisites);
        break;
    case CriteriaType::StarBaseUpgradeLevel:
        io.Record(u"levelRequirements", levelRequirements);
        break;
    case CriteriaType::None:
        break;
    case CriteriaType::Invalid:
        CheckAssert(false, "false");
    }
}

} // namespace Vorn
