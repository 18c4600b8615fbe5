#pragma once

#include "engine/archive/record.h"

namespace Vorn {

enum class SpawnType : std::int32_t { Invalid = -1, CompletelyRandom, RandomFromUp };

inline constexpr EnumRow<SpawnType> kSpawnTypeRows[] = {{SpawnType::CompletelyRandom, u"CompletelyRandom"},
                                                        {SpawnType::RandomFromUp, u"RandomFromUp"}};
inline constexpr auto kSpawnTypeTexts = TextsInOrder<SpawnType::RandomFromUp>(kSpawnTypeRows);
template <>
inline constexpr EnumTable kEnumTable<SpawnType> = MakeTable("SpawnType", kSpawnTypeTexts);

// How points for effects are spread around a target. The angle is in radians here and in degrees in every file. Without
// a type there is nothing more, and the check "false" fires.
struct TargetCentricEffectPointSpawnInfo : Record {
    SpawnType spawnType = SpawnType::Invalid;
    float minRadius = 0.0f;
    float maxRadius = 0.0f;
    float angleVariance = 0.0f;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
