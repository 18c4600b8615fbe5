#pragma once

#include "gs/player/playerainamedata.h"
#include "gs/player/playerdebrisdata.h"
#include "gs/player/playergameeventdata.h"
#include "gs/player/playergameoverwindowdata.h"
#include "gs/player/playerhudskindata.h"
#include "gs/player/playerhyperspacedata.h"
#include "gs/player/playermusicthemedata.h"
#include "gs/player/playerplanetelevatordata.h"
#include "gs/player/playerresearchscreendata.h"
#include "gs/player/playershielddata.h"

namespace Vorn {

// What a player of a race sees and hears.
struct PlayerDataDef : Record {
    PlayerDebrisData debris;
    PlayerHyperspaceData hyperspace;
    PlayerShieldData shield;
    PlayerGameEventData gameEvents;
    PlayerPlanetElevatorData planetElevators;
    PlayerMusicThemeData musicThemes;
    PlayerHUDSkinData hudSkin;
    PlayerResearchScreenData researchScreen;
    PlayerGameOverWindowData gameOverWindow;
    PlayerAINameData aiNames;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
