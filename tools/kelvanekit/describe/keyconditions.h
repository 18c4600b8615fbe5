#pragma once

#include "tools/kelvanekit/describe/keymodel.h"
#include "tools/kelvanekit/describe/mergedfields.h"

#include <optional>
#include <set>

namespace Vorn {

// The values of a choice at which something is there.
struct ChoiceValues {
    std::size_t choice;
    std::set<std::int32_t> values;
};

// All have to hold.
using ChoiceCondition = std::vector<ChoiceValues>;

// Finds the conditions under which the fields of a record are there.
class KeyConditions {
public:
    explicit KeyConditions(const MergedFields& _merged) : merged(_merged) {}

    // The shortest condition that tells for each trial whether the field is there; nothing if there is none.
    std::optional<ChoiceCondition> ConditionOf(std::size_t field) const;

    // The conditions of a report: one of them has to hold. `isWhole` is false if it comes at other times too.
    std::vector<ChoiceCondition> ConditionsOfReport(std::size_t report, bool& isWhole) const;

    bool Holds(const ChoiceCondition& condition, std::size_t trial) const;

    // A condition with keys and values as the text form has them.
    KeyCondition Name(const ChoiceCondition& condition) const;

private:
    bool IsThere(std::size_t field, std::size_t trial) const;
    bool TellsAll(const ChoiceCondition& condition, std::size_t field) const;
    std::set<std::int32_t> ValuesOf(std::size_t choice) const;
    bool IsPossible(std::size_t choice, std::size_t field) const;
    ChoiceCondition PossibleOf(std::size_t field) const;

    const MergedFields& merged;
};

} // namespace Vorn
