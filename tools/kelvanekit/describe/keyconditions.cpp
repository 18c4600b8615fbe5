#include "tools/kelvanekit/describe/keyconditions.h"

#include "engine/archive/enumtable.h"
#include "tools/kelvanekit/check/sourcetext.h"

#include <algorithm>

namespace Vorn {

namespace {

using Role = DescribedField::Role;

void AddVersion(KeyCondition& condition, const DescribedField& question, bool isNew) {
    if (isNew) {
        condition.since = std::max(condition.since, question.limit);
    } else {
        condition.before = condition.before == kNone ? question.limit : std::min(condition.before, question.limit);
    }
}

// The range of some of the numbers that were tried. What lies between a number that counts and one that does not is
// taken to begin behind 0 or 1, or at them.
void NameRange(KeyValues& range, const std::vector<std::int32_t>& tried, const std::set<std::int32_t>& values) {
    const auto first = std::ranges::find(tried, *values.begin());
    const auto last = std::ranges::find(tried, *values.rbegin());
    range.hasMin = first != tried.begin();
    range.hasMax = last + 1 != tried.end();
    const std::int32_t before = range.hasMin ? first[-1] : 0;
    const std::int32_t behind = range.hasMax ? last[1] : 0;
    range.isMinOpen = range.hasMin && before >= 0 && (first != last || !range.hasMax);
    range.isMaxOpen = range.hasMax && behind == 0;
    range.min = range.isMinOpen ? before : *first;
    range.max = range.isMaxOpen ? behind : *last;
}

void NameNumbers(KeyValues& named, const std::set<std::int32_t>& all, const std::set<std::int32_t>& values) {
    const std::vector<std::int32_t> tried(all.begin(), all.end());
    std::set<std::int32_t> others = all;
    for (const std::int32_t value : values) {
        others.erase(value);
    }
    const auto isConnected = [&](const std::set<std::int32_t>& numbers) {
        const auto first = std::ranges::find(tried, *numbers.begin());
        return static_cast<std::size_t>(std::ranges::find(tried, *numbers.rbegin()) - first) + 1 == numbers.size();
    };
    named.isExcluded = !isConnected(values);
    NameRange(named, tried, named.isExcluded ? others : values);
}

std::string TextOfValue(const DescribedField& choice, std::int32_t value) {
    if (choice.table == nullptr) {
        return value != 0 ? "TRUE" : "FALSE";
    }
    return ToUtf8(EnumToText(value, *choice.table));
}

} // namespace

bool KeyConditions::IsThere(std::size_t field, std::size_t trial) const {
    return merged.Value(field, trial) != MergedFields::kAbsent;
}

// A question for the version that was not asked excludes nothing.
bool KeyConditions::Holds(const ChoiceCondition& condition, std::size_t trial) const {
    return std::ranges::all_of(condition, [&](const ChoiceValues& part) {
        const std::int32_t value = merged.Value(part.choice, trial);
        return value == MergedFields::kAbsent ? merged.Fields()[part.choice].role == Role::Version
                                              : part.values.contains(value);
    });
}

bool KeyConditions::TellsAll(const ChoiceCondition& condition, std::size_t field) const {
    for (std::size_t trial = 0; trial < merged.TrialCount(); ++trial) {
        if (merged.IsTold(field, trial) && Holds(condition, trial) != IsThere(field, trial)) {
            return false;
        }
    }
    return true;
}

std::set<std::int32_t> KeyConditions::ValuesOf(std::size_t choice) const {
    std::set<std::int32_t> values;
    for (std::size_t trial = 0; trial < merged.TrialCount(); ++trial) {
        if (IsThere(choice, trial)) {
            values.insert(merged.Value(choice, trial));
        }
    }
    return values;
}

// Whether a field can depend on a choice: it stands ahead, in the same entry or around its list, and has several
// values.
bool KeyConditions::IsPossible(std::size_t choice, std::size_t field) const {
    const DescribedField& candidate = merged.Fields()[choice];
    const bool isReport = merged.Fields()[field].role == Role::Report;
    return choice < field && candidate.IsChoice() && (isReport || candidate.role != Role::List) &&
           ValuesOf(choice).size() > 1;
}

ChoiceCondition KeyConditions::PossibleOf(std::size_t field) const {
    ChoiceCondition condition;
    for (std::size_t choice = 0; choice < field; ++choice) {
        if (!IsPossible(choice, field)) {
            continue;
        }
        ChoiceValues part = {choice, {}};
        bool isAlwaysThere = true;
        for (std::size_t trial = 0; trial < merged.TrialCount(); ++trial) {
            if (IsThere(field, trial)) {
                isAlwaysThere = isAlwaysThere && IsThere(choice, trial);
                part.values.insert(merged.Value(choice, trial));
            }
        }
        if (isAlwaysThere) {
            condition.push_back(std::move(part));
        }
    }
    return condition;
}

std::optional<ChoiceCondition> KeyConditions::ConditionOf(std::size_t field) const {
    if (TellsAll({}, field)) {
        return ChoiceCondition();
    }
    const ChoiceCondition possible = PossibleOf(field);
    ChoiceCondition condition;
    std::ranges::copy_if(possible, std::back_inserter(condition),
                         [&](const ChoiceValues& part) { return part.values != ValuesOf(part.choice); });
    if (!TellsAll(condition, field)) {
        condition = possible;
        if (!TellsAll(condition, field)) {
            return std::nullopt;
        }
    }
    for (std::size_t i = 0; i < condition.size();) {
        ChoiceCondition shorter = condition;
        shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(i));
        if (TellsAll(shorter, field)) {
            condition = std::move(shorter);
        } else {
            ++i;
        }
    }
    return condition;
}

std::vector<ChoiceCondition> KeyConditions::ConditionsOfReport(std::size_t report, bool& isWhole) const {
    isWhole = true;
    if (auto condition = ConditionOf(report); condition && !condition->empty()) {
        return {*condition};
    }
    std::vector<ChoiceCondition> conditions;
    for (std::size_t choice = 0; choice < report; ++choice) {
        ChoiceValues part = {choice, IsPossible(choice, report) ? ValuesOf(choice) : std::set<std::int32_t>()};
        for (std::size_t trial = 0; trial < merged.TrialCount(); ++trial) {
            if (IsThere(choice, trial) && !IsThere(report, trial)) {
                part.values.erase(merged.Value(choice, trial));
            }
        }
        if (!part.values.empty() && part.values != ValuesOf(choice)) {
            conditions.push_back({part});
        }
    }
    for (std::size_t trial = 0; trial < merged.TrialCount(); ++trial) {
        isWhole = isWhole && (!IsThere(report, trial) || std::ranges::any_of(conditions, [&](const auto& condition) {
                      return Holds(condition, trial);
                  }));
    }
    return conditions;
}

KeyCondition KeyConditions::Name(const ChoiceCondition& condition) const {
    KeyCondition named;
    for (const ChoiceValues& part : condition) {
        const DescribedField& choice = merged.Fields()[part.choice];
        if (choice.role == Role::Version) {
            AddVersion(named, choice, part.values.contains(1));
            continue;
        }
        KeyValues& values = named.values.emplace_back();
        values.key = ToUtf8(choice.label);
        if (choice.role == Role::Field && (choice.table != nullptr || choice.kind == FieldKind::Bool)) {
            for (const std::int32_t value : part.values) {
                values.texts.push_back(TextOfValue(choice, value));
            }
        } else {
            NameNumbers(values, ValuesOf(part.choice), part.values);
        }
    }
    return named;
}

} // namespace Vorn
