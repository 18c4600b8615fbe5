#pragma once

#include "gs/render/particle/particleaffector.h"
#include "gs/render/particle/particleemitter.h"

namespace Vorn {

// The definition of one particle effect: its lifetime in seconds, and its emitters and affectors in the order of the
// file.
class ParticleSimulationDefinition : public Record {
public:
    static constexpr int kMaxEmitters = 32;
    static constexpr int kMaxAffectors = 30;
    static_assert(kMaxEmitters == ParticleAffector::kMaxAttachedEmitters);

    // The key of the one record that a particle file holds.
    static constexpr Label kLabel = u"ParticleSimulation";

    ParticleSimulationDefinition() = default;
    ParticleSimulationDefinition(const ParticleSimulationDefinition&) = delete;
    ParticleSimulationDefinition& operator=(const ParticleSimulationDefinition&) = delete;

    void Fields(FieldIo& io) override;

    // A type without a class, and a part beyond the maximum, fire their check and end the process abnormally.
    ParticleEmitter& AddEmitter(ParticleEmitter::Type type);
    ParticleAffector& AddAffector(ParticleAffector::Type type);

    int GetEmitterCount() const { return emitters.Size(); }
    const ParticleEmitter& GetEmitter(int i) const { return *emitters[i]; }
    int GetAffectorCount() const { return affectors.Size(); }
    const ParticleAffector& GetAffector(int i) const { return *affectors[i]; }

    // Renames an emitter in the affectors that are attached to it.
    void RenameAttachedEmitter(std::u16string_view oldName, std::u16string_view newName);

    // Cuts the names of all emitters' files down to name and extension.
    void StripFilePaths();

    // Destroys all emitters and affectors.
    void Clear();

    // Names the definition after a file; changes nothing that is stored in files.
    void SetFileName(std::u16string_view path);
    const FixedString<256>& GetFileName() const { return fileName; }
    const FixedString<256>& GetStem() const { return stem; }

private:
    void UpdateAttachedEmitters();

    FixedString<256> fileName;
    FixedString<256> stem;
    float totalLifeTime = 10.0f;
    Bool hasInfiniteLifeTime = false;
    FixedVector<std::unique_ptr<ParticleEmitter>, kMaxEmitters> emitters;
    FixedVector<std::unique_ptr<ParticleAffector>, kMaxAffectors> affectors;
    float length = 0.0f;
};

} // namespace Vorn
