#pragma once

namespace Vorn {

class MeshSystem;
class NameList;
class TextureSystem;

// What records need from outside while they are read and written. It belongs to whoever starts a conversion and reaches
// the records through their archive.
struct FieldContext {
    // Where brushes get their textures. Needed by brushes.
    TextureSystem* textures = nullptr;
    // Where the meshes of debris are looked for; null where a missing one is not to be reported.
    const MeshSystem* meshes = nullptr;
    // The names of races and factions, of which definitions keep the indexes. Needed by entity definitions.
    NameList* races = nullptr;
    NameList* factions = nullptr;
    // Whether each sound of a unit is reported as missing, for there is no data of sounds.
    bool reportsSounds = false;
};

} // namespace Vorn
