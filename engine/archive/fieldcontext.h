#pragma once

namespace Vorn {

class MeshSystem;
class NameList;
class TextureSystem;

// What records need from outside while they are read and written. Owned by the code that starts a conversion; records
// get it from their archive.
struct FieldContext {
    // Where brushes get their textures. Needed by brushes.
    TextureSystem* textures = nullptr;
    // Looks up the meshes of debris. With null, missing ones are not reported.
    const MeshSystem* meshes = nullptr;
    // The names of races and factions, of which definitions keep the indexes. Needed by entity definitions.
    NameList* races = nullptr;
    NameList* factions = nullptr;
    // Whether each sound of a unit is reported as missing; no data of sounds is ever loaded.
    bool reportsSounds = false;
};

} // namespace Vorn
