#pragma once

#include "engine/archive/record.h"
#include "engine/window/brushref.h"

namespace Vorn {

enum class PipCloudType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kPipCloudTypeRows[] = {u"Planets", u"Modules", u"FriendlyShips", u"EnemyShips"};
template <>
inline constexpr EnumTable kEnumTable<PipCloudType> = MakeTable("PipCloudType", kPipCloudTypeRows);

// The icons that represent a crowd of entities.
struct IPipCloudDef : Record {
    PipCloudType pipCloudType = PipCloudType::Invalid;
    BrushRef empireWindowPipIcon;
    Rectangle mainViewIconAreaOffsetFromCenter;
    BrushRef mainViewOverlay;
    BrushRef mainViewOverlayUnderCursor;
    std::uint32_t mainViewIconMaxEntityCount = 0;

    void Fields(FieldIo& io) override;
};

} // namespace Vorn
