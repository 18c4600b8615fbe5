#include "gs/player/playerhyperspacedata.h"

namespace Vorn {

namespace {

constexpr int kEffectCount = 10;

// For a frigate, a capital ship and a titan.
constexpr Label kEffectLabels[PlayerHyperspaceData::kShipClassCount][kEffectCount] = {
    {u"frigateChargeUpEffectName", u"frigateChargeUpEffectNameBetweenStars", u"frigateChargeUpEffectNameDestabilized",
     u"frigateChargeUpEffectSoundID", u"frigateTravelEffectName", u"frigateTravelEffectNameBetweenStars",
     u"frigateTravelEffectNameDestabilized", u"frigateTravelEffectSoundID", u"frigateExitEffectName",
     u"frigateExitEffectSoundID"},
    {u"capitalShipChargeUpEffectName", u"capitalShipChargeUpEffectNameBetweenStars",
     u"capitalShipChargeUpEffectNameDestabilized", u"capitalShipChargeUpEffectSoundID", u"capitalShipTravelEffectName",
     u"capitalShipTravelEffectNameBetweenStars", u"capitalShipTravelEffectNameDestabilized",
     u"capitalShipTravelEffectSoundID", u"capitalShipExitEffectName", u"capitalShipExitEffectSoundID"},
    {u"titanChargeUpEffectName", u"titanChargeUpEffectNameBetweenStars", u"titanChargeUpEffectNameDestabilized",
     u"titanChargeUpEffectSoundID", u"titanTravelEffectName", u"titanTravelEffectNameBetweenStars",
     u"titanTravelEffectNameDestabilized", u"titanTravelEffectSoundID", u"titanExitEffectName",
     u"titanExitEffectSoundID"},
};

void TransferEffects(FieldIo& io, const Label (&labels)[kEffectCount], PlayerHyperspaceData::JumpEffects& effects) {
    io.Value(labels[0], effects.chargeUpEffectName);
    io.Value(labels[1], effects.chargeUpEffectNameBetweenStars);
    io.Value(labels[2], effects.chargeUpEffectNameDestabilized);
    io.Value(labels[3], effects.chargeUpEffectSoundID);
    io.Value(labels[4], effects.travelEffectName);
    io.Value(labels[5], effects.travelEffectNameBetweenStars);
    io.Value(labels[6], effects.travelEffectNameDestabilized);
    io.Value(labels[7], effects.travelEffectSoundID);
    io.Value(labels[8], effects.exitEffectName);
    io.Value(labels[9], effects.exitEffectSoundID);
}

} // namespace

void PlayerHyperspaceData::Fields(FieldIo& io) {
    for (int i = 0; i < kShipClassCount; ++i) {
        TransferEffects(io, kEffectLabels[i], jumpEffects[i]);
    }
    io.Float(u"baseHyperspaceSpeed", baseHyperspaceSpeed);
    io.Float(u"hyperspaceSpeedBetweenStarsMultiplier", hyperspaceSpeedBetweenStarsMultiplier);
    io.Float(u"hyperspaceSpeedToFriendlyOrbitBodiesMultiplier", hyperspaceSpeedToFriendlyOrbitBodiesMultiplier);
    io.Float(u"baseHyperspaceAntiMatterCost", baseHyperspaceAntiMatterCost);
    io.Float(u"baseHyperspaceChargeUpTime", baseHyperspaceChargeUpTime);
}

} // namespace Vorn
