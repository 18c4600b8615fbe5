#pragma once

#include "engine/archive/record.h"
#include "engine/window/brushref.h"
#include "gs/entity/support/dlcid.h"
#include "gs/entity/support/namedeffects.h"
#include "gs/entity/support/planetresourcesetupinfo.h"
#include "gs/entity/support/planetruindefinition.h"
#include "gs/entity/support/planetupgradedef.h"
#include "gs/entity/support/researchenums.h"

namespace Vorn {

// What makes a planet: its looks, resources, upgrades, bonuses and ruin. A check requires at least one look.
struct IPlanetDefinition : Record {
    // One look that a planet of the kind can have.
    struct MeshInfo : Record {
        FixedString<256> typeNameStringID;
        PlanetAsteroidsDef asteroidTemplate;
        PlanetDustCloudsDef dustCloudTemplate;
        FixedString<256> meshName;
        Color cloudColor;
        float nullMeshRadius = 0.0f;
        ParticleSimulationDefinitionRef nullMeshParticleEffect;
        BrushRef hudIcon;
        BrushRef smallHudIcon;
        BrushRef infoCardIcon;
        BrushRef mainViewIcon;
        BrushRef undetectedMainViewIcon;
        BrushRef picture;
        Bool shouldPrefer;

        void Fields(FieldIo& io) override;
    };

    // How bright a sky lights the planet.
    struct SkyboxScalars : Record {
        float diffuseScalar = 1.0f;
        float ambientScalar = 1.0f;

        void Fields(FieldIo& io) override;
    };

    FixedVector<MeshInfo, 5> meshInfo;
    float minZoomDistanceMult = 1.0f;
    Color glowColor;
    Color ringColor;
    FixedString<256> cloudLayerTextureName;
    PlanetResourceSetupInfo planetResourceSetupInfo;
    Bool isAsteroid;
    float healthRegenRate = -1.0f;
    PlanetUpgradeDef planetUpgradeDef;
    float ringsChance = 0.0f;
    Bool isColonizable = true;
    ResearchPlanetType planetTypeForResearch = ResearchPlanetType::Invalid;
    FixedVector<SkyboxScalars, 10> skyboxScalars;
    DynamicVector<EntityDefNameOf<EntityType::PlanetBonus>> requiredPlanetBonuses;
    DynamicVector<EntityDefNameOf<EntityType::PlanetBonus>> possibleRandomPlanetBonuses;
    SoundID ambienceSoundID;
    Bool renderAsVolcanic;
    PlanetRuinDefinition planetRuinDef;
    std::int32_t dlcId = kDefaultDlcId;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
