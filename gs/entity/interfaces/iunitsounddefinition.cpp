#include "gs/entity/interfaces/iunitsounddefinition.h"

#include "engine/core/reporting.h"

namespace Vorn {

namespace {
constexpr Label kCountLabels[IUnitSoundDefinition::kUnitSoundTypeCount] = {
    u"NumSoundsFor:ONATTACKORDERISSUED", u"NumSoundsFor:ONCREATION", u"NumSoundsFor:ONGENERALORDERISSUED",
    u"NumSoundsFor:ONSELECTED", u"NumSoundsFor:ONSTARTPHASEJUMP"};
}

void IUnitSoundDefinition::Fields(FieldIo& io) {
    for (int i = 0; i < kUnitSoundTypeCount; ++i) {
        io.GrowingList(kCountLabels[i], sounds[i], [&](SoundID& sound) {
            io.Value(u"SoundID", sound);
            if (io.Reading() && io.Context().reportsSounds) {
                ReportError(u"SoundData does not exists for: %s\n", sound.GetName());
            }
        });
    }
}

} // namespace Vorn
