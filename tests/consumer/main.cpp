#include "engine/core/core.h"
#include "engine/string/utf8.h"
#include "gs/entity/entitysystem.h"
#include "gs/entity/types/fighterdef.h"

// Doubles the hull points of a fighter: doublehull SOURCE DESTINATION
int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    Vorn::Core core;
    Vorn::FileArchiveSystem& archives = core.fileArchiveSystem;
    Vorn::EntitySystem entities(archives);
    const auto definition = entities.LoadEntityDef(Vorn::NameFromBytes(argv[1]));
    auto* fighter = dynamic_cast<Vorn::FighterDef*>(definition.get());
    if (fighter == nullptr) {
        return 1;
    }
    fighter->maxHullPoints *= 2;
    Vorn::FileArchive* archive =
        archives.OpenForWrite(Vorn::NameFromBytes(argv[2]), false, Vorn::FileArchiveType::Text);
    if (archive == nullptr) {
        return 1;
    }
    entities.WriteEntityDef(*archive, *fighter);
    archives.Close(archive);
}
