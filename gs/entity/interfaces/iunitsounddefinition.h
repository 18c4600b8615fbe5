#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/entity/support/soundid.h"

namespace Vorn {

// The sounds of a unit, a list for each occasion. Since no data of sounds is ever loaded, every sound that is read is
// reported as missing, unless the context turns that off.
struct IUnitSoundDefinition : Record {
    static constexpr int kUnitSoundTypeCount = kEnumTable<UnitSoundType>.rowCount;

    FixedArray<DynamicVector<SoundID>, kUnitSoundTypeCount> sounds;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
