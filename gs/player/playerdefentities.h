#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/entitydefname.h"

namespace Vorn {

// What a player can build and research.
struct PlayerDefEntities : Record {
    template <class Name>
    using Group = GroupedEntityDefNames<9, Name>;

    static constexpr int kMaxPageCount = 2;
    static const Label kPageLabels[kMaxPageCount];

    // Names on the pages of a build menu.
    template <class Name, int N>
    struct Pages : Record {
        FixedArray<Group<Name>, N> pages;

        void Fields(FieldIo& io) override {
            for (int i = 0; i < N; ++i) {
                io.Record(kPageLabels[i], pages[i]);
            }
        }
    };

    using FrigateName = EntityDefNameOf<EntityType::Frigate>;
    struct FrigateInfo : Pages<FrigateName, 2> {
        Group<FrigateName> notOnPage;

        void Fields(FieldIo& io) override;
    };

    Pages<PlanetModuleDefName, 2> planetModuleInfo;
    Pages<EntityDefNameOf<EntityType::Titan>, 1> titanInfo;
    Pages<EntityDefNameOf<EntityType::CapitalShip>, 1> capitalShipInfo;
    FrigateInfo frigateInfo;
    EntityDefNameDynamicVector<EntityType::ResearchSubject> researchInfo;
    EntityDefNameDynamicVector<EntityType::StarBase> starBaseInfo;
    ShipDefName flagship;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
