#include "tools/kelvanekit/describe/describedfield.h"

#include "engine/archive/enumtable.h"

#include <algorithm>
#include <numeric>

namespace Vorn {

namespace {

// Conditions and limits that are found by trial begin at one of these, or between the last two.
constexpr std::int32_t kTriedNumbers[] = {-1, 0, 1, 2, 1000000};

} // namespace

bool DescribedField::IsChoice() const {
    if (role == Role::Version || role == Role::List) {
        return true;
    }
    return role == Role::Field && (table != nullptr || kind == FieldKind::Bool || IsNumber());
}

bool DescribedField::IsNumber() const {
    constexpr FieldKind kNumbers[] = {FieldKind::Int, FieldKind::Uint, FieldKind::Float, FieldKind::Point,
                                      FieldKind::Rectangle};
    return role == Role::Field && table == nullptr && std::ranges::find(kNumbers, kind) != std::end(kNumbers);
}

std::vector<std::int32_t> DescribedField::Values() const {
    if (role == Role::Version || (role == Role::Field && kind == FieldKind::Bool)) {
        return {0, 1};
    }
    if (role == Role::List) {
        return rule == ListRule::Exact ? std::vector<std::int32_t>{limit} : std::vector<std::int32_t>{0, 1};
    }
    if (table != nullptr) {
        std::vector<std::int32_t> rows(static_cast<std::size_t>(table->rowCount) + 1);
        std::iota(rows.begin(), rows.end(), kInvalidEnum);
        return rows;
    }
    return {std::begin(kTriedNumbers), std::end(kTriedNumbers)};
}

const Answer* FindAnswer(const Answers& answers, std::uint64_t place) {
    const auto found = std::ranges::lower_bound(answers, place, {}, &Answer::place);
    return found == answers.end() || found->place != place ? nullptr : &*found;
}

Answers With(Answers answers, std::uint64_t place, std::int32_t value) {
    const auto found = std::ranges::lower_bound(answers, place, {}, &Answer::place);
    if (found == answers.end() || found->place != place) {
        answers.insert(found, {place, value});
    } else {
        found->value = value;
    }
    return answers;
}

} // namespace Vorn
