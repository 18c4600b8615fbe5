#include "gs/render/particle/particleemitter_point.h"
#include "gs/render/particle/particleemitter_ring.h"
#include "gs/render/particle/particleemitter_sphere.h"
#include "gs/render/particle/particlekinds.h"

namespace Vorn {

namespace {

template <class Class>
constexpr auto kMake = MakePart<ParticleEmitter, Class>;

constexpr ParticleKind<ParticleEmitter> kKinds[] = {
    {u"Point", kMake<ParticleEmitter_Point>},
    {u"Sphere", kMake<ParticleEmitter_Sphere>},
    {u"Ring", kMake<ParticleEmitter_Ring>},
    {u"MeshSurface", nullptr},
};

constexpr auto kTexts = TextsOf(kKinds);

} // namespace

const EnumTable ParticleEmitter::kTypes = MakeTable("ParticleEmitter::Type", kTexts);

std::unique_ptr<ParticleEmitter> ParticleEmitter::Make(ParticleSimulationDefinition& definition, Type type) {
    return MakeOfKind(kKinds, definition, type);
}

} // namespace Vorn
