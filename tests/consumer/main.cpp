#include "engine/archive/filearchivesystem.h"
#include "engine/core/core.h"
#include "engine/core/reporting.h"
#include "engine/string/utf8.h"
#include "gs/entity/entitysystem.h"
#include "gs/entity/types/fighterdef.h"
#include <cstdio>

using namespace Vorn;

struct Watch : ReportHandler, EndGuard {
    void Handle(const char*, int, std::u16string_view text, bool) override { std::puts(BytesFromName(text).c_str()); }
    void BeforeAbnormalEnd() override { throw 2; }
};

// Makes a fighter a bomber of twice the hull points: bomber SOURCE DESTINATION
int main(int argc, char** argv) try {
    Watch watch;
    g_Reporting.reportHandler = &watch;
    Core core;
    EntitySystem entities(core.fileArchiveSystem);
    const auto definition = entities.LoadEntityDef(NameFromBytes(argc == 3 ? argv[1] : ""));
    auto* fighter = dynamic_cast<FighterDef*>(definition.get());
    if (fighter == nullptr)
        return 1;
    fighter->maxHullPoints *= 2;
    fighter->statCountType =
        static_cast<PlayerEntityCountType>(EnumFromText(u"FighterBomber", kEnumTable<PlayerEntityCountType>));
    const auto name = NameFromBytes(argv[2]);
    ScopedArchive archive(core.fileArchiveSystem,
                          core.fileArchiveSystem.OpenForWrite(name, false, FileArchiveType::Text));
    if (!archive)
        return 1;
    entities.WriteEntityDef(*archive, *fighter);
} catch (int status) {
    return status;
}
