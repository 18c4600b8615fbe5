#pragma once

#include "engine/datastructures/fixedarray.h"
#include "engine/datastructures/fixedvector.h"
#include "gs/render/particle/particlepart.h"

#include <memory>

namespace Vorn {

class ParticleSimulationDefinition;

// The part of an effect that changes particles while they live, those of the emitters whose names it lists. Names must
// match exactly; one that no emitter has is kept. The fields that all affectors share come first.
class ParticleAffector : public ParticlePart {
public:
    // Numbered by the rows of the table in particleaffectorkinds.cpp.
    enum class Type : std::int32_t { Invalid = -1 };
    static const EnumTable kTypes;

    static constexpr int kMaxAttachedEmitters = 32;

    // Null for a type without a class.
    static std::unique_ptr<ParticleAffector> Make(ParticleSimulationDefinition& definition, Type type);

    ParticleAffector(ParticleSimulationDefinition& _definition, Type _type) : definition(_definition), type(_type) {}

    void Fields(FieldIo& io) override;

    Type GetType() const { return type; }

    // Determines again which of the definition's emitters it is attached to.
    void UpdateAttachedEmitters();
    // By the place in the definition's list of emitters.
    bool IsAttachedTo(int emitter) const { return isAttached[emitter]; }

    // A name over 63 units is cut with the checks of Copy; one more than kMaxAttachedEmitters ends the process.
    void AddAttachedEmitter(std::u16string_view emitterName);
    // Whether the name was there.
    bool RemoveAttachedEmitter(std::u16string_view emitterName);
    // The place of the first such name in the list, or -1.
    int FindAttachedEmitter(std::u16string_view emitterName) const;

private:
    void AttachmentFields(FieldIo& io);
    void AppendAttachedEmitter(std::u16string_view emitterName);

    ParticleSimulationDefinition& definition;
    const Type type;

    Bool useYoungParticleAffectThreshold = false;
    float youngParticleAffectThreshold = 0.0f;
    Bool useOldParticleAffectThreshold = false;
    float oldParticleAffectThreshold = 0.0f;
    Bool affectAttachedParticles = true;
    FixedVector<Name, kMaxAttachedEmitters> attachedEmitterNames;
    FixedArray<bool, kMaxAttachedEmitters> isAttached;
};

} // namespace Vorn
