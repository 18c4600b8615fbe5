#pragma once

#include "engine/archive/namedreference.h"

namespace Vorn {

// Things of the game's data that definitions only name.
class ExplosionEffectDefGroupRef : public NamedReference<256> {};
class PlanetDustCloudsDef : public NamedReference<256> {};
class PlanetAsteroidsDef : public NamedReference<256> {};

} // namespace Vorn
