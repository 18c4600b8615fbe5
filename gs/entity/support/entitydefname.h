#pragma once

#include "engine/archive/archivable.h"
#include "engine/archive/record.h"
#include "engine/datastructures/dynamicvector.h"
#include "engine/datastructures/fixedvector.h"
#include "gs/entity/support/entitytype.h"

namespace Vorn {

// The reference by name from one definition to another, at most 79 units; empty when there is none. A text "Invalid" in
// a file counts as empty and is written as such.
class EntityDefName : public SingleLineArchivable {
public:
    static constexpr int kCapacity = 80;

    void Read(Label label, Archive& archive) override;
    void Write(Label label, Archive& archive) const override;
    NameKind GetNameKind() const override { return NameKind::Entity; }

    bool IsValid() const { return !text.IsEmpty(); }
    const FixedString<kCapacity>& GetText() const { return text; }
    void SetText(std::u16string_view name) { text.Assign(name); }

private:
    static constexpr std::int32_t kUnresolved = -1;

    FixedString<kCapacity> text;
    // The definition of that name, once it is looked up; reading another name resets it.
    std::int32_t index = kUnresolved;
};

// The reference to a definition of one of some types.
template <EntityType... types>
class EntityDefNameOf : public EntityDefName {
public:
    std::uint64_t GetNameClasses() const override { return (... | (std::uint64_t{1} << static_cast<int>(types))); }
};

using ShipDefName = EntityDefNameOf<EntityType::CapitalShip, EntityType::Frigate, EntityType::Titan>;
using PlanetModuleDefName = EntityDefNameOf<EntityType::PlanetModuleHangarDefense, EntityType::PlanetModuleShipFactory,
                                            EntityType::PlanetModuleStandard, EntityType::PlanetModuleTradePort,
                                            EntityType::PlanetModuleRefinery, EntityType::PlanetModuleWeaponDefense>;

// A list of names without a limit.
template <EntityType... types>
class EntityDefNameDynamicVector : public Record {
public:
    using Name = EntityDefNameOf<types...>;

    void Fields(FieldIo& io) override { io.GrowingList(u"count", names, io.Values(u"entityDefName")); }

    const DynamicVector<Name>& GetNames() const { return names; }

private:
    DynamicVector<Name> names;
};

// A list of at most N names; a surplus only fires the vector's check.
template <int N, class Name>
class GroupedEntityDefNames : public Record {
public:
    void Fields(FieldIo& io) override { io.CappedList(u"count", names, io.Values(u"entityDefName")); }

private:
    FixedVector<Name, N> names;
};

} // namespace Vorn
