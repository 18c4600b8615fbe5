#include "gs/render/particle/particlesimulationdefinitionsystem.h"

#include "engine/archive/filearchivesystem.h"

namespace Vorn {

void ParticleSimulationDefinitionSystem::Load(ParticleSimulationDefinition& definition, std::u16string_view path) {
    {
        const ScopedArchive archive(archives, archives.OpenForRead(path, false));
        CheckAssert(archives.GetOpenFailure() != OpenFailure::NotAnArchive, "fileArchive != 0");
        if (!archive) {
            return;
        }
        archive->Read(ParticleSimulationDefinition::kLabel, definition);
    }
    definition.SetFileName(path);
}

} // namespace Vorn
