#include "engine/window/brushset.h"

#include "engine/archive/filearchivesystem.h"

namespace Vorn {

void BrushSet::Load(FileArchiveSystem& archives) {
    const ScopedArchive archive(archives, archives.OpenForRead(name.View(), false));
    if (archive) {
        FieldIo io(*archive, FieldIo::Direction::Read);
        Fields(io);
    }
}

void BrushSet::Fields(FieldIo& io) {
    io.Bool(u"onlyLoadOnDemand", onlyLoadOnDemand);
    io.ReservedList(u"brushCount", brushes, io.Records(u"brush"));
}

void BrushSet::ReleaseTextures() {
    for (Brush& brush : brushes) {
        brush.ReleaseTextures();
    }
    brushes.Clear();
}

} // namespace Vorn
