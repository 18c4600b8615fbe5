#include "gs/entity/entitytypes.h"

#include "gs/entity/entitysystem.h"
#include "tests/support/enginetest.h"

namespace Vorn {

class EntityTypesTest : public FileTest {
protected:
    std::string WriteFile(EntitySystem& entitySystem, const EntityDef& definition, std::string_view fileName,
                          FileArchiveType form) {
        FileArchive* archive = core->fileArchiveSystem.OpenForWrite(NameIn(fileName), false, form);
        entitySystem.WriteEntityDef(*archive, definition);
        core->fileArchiveSystem.Close(archive);
        return ReadBytes(folder.Path() / fileName).value_or("");
    }

    // The result of converting a file into another form; empty if the file has no definition.
    std::string ConvertFile(std::string_view from, std::string_view to, FileArchiveType form) {
        EntitySystem entitySystem(core->fileArchiveSystem);
        const std::unique_ptr<EntityDef> definition = entitySystem.LoadEntityDef(NameIn(from));
        return definition != nullptr ? WriteFile(entitySystem, *definition, to, form) : "";
    }

    // Empty contents fail checks of what a definition should hold. Any other report means that reading and writing do
    // not match.
    void ExpectChecksAlone() {
        for (const std::string& report : TakeReports()) {
            EXPECT_EQ(report.rfind("assert! [", 0), 0) << report;
        }
    }
};

TEST_F(EntityTypesTest, EachTypeHasItsClassButTwo) {
    for (std::int32_t i = 0; i < kEntityTypeTable.rowCount; ++i) {
        const EntityTypeRow* row = FindEntityType(static_cast<EntityType>(i));
        ASSERT_NE(row, nullptr);
        const bool isRefused = row->text == u"PlanetModuleSpaceMine" || row->text == u"PlanetModuleUserAbilityModule";
        EXPECT_EQ(row->make == nullptr, isRefused) << Utf8(row->text);
    }
    EXPECT_EQ(FindEntityType(EntityType::Invalid), nullptr);
    EXPECT_EQ(FindEntityType(static_cast<EntityType>(kEntityTypeTable.rowCount)), nullptr);
}

// Other tables refer to the types by their numbers.
TEST_F(EntityTypesTest, TheOrderIsKeptForGood) {
    std::string order;
    for (std::int32_t i = 0; i < kEntityTypeTable.rowCount; ++i) {
        order += Utf8(FindEntityType(static_cast<EntityType>(i))->text) + " ";
    }
    EXPECT_EQ(order, "Ability Buff EmpireWindowNode Fighter Squad Debris Weapon CannonShell CapitalShip Cosmetic "
                     "EntryVehicle Fleet Formation Frigate MissionAttackPlanet MissionCaptureResources MissionColonize "
                     "MissionDefendFlagship MissionBuildStarBase MissionBuildMines MissionExplore MissionRaid PipCloud "
                     "Planet PlanetBonus PlanetConnection PlanetModuleHangarDefense PlanetModuleShipFactory "
                     "PlanetModuleStandard PlanetModuleTradePort PlanetModuleRefinery PlanetModuleSpaceMine "
                     "PlanetModuleUserAbilityModule PlanetModuleWeaponDefense Player Quest ResearchSubject "
                     "ResourceAsteroid SpaceMine Star StarBase StarBaseUpgrade Titan TitanUpgrade "
                     "MissionFosterRelationships Trigger MissionCaptureMinorFaction ");
}

TEST_F(EntityTypesTest, AnEmptyDefinitionOfEachTypeSurvivesBothForms) {
    for (std::int32_t i = 0; i < kEntityTypeTable.rowCount; ++i) {
        const EntityTypeRow* row = FindEntityType(static_cast<EntityType>(i));
        if (row->make == nullptr) {
            continue;
        }
        SCOPED_TRACE(Utf8(row->text));
        EntitySystem entitySystem(core->fileArchiveSystem);
        const auto definition = entitySystem.CreateEntityDef(static_cast<EntityType>(i), u"empty");
        const std::string text = WriteFile(entitySystem, *definition, "text", FileArchiveType::Text);
        const std::string binary = WriteFile(entitySystem, *definition, "binary", FileArchiveType::Binary);
        EXPECT_EQ(ConvertFile("text", "binaryagain", FileArchiveType::Binary), binary);
        EXPECT_EQ(ConvertFile("binaryagain", "textagain", FileArchiveType::Text), text);
        ExpectChecksAlone();
    }
}

} // namespace Vorn
