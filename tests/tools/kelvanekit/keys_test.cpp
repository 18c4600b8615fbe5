#include "tests/tools/kelvanekit/keyfiles.h"
#include "tools/kelvanekit/describe/keyrows.h"

#include <gtest/gtest.h>

namespace Vorn {

namespace {

// "KIND; CONDITION" of each key with this path.
std::vector<std::string> Find(std::string_view record, std::string_view path) {
    std::vector<std::string> found;
    for (const KeyRow& row : RowsOf(AllKeys(), FindRecord(AllKeys(), record), RowDetail::All).keys) {
        if (row.path == path) {
            found.push_back(KindInWords(AllKeys(), *row.key) + "; " + ConditionInWords(row.when));
        }
    }
    return found;
}

using Words = std::vector<std::string>;

TEST(KeysTest, ConditionsTellWhatStoodInEachTrial) {
    for (const RecordDescription& record : AllKeys().records) {
        EXPECT_TRUE(record.isExact) << record.name;
    }
}

TEST(KeysTest, ConditionsAreOnChoicesNumbersAndVersions) {
    EXPECT_EQ(Find("Frigate", "MaxHullPoints"),
              (Words{"a record BuffLevelFloatTable; if hasLevels is TRUE", "a number; if hasLevels is FALSE"}));
    EXPECT_EQ(Find("Buff", "allowFirstSpawnerToStack"), Words{"TRUE or FALSE; if stackingLimit is above 0"});
    EXPECT_EQ(Find("Player", "isPsi"), Words{"TRUE or FALSE; before version 193"});
    EXPECT_EQ(Find("Ability", "crystalCost"),
              Words{"a record BuffLevelFloatTable; if useCostType is Resources, ResourcesAndMustHaveTitan, "
                    "ResourcesAndMustHaveCapitalCrew or ResourcesAndMustHaveShipSlots, from version 193 on"});
    EXPECT_EQ(Find("particle", "ParticleSimulation.EmitterContents.SpawnAngleStop").size(), 1U);
    EXPECT_EQ(Find("particle", "ParticleSimulation.EmitterType"),
              Words{"one of the 4 texts ParticleEmitter::Type; with Invalid or MeshSurface the conversion ends; "});
    EXPECT_EQ(Find("Frigate", "Weapon.WeaponEffects.beamWidth"), Words{"a number; if weaponType is Beam"});
}

TEST(KeysTest, KindsHaveLimitsUnitsAndReferences) {
    EXPECT_EQ(Find("brushes", "brush.name"), Words{"a text of up to 127 units; "});
    EXPECT_EQ(Find("particle", "ParticleSimulation.AffectorContents.attachedEmitterName").front(),
              "a text of up to 63 units; ");
    EXPECT_EQ(Find("CannonShell", "buffToApplyOnImpact"),
              Words{"a text of up to 79 units, the name of an entity definition of the class Buff; "});
    EXPECT_EQ(Find("Fighter", "maxRollRate"), Words{"a number, in degrees; "});
    EXPECT_EQ(Find("Frigate", "NumWeapons"),
              Words{"the number of entries, up to 5; a surplus is reported once and dropped; "});
}

} // namespace

} // namespace Vorn
