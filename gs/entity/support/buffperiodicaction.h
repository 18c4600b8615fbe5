#pragma once

#include "gs/entity/support/buffinstantaction.h"

namespace Vorn {

enum class ActionCountType : std::int32_t { Invalid = -1, Infinite, Finite };

inline constexpr EnumRow<ActionCountType> kActionCountTypeRows[] = {{ActionCountType::Infinite, u"Infinite"},
                                                                    {ActionCountType::Finite, u"Finite"}};
inline constexpr auto kActionCountTypeTexts = TextsInOrder<ActionCountType::Finite>(kActionCountTypeRows);
template <>
inline constexpr EnumTable kEnumTable<ActionCountType> = MakeTable("ActionCountType", kActionCountTypeTexts);

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
