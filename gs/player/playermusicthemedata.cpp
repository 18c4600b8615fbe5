#include "gs/player/playermusicthemedata.h"

namespace Vorn {

void PlayerMusicThemeData::Fields(FieldIo& io) {
    // All lists have the same key for their entries.
    const auto theme = io.Values(u"musicTheme");
    io.GrowingList(u"startupMusicThemeCount", startupThemes, theme);
    io.GrowingList(u"neutralMusicThemeCount", neutralThemes, theme);
    io.GrowingList(u"scareThemeCount", scareThemes, theme);
    io.GrowingList(u"announcementCount", announcements, theme);
}

} // namespace Vorn
