#pragma once

#include "engine/archive/record.h"

namespace Vorn {

enum class CargoType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kCargoTypeRows[] = {u"TradeCredits", u"RefineryResources", u"Diplomacy"};
template <>
inline constexpr EnumTable kEnumTable<CargoType> = MakeTable("CargoType", kCargoTypeRows);

// What a ship carries.
struct ICargoShipDef : Record {
    CargoType cargoType = CargoType::Invalid;
    float maxCargoCapacity = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
