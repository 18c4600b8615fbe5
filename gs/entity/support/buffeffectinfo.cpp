#include "gs/entity/support/buffeffectinfo.h"

namespace Vorn {

void BuffEffectAttachInfo::Fields(FieldIo& io) {
    io.Enum(u"attachType", attachType);
    if (attachType == BuffEffectAttachType::Ability) {
        io.Uint(u"abilityIndex", abilityIndex);
    }
}

void BuffEffectInfo::Fields(FieldIo& io) {
    io.Record(u"effectAttachInfo", effectAttachInfo);
    io.Value(u"smallEffectName", smallEffectName);
    io.Value(u"mediumEffectName", mediumEffectName);
    io.Value(u"largeEffectName", largeEffectName);
    io.Value(u"soundID", soundID);
}

} // namespace Vorn
