#pragma once

#include "engine/archive/record.h"
#include "engine/window/brushref.h"
#include "gs/entity/support/entitydefname.h"
#include "gs/entity/support/researchenums.h"
#include "gs/entity/support/researchprerequisites.h"

namespace Vorn {

enum class SquadRole : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kSquadRoleRows[] = {u"Combat", u"Bomber", u"MineLayer"};
template <>
inline constexpr EnumTable kEnumTable<SquadRole> = MakeTable("SquadRole", kSquadRoleRows);

// The fighters of a squad, how many and how fast they are built. Times are in seconds.
struct ISquadDefinition : Record {
    EntityDefNameOf<EntityType::Fighter> fighterEntityDef;
    EntityDefNameOf<EntityType::Fighter> fighterIllusionEntityDef;
    float scuttleTime = 0.0f;
    float fighterConstructionTime = 0.0f;
    float decayWithoutOwnerRate = 0.0f;
    std::uint32_t baseMaxNumFighters = 0;
    SquadRole role = SquadRole::Invalid;
    PlayerEntityCountType statCountType = PlayerEntityCountType::Invalid;
    BrushRef mainViewIcon;
    BrushRef picture;
    BrushRef launchIcon;
    BrushRef dockIcon;
    FixedString<256> nameStringID;
    FixedString<256> descriptionStringID;
    ResearchPrerequisites researchPrerequisites;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
