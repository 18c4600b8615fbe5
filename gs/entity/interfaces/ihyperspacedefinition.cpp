#include "gs/entity/interfaces/ihyperspacedefinition.h"

#include "gs/contentversions.h"

namespace Vorn {

void IHyperspaceDefinition::HyperspaceEffects::Fields(FieldIo& io) {
    io.Value(u"chargeUpEffectName", chargeUpEffectName);
    io.Value(u"chargeUpEffectNameBetweenStars", chargeUpEffectNameBetweenStars);
    io.Value(u"chargeUpEffectNameDestabilized", chargeUpEffectNameDestabilized);
    io.Value(u"chargeUpEffectSoundID", chargeUpEffectSoundID);
    io.Value(u"travelEffectName", travelEffectName);
    io.Value(u"travelEffectNameBetweenStars", travelEffectNameBetweenStars);
    io.Value(u"travelEffectNameDestabilized", travelEffectNameDestabilized);
    io.Value(u"travelEffectSoundID", travelEffectSoundID);
    io.Value(u"exitEffectName", exitEffectName);
    io.Value(u"exitEffectSoundID", exitEffectSoundID);
}

void IHyperspaceDefinition::Fields(FieldIo& io) {
    if (io.Before(kHyperspaceEffectsVersion)) {
        return;
    }
    io.Bool(u"useCustomHyperspaceEffects", useCustomHyperspaceEffects);
    if (useCustomHyperspaceEffects) {
        io.Record(u"effects", effects);
    }
}

void IHyperspaceDefinition::OldSoundFields(FieldIo& io) {
    if (io.Before(kHyperspaceEffectsVersion)) {
        io.Value(u"HyperspaceChargingSoundID", effects.chargeUpEffectSoundID);
        io.Value(u"HyperspaceTravelSoundID", effects.travelEffectSoundID);
    }
}

} // namespace Vorn
