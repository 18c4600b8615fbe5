#pragma once

#include "engine/archive/fieldio.h"

namespace Vorn {

// Names that records hold as indexes; it only grows, so that an index stays valid.
class NameList {
public:
    static constexpr std::int32_t kNone = -1;

    // The text of the check that TransferChecked makes.
    explicit NameList(const char* _indexCheck) : indexCheck(_indexCheck) {}

    // The index of exactly this name, which is appended if it is new; kNone for an empty one.
    std::int32_t Resolve(std::u16string_view name);

    bool IsIndex(std::int32_t index) const { return index >= 0 && index < names.Size(); }

    // Empty for an index outside the list.
    std::u16string_view GetText(std::int32_t index) const;

    // A field that is an index in memory and the name in every file. A missing or empty name gives kNone; an index
    // outside the list is written as an empty name, and checking it is up to the record.
    void Transfer(FieldIo& io, Label label, std::int32_t& index);

    // The same for a record that wants an index in the list when it is written.
    void TransferChecked(FieldIo& io, Label label, std::int32_t& index);

private:
    using Name = FixedString<256>;

    DynamicVector<Name> names;
    const char* indexCheck;
};

// What is known of players while definitions are converted: the names of races and factions that they mention. Records
// reach the system made last through GetPlayerSystem.
class PlayerSystem {
public:
    PlayerSystem();
    PlayerSystem(const PlayerSystem&) = delete;
    PlayerSystem& operator=(const PlayerSystem&) = delete;
    ~PlayerSystem();

    NameList races{"raceNameIndex > -1 && raceNameIndex < races.Size()"};
    NameList factions{"factionNameIndex > -1 && factionNameIndex < factions.Size()"};

private:
    PlayerSystem* previous;
};

PlayerSystem& GetPlayerSystem();

} // namespace Vorn
