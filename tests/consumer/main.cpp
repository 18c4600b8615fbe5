#include "engine/archive/filearchivesystem.h"
#include "engine/core/core.h"
#include "engine/core/reporting.h"
#include "engine/string/utf8.h"
#include "gs/entity/entitysystem.h"
#include "gs/entity/types/fighterdef.h"
#include <cstdio>

using namespace Vorn;

struct PrintReports : ReportHandler {
    void Handle(const char*, int, std::u16string_view text, bool) override { std::puts(BytesFromName(text).c_str()); }
};

// Makes a fighter a bomber of twice the hull points: bomber SOURCE DESTINATION
int main(int argc, char** argv) {
    PrintReports handler;
    g_Reporting.reportHandler = &handler;
    Core core;
    EntitySystem entities(core.fileArchiveSystem);
    const auto definition = entities.LoadEntityDef(NameFromBytes(argc == 3 ? argv[1] : ""));
    auto* fighter = dynamic_cast<FighterDef*>(definition.get());
    if (fighter == nullptr)
        return 1;
    fighter->maxHullPoints *= 2;
    fighter->statCountType =
        static_cast<PlayerEntityCountType>(EnumFromText(u"FighterBomber", kEnumTable<PlayerEntityCountType>));
    FileArchiveSystem& archives = core.fileArchiveSystem;
    ScopedArchive archive(archives, archives.OpenForWrite(NameFromBytes(argv[2]), false, FileArchiveType::Text));
    if (!archive)
        return 1;
    entities.WriteEntityDef(*archive, *fighter);
}
