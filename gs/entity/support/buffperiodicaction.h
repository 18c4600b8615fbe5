#pragma once

#include "gs/entity/support/buffinstantaction.h"

namespace Vorn {

enum class ActionCountType : std::int32_t { Invalid = -1, Infinite, Finite };

inline constexpr std::u16string_view kActionCountTypeRows[] = {u"Infinite", u"Finite"};
template <>
inline constexpr EnumTable kEnumTable<ActionCountType> = MakeTable<ActionCountType::Finite>("ActionCountType",
                                                                                            kActionCountTypeRows);

// An action that a buff repeats. A delay, or a trigger that does not suit a repeated action, is reported and kept.
struct BuffPeriodicAction : Record {
    ActionCountType actionCountType = ActionCountType::Invalid;
    BuffLevelFloatTable actionCount;
    BuffLevelFloatTable actionIntervalTime;
    BuffInstantAction instantAction;

    void Fields(FieldIo& io) override;

private:
    void CheckInstantAction() const;
};

} // namespace Vorn
