#pragma once

#include "engine/archive/record.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/entity/support/soundid.h"
#include "gs/render/particle/particlesimulationdefinitionref.h"

namespace Vorn {

// What is seen and heard of a shot; the last members are those of one type of weapon each.
struct WeaponEffectsDef : Record {
    WeaponType weaponType = WeaponType::Invalid;
    std::uint32_t burstCount = 0;
    float burstDelay = 0.0f;
    float fireDelay = 0.0f;
    ParticleSimulationDefinitionRef muzzleEffectName;
    float muzzleSoundMinRespawnTime = 0.0f;
    SoundIDVector muzzleSounds;
    ParticleSimulationDefinitionRef hitEffectName;
    SoundIDVector hitHullEffectSounds;
    SoundIDVector hitShieldsEffectSounds;

    SoundIDVector beamEffectSounds;
    FixedString<256> beamGlowTextureName;
    FixedString<256> beamCoreTextureName;
    float beamWidth = 0.0f;
    Color beamGlowColor;
    Color beamCoreColor;
    float beamTilingRate = 0.0f;

    ParticleSimulationDefinitionRef missileTravelEffectName;
    float missileStartTurningDistance = 0.0f;
    float missileSlowTurnRate = 0.0f;
    float missileMaxSlowTurnTime = 0.0f;

    ParticleSimulationDefinitionRef projectileTravelEffectName;

    void Fields(FieldIo& io) override;

private:
    void TypeFields(FieldIo& io);
};

} // namespace Vorn
