#pragma once

#include "engine/archive/record.h"
#include "engine/window/brushref.h"
#include "gs/entity/support/dlcid.h"

namespace Vorn {

// The light of a star and the skies that belong to it.
struct IStarDefinition : Record {
    struct ColoredSkyboxInfo : Record {
        FixedString<256> meshName;
        Bool shouldPrefer;

        void Fields(FieldIo& io) override;
    };
    using SkyboxList = FixedVector<ColoredSkyboxInfo, 10>;

    Color coronaStartColor;
    Color coronaEndColor;
    float coronaStartColorDistance = 0.0f;
    float coronaEndColorDistance = 0.0f;
    BrushRef farIcon;
    SkyboxList coloredSkyboxes;
    SkyboxList deepSpaceSkyboxes;
    FixedString<256> iconTextureName;
    std::int32_t dlcID = kDefaultDlcId;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
