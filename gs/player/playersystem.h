#pragma once

#include "engine/archive/namelist.h"

namespace Vorn {

// The names of races and factions in the definitions that are converted.
class PlayerSystem {
public:
    PlayerSystem() = default;
    PlayerSystem(const PlayerSystem&) = delete;
    PlayerSystem& operator=(const PlayerSystem&) = delete;

    // Transfers a name as NameList::Transfer does, in the list of the archive's context. A check requires that an index
    // that is written is in its list.
    static void TransferRace(FieldIo& io, Label label, std::int32_t& index);
    static void TransferFaction(FieldIo& io, Label label, std::int32_t& index);

    NameList races;
    NameList factions;
};

} // namespace Vorn
