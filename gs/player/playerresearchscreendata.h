#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "engine/window/brushref.h"
#include "gs/entity/support/researchenums.h"

namespace Vorn {

// The look of the research screen: a page for each field that the screen shows, and the pictures of the ship slots.
struct PlayerResearchScreenData : Record {
    // A part of a page that groups subjects.
    struct BlockInfo : Record {
        Rectangle area;
        BrushRef backdrop;
        BrushRef tierIndicatorBackdrop;
        FixedString<256> title;
        BrushRef picture;

        void Fields(FieldIo& io) override;
    };

    struct FieldInfo : Record {
        FixedVector<BlockInfo, 3> blocks;

        void Fields(FieldIo& io) override;
    };

    // The fields of research after this one have no page.
    static constexpr int kShownFieldCount = static_cast<int>(ResearchField::Fleet) + 1;
    static constexpr int kSlotLevelCount = 9;

    FixedArray<FieldInfo, kShownFieldCount> fields;
    FixedArray<BrushRef, kSlotLevelCount> capitalShipSlotLevelPictures;
    FixedArray<BrushRef, kSlotLevelCount> shipSlotLevelPictures;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
