#pragma once

#include "gs/entity/support/buffentitymodifier.h"
#include "gs/entity/support/bufffinishcondition.h"
#include "gs/entity/support/buffovertimeaction.h"
#include "gs/entity/support/buffperiodicaction.h"

namespace Vorn {

enum class OnReapplyDuplicateType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kOnReapplyDuplicateTypeRows[] = {u"PrioritizeOldBuffs", u"PrioritizeNewBuffs"};
template <>
inline constexpr EnumTable kEnumTable<OnReapplyDuplicateType> = MakeTable("OnReapplyDuplicateType",
                                                                          kOnReapplyDuplicateTypeRows);

enum class BuffStackingLimitType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kBuffStackingLimitTypeRows[] = {u"ForAllPlayers", u"PerPlayer"};
template <>
inline constexpr EnumTable kEnumTable<BuffStackingLimitType> = MakeTable("BuffStackingLimitType",
                                                                         kBuffStackingLimitTypeRows);

enum class BuffExclusivityForAIType : std::int32_t { Invalid = -1 };

inline constexpr std::u16string_view kBuffExclusivityForAITypeRows[] = {u"ExclusiveForAllPlayers",
                                                                        u"ExclusivePerPlayer", u"NotExclusive"};
template <>
inline constexpr EnumTable kEnumTable<BuffExclusivityForAIType> = MakeTable("BuffExclusivityForAIType",
                                                                            kBuffExclusivityForAITypeRows);

// What a buff does to the entity that has it: at once, again and again, all the time, and until when. More than five
// instant or three periodic actions are reported and kept.
struct IBuffDef : Record {
    OnReapplyDuplicateType onReapplyDuplicateType = OnReapplyDuplicateType::Invalid;
    BuffStackingLimitType buffStackingLimitType = BuffStackingLimitType::Invalid;
    std::uint32_t stackingLimit = 0;
    Bool allowFirstSpawnerToStack;
    BuffExclusivityForAIType buffExclusivityForAIType = BuffExclusivityForAIType::Invalid;
    Bool isInterruptable;
    Bool isChannelling;
    DynamicVector<BuffInstantAction> instantActions;
    DynamicVector<BuffPeriodicAction> periodicActions;
    DynamicVector<BuffOverTimeAction> overTimeActions;
    DynamicVector<BuffEntityModifier> entityModifiers;
    DynamicVector<BuffEntityBoolModifierType> entityBoolModifiers;
    DynamicVector<BuffFinishCondition> finishConditions;

    void Fields(FieldIo& io) override;

private:
    void ListFields(FieldIo& io);
    void ReportTooManyActions() const;
};

} // namespace Vorn
