#pragma once

#include "engine/archive/namedreference.h"
#include "engine/archive/record.h"

namespace Vorn {

// A sound by name.
class SoundID : public NamedReference<256, NameKind::Sound> {};

// A list of sounds without a limit.
struct SoundIDVector : Record {
    DynamicVector<SoundID> sounds;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
