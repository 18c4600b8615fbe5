#include "tools/kelvanekit/describe/describekeys.h"

#include "gs/entity/entitytypes.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/check/writtentext.h"
#include "tools/kelvanekit/describe/keyconditions.h"
#include "tools/kelvanekit/describe/recordnames.h"
#include "tools/kelvanekit/describe/recordtrials.h"

#include <algorithm>
#include <cstring>

namespace Vorn {

namespace {

using Role = DescribedField::Role;

// What a text file has behind a key for the bytes of a value.
template <class Value>
std::string TextOf(const std::string& bytes) {
    Value value;
    std::memcpy(&value, bytes.data(), sizeof value);
    WrittenFile written(FileArchiveType::Text);
    written.GetArchive().Write(u"", value);
    return written.Finish();
}

template <class... Values>
std::string TextOfKind(FieldKind kind, const std::string& bytes, ValueList<Values...>) {
    std::string text;
    static_cast<void>(((kKindOf<Values> == kind && (text = TextOf<Values>(bytes), true)) || ...));
    return text;
}

std::string TextOfStart(const DescribedField& field) {
    if (field.kind != FieldKind::Text) {
        return TextOfKind(field.kind, field.start, ArchiveValues());
    }
    return '"' + (field.table == nullptr ? field.start : ToUtf8(EnumToText(kInvalidEnum, *field.table))) + '"';
}

// The lines of a value without their indentation and ends.
std::string Lines(const std::string& text) {
    std::string lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string_view line = Trimmed(std::string_view(text).substr(begin, end - begin));
        if (!line.empty()) {
            lines += (lines.empty() ? "" : "\n") + std::string(line);
        }
        begin = end + 1;
    }
    return lines;
}

class KeyDescriber {
public:
    explicit KeyDescriber(ReportDetail _reportDetail) : reportDetail(_reportDetail) {}

    KeyModel Describe() {
        for (const ContentForm& form : ContentForms()) {
            RecordDescription& record = model.records.emplace_back();
            record.name = form.name;
            record.type = NameOf(form.kind);
            tasks.push_back({form, {}, DescribingArchive::kFilePlace});
        }
        fileCount = tasks.size();
        for (std::size_t i = 0; i < tasks.size(); ++i) {
            // The tasks grow meanwhile.
            const Task task = tasks[i];
            DescribeRecord(static_cast<std::int32_t>(i), task);
        }
        NameRecords(model, fileCount, types);
        return std::move(model);
    }

private:
    // A record to be described: where it was met first.
    struct Task {
        ContentForm form;
        Answers answers;
        std::uint64_t place;
    };

    void DescribeRecord(std::int32_t index, const Task& task) {
        Answers answers = task.answers;
        for (const Answer& answer : task.form.fixed) {
            answers = With(std::move(answers), answer.place, answer.value);
        }
        if (task.place == DescribingArchive::kFilePlace) {
            droppedColors.merge(FindDroppedColors(task.form));
        }
        const RecordTrials trials(task.form, answers, task.place);
        MergedFields merged;
        for (const Trial& trial : trials.All()) {
            merged.Add(trial);
            for (const DescribedField& field : trial.fields) {
                if (field.type != nullptr && field.role != Role::Report) {
                    Meet(field, task.form, trial.answers);
                }
            }
        }
        merged.Finish();
        std::size_t next = 0;
        std::vector<KeyDescription> keys = Keys(index, task, trials, merged, next);
        RecordDescription& record = model.records[static_cast<std::size_t>(index)];
        record.keys = std::move(keys);
        if (reportDetail == ReportDetail::All) {
            record.reports = Reports(trials, merged);
        }
    }

    // A record that is met for the first time is described later.
    void Meet(const DescribedField& field, const ContentForm& form, const Answers& answers) {
        const std::pair identity(field.type->hash_code(), field.fields);
        if (known.emplace(identity, static_cast<std::int32_t>(tasks.size())).second) {
            tasks.push_back({form, answers, field.place});
            types.push_back(field.type);
            model.records.emplace_back();
        }
    }

    // The keys from a place in the list up to the end of the list that it lies in.
    std::vector<KeyDescription> Keys(std::int32_t index, const Task& task, const RecordTrials& trials,
                                     const MergedFields& merged, std::size_t& next) {
        const KeyConditions conditions(merged);
        std::vector<KeyDescription> keys;
        while (next < merged.Fields().size()) {
            const std::size_t place = next++;
            const DescribedField& field = merged.Fields()[place];
            if (field.role == Role::ListEnd) {
                break;
            }
            if (field.role == Role::Version || field.role == Role::Report) {
                continue;
            }
            KeyDescription& key = keys.emplace_back(KeyOf(field));
            if (const auto condition = conditions.ConditionOf(place)) {
                key.when = conditions.Name(*condition);
            } else {
                model.records[static_cast<std::size_t>(index)].isExact = false;
            }
            key.isDropped = field.kind == FieldKind::Color && droppedColors.contains(field.place);
            if (field.type != nullptr) {
                key.record = known.at({field.type->hash_code(), field.fields});
                model.records[static_cast<std::size_t>(key.record)].usedBy.push_back({index, key.key});
            }
            if (const Answer* fixed = FindAnswer(task.form.fixed, field.place)) {
                key.fixed = '"' + ToUtf8(EnumToText(fixed->value, *field.table)) + '"';
            }
            for (const Answer& refused : trials.Refused()) {
                if (refused.place == field.place && field.table != nullptr) {
                    key.fatal.push_back(ToUtf8(EnumToText(refused.value, *field.table)));
                }
            }
            if (field.role == Role::List) {
                key.entry = Keys(index, task, trials, merged, next);
            }
        }
        return keys;
    }

    KeyDescription KeyOf(const DescribedField& field) {
        KeyDescription key;
        key.key = ToUtf8(field.label);
        key.kind = field.kind;
        key.name = field.name;
        key.isDegrees = field.isDegrees;
        for (std::int32_t type = 0; type < kEntityTypeTable.rowCount; ++type) {
            if ((field.classes >> type & 1) != 0) {
                key.classes.push_back(ToUtf8(kEntityTypeTable.rows[type]));
            }
        }
        key.isList = field.role == Role::List;
        key.rule = field.rule;
        if (key.isList) {
            key.limit = field.limit == ListShape::kUnlimited ? kNone : field.limit;
        } else if (field.kind == FieldKind::Text && field.table == nullptr) {
            key.limit = field.limit - 1;
        }
        key.start = key.isList ? "0" : Lines(TextOfStart(field));
        key.choices = field.table == nullptr ? std::string() : ChoicesOf(*field.table);
        return key;
    }

    // The name of an enumeration; two of one type name are told apart by a number.
    std::string ChoicesOf(const EnumTable& table) {
        std::vector<std::string> texts;
        texts.reserve(static_cast<std::size_t>(table.rowCount));
        for (std::int32_t row = 0; row < table.rowCount; ++row) {
            texts.push_back(ToUtf8(table.rows[row]));
        }
        std::string name = table.typeName;
        for (int number = 2; !model.choices.emplace(name, texts).second && model.choices.at(name) != texts; ++number) {
            name = table.typeName + (' ' + std::to_string(number));
        }
        return name;
    }

    std::vector<KeyReport> Reports(const RecordTrials& trials, const MergedFields& merged) {
        const KeyConditions conditions(merged);
        std::vector<KeyReport> reports;
        for (std::size_t place = 0; place < merged.Fields().size(); ++place) {
            const DescribedField& field = merged.Fields()[place];
            if (field.role != Role::Report) {
                continue;
            }
            bool isWhole = true;
            for (const ChoiceCondition& condition : conditions.ConditionsOfReport(place, isWhole)) {
                reports.push_back({field.report, conditions.Name(condition), false});
                FindBound(trials, merged, condition, field, reports.back().when);
                for (std::size_t trial = 0; trial < trials.All().size(); ++trial) {
                    if (merged.Value(place, trial) != MergedFields::kAbsent && conditions.Holds(condition, trial)) {
                        reports.back().isPossible = trials.DependsOnParts(trials.All()[trial], field);
                        break;
                    }
                }
            }
            if (!isWhole) {
                reports.push_back({field.report, {}, true});
            }
        }
        for (const std::string& report : trials.FindFurtherReports()) {
            if (std::ranges::find(reports, report, &KeyReport::text) == reports.end()) {
                reports.push_back({report, {}, true});
            }
        }
        return reports;
    }

    // A number that is reported when it is large has a bound between the largest two that were tried.
    static void FindBound(const RecordTrials& trials, const MergedFields& merged, const ChoiceCondition& condition,
                          const DescribedField& report, KeyCondition& named) {
        const DescribedField& choice = merged.Fields()[condition.front().choice];
        const std::vector<std::int32_t> tried = choice.Values();
        const std::int32_t high = tried.back();
        const std::int32_t low = tried[tried.size() - 2];
        const bool isWhole = choice.kind == FieldKind::Int || choice.kind == FieldKind::Uint;
        if (condition.size() > 1 || choice.role != Role::Field || !isWhole ||
            !condition.front().values.contains(high) || condition.front().values.contains(low)) {
            return;
        }
        const std::int32_t allowed = trials.FirstReported(choice, report, low, high) - 1;
        KeyValues& values = named.values.front();
        (values.isExcluded ? values.max : values.min) = allowed;
    }

    const ReportDetail reportDetail;
    KeyModel model;
    std::vector<Task> tasks;
    std::size_t fileCount = 0;
    std::vector<const std::type_info*> types;
    std::set<std::uint64_t> droppedColors;
    std::map<std::pair<std::uint64_t, std::uint64_t>, std::int32_t> known;
};

} // namespace

KeyModel DescribeKeys(ReportDetail reports) {
    return KeyDescriber(reports).Describe();
}

} // namespace Vorn
