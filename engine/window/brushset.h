#pragma once

#include "engine/window/brush.h"

namespace Vorn {

class FileArchiveSystem;

// The content of a brush file.
class BrushSet {
public:
    // Load opens this path, cut to 255 units.
    explicit BrushSet(std::u16string_view path) { name.Assign(path); }
    BrushSet(const BrushSet&) = delete;
    BrushSet& operator=(const BrushSet&) = delete;
    ~BrushSet() { ReleaseTextures(); }

    // Leaves the set empty if the file cannot be opened or is no archive.
    void Load(FileArchiveSystem& archives);

    void Fields(FieldIo& io);

    // Releases the textures of all brushes and empties the list.
    void ReleaseTextures();

    const DynamicVector<Brush>& GetBrushes() const { return brushes; }

private:
    FixedString<256> name;
    Bool onlyLoadOnDemand = false;
    DynamicVector<Brush> brushes;
};

} // namespace Vorn
