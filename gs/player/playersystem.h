#pragma once

#include "engine/archive/namelist.h"

namespace Vorn {

// What is known of players while definitions are converted: the names of races and factions that they mention.
class PlayerSystem {
public:
    PlayerSystem() = default;
    PlayerSystem(const PlayerSystem&) = delete;
    PlayerSystem& operator=(const PlayerSystem&) = delete;

    // Fields as NameList::Transfer has them in the lists of the archive's context, with the check that an index that is
    // written is in its list.
    static void TransferRace(FieldIo& io, Label label, std::int32_t& index);
    static void TransferFaction(FieldIo& io, Label label, std::int32_t& index);

    NameList races;
    NameList factions;
};

} // namespace Vorn
