#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// How the texts of diplomacy name a race.
struct PlayerDiplomacyDef : Record {
    FixedString<256> raceNameParsePrefix;
    FixedString<256> raceNameParsePrefixFallback;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
