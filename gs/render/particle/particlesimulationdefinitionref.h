#pragma once

#include "engine/archive/namedreference.h"

namespace Vorn {

// How other records name a particle effect.
class ParticleSimulationDefinitionRef : public NamedReference<256, NameKind::Particle> {};

} // namespace Vorn
