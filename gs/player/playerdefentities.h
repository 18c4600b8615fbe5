#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// What a player can build and research.
struct PlayerDefEntities : Record {
    using Group = GroupedEntityDefNames<9>;

    static constexpr int kMaxPageCount = 2;
    static const Label kPageLabels[kMaxPageCount];

    // Names on the pages of a build menu.
    template <int N>
    struct Pages : Record {
        FixedArray<Group, N> pages;

        void Fields(FieldIo& io) override {
            for (int i = 0; i < N; ++i) {
                io.Record(kPageLabels[i], pages[i]);
            }
        }
    };

    struct FrigateInfo : Pages<2> {
        Group notOnPage;

        void Fields(FieldIo& io) override;
    };

    Pages<2> planetModuleInfo;
    Pages<1> titanInfo;
    Pages<1> capitalShipInfo;
    FrigateInfo frigateInfo;
    EntityDefNameDynamicVector<EntityType::ResearchSubject> researchInfo;
    EntityDefNameDynamicVector<EntityType::StarBase> starBaseInfo;
    EntityDefName flagship;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
