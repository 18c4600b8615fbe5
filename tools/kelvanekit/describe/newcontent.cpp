#include "tools/kelvanekit/describe/newcontent.h"

#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"
#include "engine/archive/enumtable.h"
#include "tools/kelvane/contentconverter.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/check/writtentext.h"
#include "tools/kelvanekit/findings/nearest.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace Vorn {

namespace {

using Role = DescribedField::Role;

std::ptrdiff_t ReportCount(const Trial& trial) {
    return std::ranges::count(trial.fields, Role::Report, &DescribedField::role);
}

std::int32_t RowNamed(const DescribedField& field, const WantedValue& wanted) {
    std::vector<std::string> rows;
    for (const std::int32_t row : field.Values()) {
        rows.push_back(ToUtf8(EnumToText(row, *field.table)));
    }
    const auto found = std::ranges::find(rows, wanted.text);
    if (found == rows.end()) {
        const std::vector<std::string_view> names(rows.begin(), rows.end());
        throw WantedProblem{"'" + wanted.text + "' is no text of " + wanted.key + DidYouMean(wanted.text, names)};
    }
    return field.Values()[static_cast<std::size_t>(found - rows.begin())];
}

std::int32_t ValueOf(const DescribedField& field, const WantedValue& wanted) {
    if (field.table != nullptr) {
        return RowNamed(field, wanted);
    }
    if (field.role == Role::Field && field.kind == FieldKind::Bool) {
        if (wanted.text != "TRUE" && wanted.text != "FALSE") {
            throw WantedProblem{"'" + wanted.text + "' is neither TRUE nor FALSE"};
        }
        return wanted.text == "TRUE" ? 1 : 0;
    }
    std::int32_t number = 0;
    const char* end = wanted.text.data() + wanted.text.size();
    const auto parsed = std::from_chars(wanted.text.data(), end, number);
    constexpr std::int32_t kMostEntries = 10000;
    const bool isTooMany = field.role == Role::List && (number < 0 || number > kMostEntries);
    if (parsed.ptr != end || parsed.ec != std::errc() || isTooMany) {
        throw WantedProblem{"'" + wanted.text + "' is no whole number that " + wanted.key + " can have"};
    }
    return number;
}

class ContentMaker {
public:
    explicit ContentMaker(const ContentForm& _form)
        : form(_form), trial(Run(form.fixed, DescribingArchive::kEverywhere).value()) {}

    // Gives a key its value where it stands first, or in one entry more of a list that has it.
    void Take(const WantedValue& wanted) {
        const DescribedField* field = Find(trial, wanted.key);
        if (field == nullptr) {
            if (auto longer = OpenList(trial, wanted.key, kDeepestList)) {
                trial = std::move(*longer);
            }
            field = Find(trial, wanted.key);
        }
        if (field == nullptr) {
            throw WantedProblem{NoKey(wanted.key)};
        }
        const std::uint64_t place = field->place;
        const bool isText = field->table != nullptr;
        auto taken = Run(With(trial.answers, place, ValueOf(*field, wanted)), place);
        if (!taken) {
            throw WantedProblem{"a conversion ends with '" + wanted.key + ' ' + wanted.text + "'"};
        }
        trial = std::move(*taken);
        settled.insert(place);
        wantedLines.push_back(wanted.key + (isText ? " \"" + wanted.text + '"' : ' ' + wanted.text));
    }

    // Changes other choices until nothing is reported, or no change of one or two helps.
    void AvoidReports() {
        while (ReportCount(trial) > 0 && (AvoidOne() || AvoidByTwo())) {
        }
    }

    std::string Write() const {
        LoadedContent content(form.kind);
        DescribingArchive archive(trial.answers, ListAnswer::Empty, DescribingArchive::kEverywhere);
        archive.Describe(content);
        const std::string text = ToUtf8(kTextHeader) + '\n' + ToUtf8(kVersionLabel) + ' ' +
                                 std::to_string(kArchiveVersion) + '\n' + WriteContent(content);
        ContentConverter converter;
        converter.Convert(form.kind, "new", text, FileArchiveType::Text);
        return std::string(converter.Bytes());
    }

    // Parts that are alike may be written as one. Numbers of their own tell them apart.
    void TellPartsApart() {
        Answers answers = trial.answers;
        std::int32_t number = 0;
        for (const DescribedField& field : trial.fields) {
            if (field.IsNumber() && IsFree(field)) {
                answers = With(std::move(answers), field.place, ++number);
            }
        }
        auto apart = Run(answers, DescribingArchive::kEverywhere);
        if (apart && ReportCount(*apart) <= ReportCount(trial)) {
            trial = std::move(*apart);
        }
    }

    // The first line of the wanted ones that a text does not have, or null.
    const std::string* FindLost(std::string_view text) const {
        const auto lost = std::ranges::find_if(
            wantedLines, [&](const std::string& line) { return text.find(line) == std::string_view::npos; });
        return lost == wantedLines.end() ? nullptr : &*lost;
    }

private:
    static constexpr int kDeepestList = 3;

    std::optional<Trial> Run(const Answers& answers, std::uint64_t triedPlace) const {
        return Try(form, answers, DescribingArchive::kEverywhere, ListAnswer::Empty, triedPlace);
    }

    bool IsFree(const DescribedField& field) const {
        return field.IsChoice() && field.role != Role::Version && !settled.contains(field.place) &&
               FindAnswer(form.fixed, field.place) == nullptr;
    }

    const DescribedField* Find(const Trial& in, const std::string& key) const {
        const auto found = std::ranges::find_if(in.fields, [&](const DescribedField& field) {
            return IsFree(field) && !field.label.empty() && ToUtf8(field.label) == key;
        });
        return found == in.fields.end() ? nullptr : &*found;
    }

    // One entry more in a list, and in lists inside that entry, so that there is the key.
    std::optional<Trial> OpenList(const Trial& from, const std::string& key, int depth) const {
        for (const DescribedField& list : from.fields) {
            if (depth == 0 || list.role != Role::List || list.rule == ListRule::Exact || !IsFree(list)) {
                continue;
            }
            auto longer = Run(With(from.answers, list.place, list.value + 1), DescribingArchive::kEverywhere);
            if (longer && Find(*longer, key) != nullptr) {
                return longer;
            }
            if (!longer || longer->fields.size() <= from.fields.size()) {
                continue;
            }
            if (auto deeper = OpenNewLists(*longer, from, key, depth - 1)) {
                return deeper;
            }
        }
        return std::nullopt;
    }

    // The same in the lists alone that another trial does not have.
    std::optional<Trial> OpenNewLists(const Trial& from, const Trial& before, const std::string& key, int depth) const {
        Trial inside = from;
        std::erase_if(inside.fields, [&](const DescribedField& field) {
            return std::ranges::find(before.fields, field.place, &DescribedField::place) != before.fields.end();
        });
        return OpenList(inside, key, depth);
    }

    std::string NoKey(const std::string& key) const {
        std::vector<std::string> keys;
        for (const DescribedField& field : trial.fields) {
            if (IsFree(field)) {
                keys.push_back(ToUtf8(field.label));
            }
        }
        const std::vector<std::string_view> names(keys.begin(), keys.end());
        return "no key '" + key + "' that others depend on" + DidYouMean(key, names);
    }

    // A wanted entry of a list stays.
    bool IsChangeable(const DescribedField& field) const {
        return IsFree(field) && (field.role != Role::List || field.value == 0);
    }

    // The choices from the first report upwards, and then those behind it.
    std::vector<DescribedField> ChoicesByDistance() const {
        const auto report = std::ranges::find(trial.fields, Role::Report, &DescribedField::role);
        DescribedFields choices(std::make_reverse_iterator(report), trial.fields.rend());
        choices.insert(choices.end(), report, trial.fields.end());
        std::erase_if(choices, [&](const DescribedField& field) { return !IsChangeable(field); });
        return choices;
    }

    // Calls `accept` with the trials in which one choice differs, until it returns true.
    template <class Accept>
    bool TryChanges(Accept accept) const {
        for (const DescribedField& choice : ChoicesByDistance()) {
            for (const std::int32_t value : choice.Values()) {
                if (value == choice.value) {
                    continue;
                }
                auto tried = Run(With(trial.answers, choice.place, value), choice.place);
                if (tried && accept(*tried)) {
                    return true;
                }
            }
        }
        return false;
    }

    bool AvoidOne() {
        Trial better;
        const bool helps = TryChanges([&](Trial& tried) {
            const bool isBetter = ReportCount(tried) < ReportCount(trial);
            if (isBetter) {
                better = std::move(tried);
            }
            return isBetter;
        });
        if (helps) {
            trial = std::move(better);
        }
        return helps;
    }

    // A change that only brings another report may lead to one that helps.
    bool AvoidByTwo() {
        std::vector<Trial> detours;
        std::set<std::vector<std::uint64_t>> seen = {ReportsOf(trial)};
        TryChanges([&](Trial& tried) {
            if (ReportCount(tried) == ReportCount(trial) && seen.insert(ReportsOf(tried)).second) {
                detours.push_back(std::move(tried));
            }
            return false;
        });
        const Trial before = trial;
        for (Trial& detour : detours) {
            trial = std::move(detour);
            if (AvoidOne()) {
                return true;
            }
        }
        trial = before;
        return false;
    }

    static std::vector<std::uint64_t> ReportsOf(const Trial& of) {
        std::vector<std::uint64_t> reports;
        for (const DescribedField& field : of.fields) {
            if (field.role == Role::Report) {
                reports.push_back(field.likeness);
            }
        }
        return reports;
    }

    const ContentForm& form;
    // The places of wanted values, and their lines.
    std::set<std::uint64_t> settled;
    std::vector<std::string> wantedLines;
    Trial trial;
};

} // namespace

std::string MakeContent(const ContentForm& form, const std::vector<WantedValue>& wanted) {
    ContentMaker maker(form);
    for (const WantedValue& value : wanted) {
        maker.Take(value);
    }
    maker.AvoidReports();
    std::string text = maker.Write();
    if (maker.FindLost(text) != nullptr) {
        maker.TellPartsApart();
        text = maker.Write();
    }
    if (const std::string* lost = maker.FindLost(text)) {
        throw WantedProblem{"`" + *lost + "` does not stay with the defaults of the keys that depend on it"};
    }
    return text;
}

} // namespace Vorn
