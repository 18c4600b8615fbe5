#include "gs/player/playerdatadef.h"

namespace Vorn {

void PlayerDataDef::Fields(FieldIo& io) {
    io.Record(u"debrisData", debris);
    io.Record(u"hyperspaceData", hyperspace);
    io.Record(u"shieldData", shield);
    io.Record(u"gameEventData", gameEvents);
    io.Record(u"planetElevatorData", planetElevators);
    io.Record(u"musicThemeData", musicThemes);
    io.Record(u"hudSkinData", hudSkin);
    io.Record(u"researchScreenData", researchScreen);
    io.Record(u"gameOverWindowData", gameOverWindow);
    io.Record(u"aiNameData", aiNames);
}

} // namespace Vorn
