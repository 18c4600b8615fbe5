#include "tools/kelvanekit/describe/recordtrials.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr int kRandomTrials = 12;

using Role = DescribedField::Role;

bool HasPlace(const DescribedFields& fields, const DescribedField& field) {
    return std::ranges::any_of(
        fields, [&](const DescribedField& other) { return other.place == field.place && other.IsChoice(); });
}

bool IsReport(const DescribedField& field) {
    return field.role == Role::Report;
}

bool HasLike(const DescribedFields& fields, const DescribedField& field) {
    return std::ranges::find(fields, field.likeness, &DescribedField::likeness) != fields.end();
}

std::ptrdiff_t CountLike(const DescribedFields& fields, const DescribedField& field) {
    return std::ranges::count(fields, field.likeness, &DescribedField::likeness);
}

// Whether two trials differ in more than the values of choices. Of a list without entries, the reports alone count.
bool Differ(const DescribedFields& left, const DescribedFields& right, bool reportsAlone) {
    const auto taken = [&](const DescribedFields& fields) {
        std::vector<std::uint64_t> likenesses;
        for (const DescribedField& field : fields) {
            if (!reportsAlone || IsReport(field)) {
                likenesses.push_back(field.likeness);
            }
        }
        return likenesses;
    };
    return taken(left) != taken(right);
}

} // namespace

RecordTrials::RecordTrials(const ContentForm& _form, const Answers& answers, std::uint64_t _place)
    : form(_form), place(_place) {
    trials.push_back(Try(form, answers, place, ListAnswer::OneEntry).value());
    Follow(0, {});
    FindRelated();
    TryPairs();
}

// Tries the choices of a trial that the one it comes from does not have.
void RecordTrials::Follow(std::size_t parent, const DescribedFields& known) {
    const Trial& from = trials[parent];
    std::set<std::uint64_t> done;
    for (const DescribedField& choice : from.fields) {
        if (!choice.IsChoice() || FindAnswer(form.fixed, choice.place) != nullptr || HasPlace(known, choice) ||
            !done.insert(choice.place).second) {
            continue;
        }
        std::vector<Trial> tried;
        bool matters = false;
        for (const std::int32_t value : choice.Values()) {
            if (value == choice.value) {
                continue;
            }
            auto trial = Try(form, With(from.answers, choice.place, value), place, ListAnswer::OneEntry, choice.place);
            if (!trial) {
                refused.push_back({choice.place, value});
                continue;
            }
            matters = matters || Differ(trial->fields, from.fields, choice.role == Role::List);
            tried.push_back(std::move(*trial));
        }
        if (!matters) {
            continue;
        }
        choicesThatMatter.insert(choice.place);
        for (Trial& trial : tried) {
            if (parent == 0) {
                singles[{choice.place, FindAnswer(trial.answers, choice.place)->value}] = trials.size();
            }
            trial.parents = {parent};
            trials.push_back(std::move(trial));
            Follow(trials.size() - 1, from.fields);
        }
    }
}

// A choice that takes back a report which another one brought matters too.
void RecordTrials::FindRelated() {
    std::set<std::uint64_t> done;
    for (const DescribedField& field : trials.front().fields) {
        if (IsReport(field)) {
            done.insert(field.likeness);
        }
    }
    // The trials grow meanwhile.
    const std::size_t count = trials.size();
    for (std::size_t i = 1; i < count; ++i) {
        for (const DescribedField& field : trials[i].fields) {
            if (IsReport(field) && trials[i].parents.front() == 0 && done.insert(field.likeness).second) {
                FindRelatedTo(trials[i], field);
            }
        }
    }
}

void RecordTrials::FindRelatedTo(const Trial& reported, const DescribedField& report) {
    for (const DescribedField& choice : trials.front().fields) {
        if (!choice.IsChoice() || choice.role == Role::List || choicesThatMatter.contains(choice.place) ||
            FindAnswer(form.fixed, choice.place) != nullptr) {
            continue;
        }
        const std::vector<std::int32_t> values = choice.Values();
        const bool matters = std::ranges::any_of(values, [&](std::int32_t value) {
            const auto trial = Try(form, With(reported.answers, choice.place, value), place, ListAnswer::OneEntry);
            return trial && !HasLike(trial->fields, report);
        });
        if (!matters) {
            continue;
        }
        choicesThatMatter.insert(choice.place);
        for (const std::int32_t value : values) {
            auto trial =
                Try(form, With(trials.front().answers, choice.place, value), place, ListAnswer::OneEntry, choice.place);
            if (trial && value != choice.value) {
                singles[{choice.place, value}] = trials.size();
                trial->parents = {0};
                trials.push_back(std::move(*trial));
            }
        }
    }
}

void RecordTrials::TryPairs() {
    std::vector<const DescribedField*> choices;
    std::set<std::uint64_t> done;
    for (const DescribedField& field : trials.front().fields) {
        if (field.IsChoice() && field.role != Role::List && choicesThatMatter.contains(field.place) &&
            done.insert(field.place).second) {
            choices.push_back(&field);
        }
    }
    for (std::size_t i = 0; i < choices.size(); ++i) {
        for (std::size_t k = i + 1; k < choices.size(); ++k) {
            TryPair(*choices[i], *choices[k]);
        }
    }
}

void RecordTrials::TryPair(const DescribedField& first, const DescribedField& second) {
    for (const std::int32_t firstValue : first.Values()) {
        for (const std::int32_t secondValue : second.Values()) {
            if (firstValue == first.value || secondValue == second.value) {
                continue;
            }
            const Answers both = With(With(trials.front().answers, first.place, firstValue), second.place, secondValue);
            const auto one = singles.find({first.place, firstValue});
            const auto other = singles.find({second.place, secondValue});
            if (one == singles.end() || other == singles.end()) {
                continue;
            }
            if (auto trial = Try(form, both, place, ListAnswer::OneEntry, second.place)) {
                trial->parents = {one->second, other->second};
                trials.push_back(std::move(*trial));
            }
        }
    }
}

bool RecordTrials::DependsOnParts(const Trial& trial, const DescribedField& report) const {
    const auto parts = Try(form, trial.answers, place, ListAnswer::OneEntry, 0, true);
    for (const DescribedField& choice : parts->fields) {
        const bool isOwn = std::ranges::find(trial.fields, choice.place, &DescribedField::place) != trial.fields.end();
        if (isOwn || !choice.IsChoice()) {
            continue;
        }
        for (const std::int32_t value : choice.Values()) {
            const auto tried =
                Try(form, With(trial.answers, choice.place, value), place, ListAnswer::OneEntry, choice.place);
            if (tried && CountLike(tried->fields, report) < CountLike(trial.fields, report)) {
                return true;
            }
        }
    }
    return false;
}

std::set<std::string> RecordTrials::FindFurtherReports() const {
    std::mt19937 random(1);
    std::set<std::string> reports;
    for (const Trial& trial : trials) {
        const bool isSingle = trial.parents.empty() || trial.parents == std::vector<std::size_t>{0};
        const bool hasParts = std::ranges::any_of(trial.fields, [](const DescribedField& field) {
            return field.role == Role::Block || field.role == Role::List || field.kind == FieldKind::Record;
        });
        for (int i = 0; i < kRandomTrials && isSingle && hasParts; ++i) {
            const auto tried = Try(form, RandomAnswers(trial, random), place, ListAnswer::OneEntry);
            for (const DescribedField& field : tried ? tried->fields : DescribedFields()) {
                if (IsReport(field)) {
                    reports.insert(field.report);
                }
            }
        }
    }
    return reports;
}

// Any values for all choices in the record and its parts that have none, and for those that come of these.
Answers RecordTrials::RandomAnswers(const Trial& trial, std::mt19937& random) const {
    constexpr int kRounds = 3;
    Answers answers = trial.answers;
    for (int round = 0; round < kRounds; ++round) {
        const auto parts = Try(form, answers, place, ListAnswer::OneEntry, 0, true);
        if (!parts) {
            break;
        }
        answers = parts->answers;
        for (const DescribedField& choice : parts->fields) {
            if (!choice.IsChoice() || choice.role == Role::Version || FindAnswer(answers, choice.place) != nullptr) {
                continue;
            }
            std::vector<std::int32_t> values = choice.Values();
            if (choice.role == Role::List && choice.rule != ListRule::Exact) {
                values.push_back(2);
            }
            answers = With(std::move(answers), choice.place, values[random() % values.size()]);
        }
    }
    return answers;
}

std::int32_t RecordTrials::FirstReported(const DescribedField& number, const DescribedField& report, std::int32_t low,
                                         std::int32_t high) const {
    while (high - low > 1) {
        const std::int32_t middle = low + (high - low) / 2;
        const auto trial =
            Try(form, With(trials.front().answers, number.place, middle), place, ListAnswer::OneEntry, number.place);
        (trial && HasLike(trial->fields, report) ? high : low) = middle;
    }
    return high;
}

} // namespace Vorn
