#include "gs/player/playerresearchscreendata.h"

namespace Vorn {

namespace {

constexpr Label kCapitalShipSlotLabels[] = {
    u"capitalShipSlotLevelPicture-0", u"capitalShipSlotLevelPicture-1", u"capitalShipSlotLevelPicture-2",
    u"capitalShipSlotLevelPicture-3", u"capitalShipSlotLevelPicture-4", u"capitalShipSlotLevelPicture-5",
    u"capitalShipSlotLevelPicture-6", u"capitalShipSlotLevelPicture-7", u"capitalShipSlotLevelPicture-8"};

constexpr Label kShipSlotLabels[] = {u"shipSlotLevelPicture-0", u"shipSlotLevelPicture-1", u"shipSlotLevelPicture-2",
                                     u"shipSlotLevelPicture-3", u"shipSlotLevelPicture-4", u"shipSlotLevelPicture-5",
                                     u"shipSlotLevelPicture-6", u"shipSlotLevelPicture-7", u"shipSlotLevelPicture-8"};

} // namespace

void PlayerResearchScreenData::BlockInfo::Fields(FieldIo& io) {
    io.Rectangle(u"area", area);
    io.Value(u"backdrop", backdrop);
    io.Value(u"tierIndicatorBackdrop", tierIndicatorBackdrop);
    io.String(u"title", title);
    io.Value(u"picture", picture);
}

void PlayerResearchScreenData::FieldInfo::Fields(FieldIo& io) {
    io.BoundedList(u"blockCount", blocks, io.Records(u"block"));
}

void PlayerResearchScreenData::Fields(FieldIo& io) {
    for (int i = 0; i < kShownFieldCount; ++i) {
        io.Record(kResearchFieldTexts[static_cast<std::size_t>(i)], fields[i]);
    }
    io.LabelledArray(kCapitalShipSlotLabels, capitalShipSlotLevelPictures, &FieldIo::Values);
    io.LabelledArray(kShipSlotLabels, shipSlotLevelPictures, &FieldIo::Values);
}

} // namespace Vorn
