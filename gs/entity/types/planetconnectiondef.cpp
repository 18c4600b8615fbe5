#include "gs/entity/types/planetconnectiondef.h"

namespace Vorn {

void PlanetConnectionDef::Fields(FieldIo&) {}

} // namespace Vorn
