#pragma once

#include "gs/render/particle/particlesimulationdefinition.h"

namespace Vorn {

class FileArchiveSystem;

// Loads particle effects.
class ParticleSimulationDefinitionSystem {
public:
    explicit ParticleSimulationDefinitionSystem(FileArchiveSystem& _archives) : archives(_archives) {}

    // Fills a definition from a file and names it after the file. A file that cannot be opened, or is no archive,
    // leaves the definition as it is; effects that a definition cannot hold end the process abnormally.
    void Load(ParticleSimulationDefinition& definition, std::u16string_view path);

private:
    FileArchiveSystem& archives;
};

} // namespace Vorn
