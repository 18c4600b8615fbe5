#include "gs/render/particle/particlesimulationdefinition.h"

#include "engine/file/path.h"
#include "gs/render/particle/appendorend.h"

namespace Vorn {

namespace {

constexpr std::int32_t kNoCount = -1;

// Ends the process for a part that the effect cannot hold: null, which means a type without a class, or one too many.
// If it is both, both checks fire.
template <class Part, int N>
Part& AppendPart(FixedVector<std::unique_ptr<Part>, N>& parts, std::unique_ptr<Part> part) {
    CheckAssert(part != nullptr, "false");
    std::unique_ptr<Part>& place = AppendOrEnd(parts);
    if (part == nullptr) {
        EndAbnormally();
    }
    return *(place = std::move(part));
}

struct PartLabels {
    Label count;
    Label type;
    Label contents;
};

// Parts of various classes: the type comes first, so that `add` can create the class when reading.
template <class Part, int N, class Add>
void PartList(FieldIo& io, const PartLabels& labels, FixedVector<std::unique_ptr<Part>, N>& parts, Add add) {
    const std::int32_t count = io.Count({labels.count, ListRule::Fatal, N}, parts.Size(), kNoCount);
    io.ReadEntries(count, [&](std::int32_t i) {
        auto type = static_cast<std::int32_t>(io.Writing() ? parts[i]->GetType() : Part::Type::Invalid);
        io.EnumNumber(labels.type, type, Part::kTypes);
        io.Record(labels.contents, io.Writing() ? *parts[i] : add(static_cast<typename Part::Type>(type)));
    });
}

} // namespace

void ParticleSimulationDefinition::Fields(FieldIo& io) {
    io.Bool(u"HasInfiniteLifeTime", hasInfiniteLifeTime);
    io.Float(u"TotalLifeTime", totalLifeTime);
    if (io.Reading()) {
        CheckAssert(totalLifeTime >= 0.0f, "m_TotalLifeTime >= 0.f");
        CheckAssert(hasInfiniteLifeTime || totalLifeTime > 0.0f, "m_HasInfiniteLifeTime || m_TotalLifeTime > 0.f");
        CheckAssert(emitters.Size() == 0, "m_Emitters.Size() == 0");
    }
    PartList(io, {u"NumEmitters", u"EmitterType", u"EmitterContents"}, emitters,
             [this](ParticleEmitter::Type type) -> ParticleEmitter& { return AddEmitter(type); });
    if (io.Reading()) {
        CheckAssert(affectors.Size() == 0, "m_Affectors.Size() == 0");
    }
    PartList(io, {u"NumAffectors", u"AffectorType", u"AffectorContents"}, affectors,
             [this](ParticleAffector::Type type) -> ParticleAffector& { return AddAffector(type); });
    if (io.Reading()) {
        UpdateAttachedEmitters();
    }
    io.Float(u"length", length);
}

ParticleEmitter& ParticleSimulationDefinition::AddEmitter(ParticleEmitter::Type type) {
    ParticleEmitter& emitter = AppendPart(emitters, ParticleEmitter::Make(*this, type));
    UpdateAttachedEmitters();
    return emitter;
}

ParticleAffector& ParticleSimulationDefinition::AddAffector(ParticleAffector::Type type) {
    return AppendPart(affectors, ParticleAffector::Make(*this, type));
}

void ParticleSimulationDefinition::UpdateAttachedEmitters() {
    for (const auto& affector : affectors) {
        affector->UpdateAttachedEmitters();
    }
}

void ParticleSimulationDefinition::RenameAttachedEmitter(std::u16string_view oldName, std::u16string_view newName) {
    for (const auto& affector : affectors) {
        if (affector->RemoveAttachedEmitter(oldName)) {
            affector->AddAttachedEmitter(newName);
        }
    }
}

void ParticleSimulationDefinition::StripFilePaths() {
    for (const auto& emitter : emitters) {
        emitter->StripFilePaths();
    }
}

void ParticleSimulationDefinition::Clear() {
    emitters.Clear();
    affectors.Clear();
}

void ParticleSimulationDefinition::SetFileName(std::u16string_view path) {
    stem.Assign(SplitPath(path).stem);
    fileName.Assign(path);
}

} // namespace Vorn
