#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"
#include "gs/entity/support/sharedenums.h"
#include "gs/entity/support/soundid.h"

namespace Vorn {

// What a unit says, a list of sounds for each occasion. Every sound that is read is looked up among the loaded sound
// data and reported if it is not there; the converter loads none.
struct IUnitSoundDefinition : Record {
    static constexpr int kUnitSoundTypeCount = kEnumTable<UnitSoundType>.rowCount;

    FixedArray<DynamicVector<SoundID>, kUnitSoundTypeCount> sounds;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
