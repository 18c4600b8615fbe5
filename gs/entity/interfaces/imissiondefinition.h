#pragma once

#include "engine/archive/record.h"

namespace Vorn {

enum class MissionType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kMissionTypeRows[] = {
    u"AttackPlanet", u"CaptureResources",    u"Colonize",       u"BuildStarBase",      u"BuildMines", u"Explore",
    u"Raid",         u"FosterRelationships", u"DefendFlagship", u"CaptureMinorFaction"};
template <>
inline constexpr EnumTable kEnumTable<MissionType> = MakeTable("MissionType", kMissionTypeRows);

// What an artificial player sets out to do. Nothing ties the type to that of the definition.
struct IMissionDefinition : Record {
    MissionType missionType = MissionType::Invalid;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
