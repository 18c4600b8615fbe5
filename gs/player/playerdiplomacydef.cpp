#include "gs/player/playerdiplomacydef.h"

namespace Vorn {

void PlayerDiplomacyDef::Fields(FieldIo& io) {
    io.String(u"raceNameParsePrefix", raceNameParsePrefix);
    io.String(u"raceNameParsePrefixFallback", raceNameParsePrefixFallback);
}

} // namespace Vorn
