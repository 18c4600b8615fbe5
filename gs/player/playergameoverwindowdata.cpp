#include "gs/player/playergameoverwindowdata.h"

namespace Vorn {

namespace {

constexpr Label kTextLabels[] = {
    u"hasWonMilitaryStatusFormatStringId",   u"hasLostMilitaryStatusFormatStringId",
    u"hasWonFlagshipStatusFormatStringId",   u"hasLostFlagshipStatusFormatStringId",
    u"hasWonHomeworldStatusFormatStringId",  u"hasLostHomeworldStatusFormatStringId",
    u"hasWonDiplomaticStatusFormatStringId", u"hasLostDiplomaticStatusFormatStringId",
    u"hasWonResearchStatusFormatStringId",   u"hasLostResearchStatusFormatStringId",
    u"hasWonOccupationStatusFormatStringId", u"hasLostOccupationStatusFormatStringId",
    u"hasWonMilitaryPhraseStringId",         u"hasLostMilitaryPhraseStringId",
    u"hasWonFlagshipPhraseStringId",         u"hasLostFlagshipPhraseStringId",
    u"hasWonHomeworldPhraseStringId",        u"hasLostHomeworldPhraseStringId",
    u"hasWonDiplomaticPhraseStringId",       u"hasLostDiplomaticPhraseStringId",
    u"hasWonResearchPhraseStringId",         u"hasLostResearchPhraseStringId",
    u"hasWonOccupationPhraseStringId",       u"hasLostOccupationPhraseStringId",
};

} // namespace

void PlayerGameOverWindowData::Fields(FieldIo& io) {
    io.Value(u"hasWonPicture", hasWonPicture);
    io.Value(u"hasLostPicture", hasLostPicture);
    io.Value(u"themeBackdropBrush", themeBackdropBrush);
    io.LabelledArray(kTextLabels, textIds, &FieldIo::Strings);
}

} // namespace Vorn
