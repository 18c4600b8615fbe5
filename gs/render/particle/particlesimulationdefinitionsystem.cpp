#include "gs/render/particle/particlesimulationdefinitionsystem.h"

#include "engine/archive/filearchivesystem.h"

namespace Vorn {

void ParticleSimulationDefinitionSystem::Load(ParticleSimulationDefinition& definition, std::u16string_view path) {
    FileArchive* archive = archives.OpenForRead(path, false);
    CheckAssert(archive != nullptr, "fileArchive != 0");
    if (archive == nullptr) {
        return;
    }
    archive->Read(ParticleSimulationDefinition::kLabel, definition);
    archives.Close(archive);
    definition.SetFileName(path);
}

} // namespace Vorn
