#pragma once

#include "engine/archive/enumtable.h"

namespace Vorn {

// The effect file that the renderer draws with.
enum class PipelineEffectID : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kPipelineEffectIDRows[] = {
    u"SetupDefaultStates.fx",
    u"Prim2D.fx",
    u"Prim2DShowChannel.fx",
    u"Prim2DAdditive.fx",
    u"Prim3D_Mesh.fx",
    u"Prim3D_Primative.fx",
    u"Particle_Additive.fx",
    u"Particle_Mesh.fx",
    u"Particle_MeshOld.fx",
    u"Particle_AlphaMesh.fx",
    u"Particle_NotAdditive.fx",
    u"Particle_MeshShadowed.fx",
    u"Beam_Additive.fx",
    u"Beam_NotAdditive.fx",
    u"TransformedNoLight.fx",
    u"GS_Asteroid.fx",
    u"GS_ShadowedAsteroid.fx",
    u"GS_Exhaust.fx",
    u"GS_Ship.fx",
    u"GS_ShadowedShip.fx",
    u"GS_ShipDebugMip.fx",
    u"GS_ShipBuilding.fx",
    u"GS_ShipPhasedOut.fx",
    u"GS_Planet.fx",
    u"GS_Star.fx",
    u"GS_Skybox.fx",
    u"GS_Shield.fx",
    u"GS_ShieldImpact.fx",
    u"GS_StarCorona.fx",
    u"GS_PlanetCorona.fx",
    u"GS_BandBox.fx",
    u"GS_AsteroidBloom.fx",
    u"GS_ShipBloom.fx",
    u"GS_PlanetBloom.fx",
    u"GS_StarBloom.fx",
    u"GS_SkyboxBloom.fx",
    u"PostProcessBloom.fx",
    u"PostProcessFinal.fx",
    u"ShadowOccluder.fx",
    u"ShadowBlur.fx",
};

template <>
inline constexpr EnumTable kEnumTable<PipelineEffectID> = MakeTable("PipelineEffectID", kPipelineEffectIDRows);

} // namespace Vorn
