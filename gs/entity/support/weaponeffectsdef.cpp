#include "gs/entity/support/weaponeffectsdef.h"

namespace Vorn {

void WeaponEffectsDef::Fields(FieldIo& io) {
    io.Enum(u"weaponType", weaponType);
    io.Uint(u"burstCount", burstCount);
    io.Float(u"burstDelay", burstDelay);
    io.Float(u"fireDelay", fireDelay);
    io.Value(u"muzzleEffectName", muzzleEffectName);
    io.Float(u"muzzleSoundMinRespawnTime", muzzleSoundMinRespawnTime);
    io.Record(u"muzzleSounds", muzzleSounds);
    io.Value(u"hitEffectName", hitEffectName);
    io.Record(u"hitHullEffectSounds", hitHullEffectSounds);
    io.Record(u"hitShieldsEffectSounds", hitShieldsEffectSounds);
    TypeFields(io);
}

void WeaponEffectsDef::TypeFields(FieldIo& io) {
    switch (weaponType) {
    case WeaponType::Beam:
        io.Record(u"beamEffectSounds", beamEffectSounds);
        io.String(u"beamGlowTextureName", beamGlowTextureName);
        io.String(u"beamCoreTextureName", beamCoreTextureName);
        io.Float(u"beamWidth", beamWidth);
        io.Color(u"beamGlowColor", beamGlowColor);
        io.Color(u"beamCoreColor", beamCoreColor);
        io.Float(u"beamTilingRate", beamTilingRate);
        break;
    case WeaponType::Missile:
        io.Value(u"missileTravelEffectName", missileTravelEffectName);
        io.Float(u"missileStartTurningDistance", missileStartTurningDistance);
        io.Float(u"missileSlowTurnRate", missileSlowTurnRate);
        io.Float(u"missileMaxSlowTurnTime", missileMaxSlowTurnTime);
        break;
    case WeaponType::Projectile:
        io.Value(u"projectileTravelEffectName", projectileTravelEffectName);
        break;
    case WeaponType::Invalid:
        break;
    }
}

} // namespace Vorn
