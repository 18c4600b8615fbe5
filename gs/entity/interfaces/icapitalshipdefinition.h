#pragma once

#include "gs/entity/interfaces/ilargeshipdefinition.h"

namespace Vorn {

enum class CapitalShipRoleType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kCapitalShipRoleTypeRows[] = {u"COLONY"};
template <>
inline constexpr EnumTable kEnumTable<CapitalShipRoleType> = MakeTable("CapitalShipRoleType", kCapitalShipRoleTypeRows);

// What makes a large ship a capital ship.
struct ICapitalShipDefinition : ILargeShipDefinition {
    CapitalShipRoleType roleType = CapitalShipRoleType::Invalid;
    PlayerEntityCountType statCountType = PlayerEntityCountType::Invalid;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
