#include "tools/kelvanekit/check/mendsearch.h"

#include "engine/archive/archiveheader.h"
#include "tools/kelvanekit/check/likeness.h"
#include "tools/kelvanekit/check/linegroups.h"

#include <algorithm>
#include <memory>
#include <queue>
#include <set>
#include <tuple>

namespace Vorn {

namespace {

// Lines that have to fit behind a mend before it is settled.
constexpr std::int32_t kSettledAfter = 12;
constexpr int kMostTrialsPerMistake = 400;
constexpr int kMostTrialsPerGuess = 120;
// Lines that all trials together may pass, and how often those of a large file.
constexpr std::int64_t kMostTriedLines = 800000;
constexpr std::int64_t kMostReadings = 60;
// Mends in a row that nothing confirms: what follows them has nothing to do with the keys.
constexpr int kMostGuesses = 16;
constexpr std::int32_t kFarthestLine = 48;
constexpr std::size_t kRecentChoices = 6;
// The type of a content stands behind its version.
constexpr std::int32_t kLastTypeAsk = 2;

// What a mistake of a kind weighs. Those that authors make more often weigh less; findings that are there anyhow
// weigh nearly nothing.
namespace Weight {
constexpr double kKnown = 0.05;
constexpr double kDoubtfulChoice = 0.1;
constexpr double kRemark = 0.5;
constexpr double kSameLine = 0.9;
constexpr double kMisspelt = 0.92;
constexpr double kCount = 0.95;
constexpr double kOneLine = 1.0;
// With another value, which may as well be that of another entry.
constexpr double kDoubledLine = 1.03;
constexpr double kSwapped = 1.05;
constexpr double kGroup = 1.2;
constexpr double kRest = 1.3;
constexpr double kEntry = 2.2;
constexpr double kFirstChoice = 1.5;
constexpr double kOtherKey = 1.7;
constexpr double kChoice = 2.1;
} // namespace Weight

struct Trial {
    Mends mends;
    double weight = 0.0;
    // From this line on keys have to fit.
    std::int32_t baseLine = 0;
    // In the order in which they were thought of.
    int number = 0;
    bool isRead = false;
    Mismatch mismatch;
};

using TrialPtr = std::shared_ptr<Trial>;

struct IsHeavier {
    bool operator()(const TrialPtr& left, const TrialPtr& right) const {
        return std::tie(left->weight, left->number) > std::tie(right->weight, right->number);
    }
};

using Queue = std::priority_queue<TrialPtr, std::vector<TrialPtr>, IsHeavier>;

class MendSearch {
public:
    MendSearch(ContentKind _kind, const SourceText& _text, const TextHeader& _header)
        : kind(_kind), text(_text), header(_header),
          mostTriedLines(std::max(kMostTriedLines, kMostReadings * _text.LineCount())) {}

    Mends Run() {
        TrialPtr root = std::make_shared<Trial>();
        Try(*root);
        while (!root->isRead && triedLines < mostTriedLines) {
            const Next next = MendOnce(*root);
            guesses = next.isSettled ? 0 : guesses + 1;
            if (next.trial == nullptr || guesses > kMostGuesses) {
                break;
            }
            root = next.trial;
        }
        JoinSkips(root->mends);
        return root->mends;
    }

private:
    // Lines that nothing asks for are one mistake where there are many of them in a row.
    static void JoinSkips(Mends& mends) {
        constexpr std::int32_t kMany = 4;
        std::ranges::stable_sort(mends, {}, &Mend::line);
        for (auto first = mends.begin(); first != mends.end(); ++first) {
            auto next = first + 1;
            std::int32_t end = first->line + first->value;
            while (first->kind == Mend::Kind::SkipLines && next != mends.end() && next->line == end &&
                   next->kind == Mend::Kind::SkipLines) {
                end += next->value;
                ++next;
            }
            if (next - first >= kMany) {
                first->value = end - first->line;
                mends.erase(first + 1, next);
            }
        }
    }

    void Try(Trial& trial) {
        LoadedContent content(kind);
        TextReader reader(text, header, TextReader::Mode::Probing, nullptr, trial.mends);
        trial.isRead = reader.Read(content);
        trial.mismatch = std::move(reader.GetMismatch());
        triedLines += 20 + (trial.isRead ? text.LineCount() : trial.mismatch.line);
    }

    struct Next {
        TrialPtr trial;
        // Enough lines fit behind the mend.
        bool isSettled;
    };

    // The trial of least weight that settles the first mistake of `start`, and others close behind it; if there is
    // none, the one that comes farthest, or null.
    Next MendOnce(const Trial& start) {
        if (TrialPtr other = MendType(start); other != nullptr) {
            return {other, true};
        }
        queue = Queue();
        seen.clear();
        TrialPtr farthest;
        TrialPtr settled;
        const auto reach = [](const Trial& trial) {
            return trial.mismatch.line - trial.baseLine - 6.0 * trial.weight + 0.001 * trial.mismatch.line;
        };
        AddChildren(start, 0.0);
        const int mostTrials = guesses == 0 ? kMostTrialsPerMistake : kMostTrialsPerGuess;
        for (int trials = 0; !queue.empty() && trials < mostTrials && triedLines < mostTriedLines; ++trials) {
            TrialPtr trial = queue.top();
            queue.pop();
            if (settled != nullptr && trial->weight > settled->weight) {
                break;
            }
            Try(*trial);
            if (trial->isRead) {
                return {trial, true};
            }
            const std::int32_t base = std::max(trial->baseLine, start.mismatch.line);
            if (trial->mismatch.line >= base + kSettledAfter && !EndsInOpenList(trial->mismatch)) {
                // Of those that weigh the same the one that comes farthest.
                if (settled == nullptr || trial->mismatch.line > settled->mismatch.line) {
                    settled = trial;
                }
                continue;
            }
            const bool isAhead = trial->mismatch.line > start.mismatch.line || trial->mismatch.ask > start.mismatch.ask;
            if (isAhead && (farthest == nullptr || reach(*trial) > reach(*farthest))) {
                farthest = trial;
            }
            const Mismatch& at = trial->mismatch;
            const std::int32_t entries = at.lists.empty() ? 0 : at.lists.back().entries;
            if (seen.emplace(at.line, at.label.data(), at.lists.size(), entries, at.isAbnormalEnd).second) {
                AddChildren(*trial, trial->weight);
            }
        }
        return settled != nullptr ? Next{settled, true} : Next{farthest, false};
    }

    // Where not even the first key of a content's type is there: another type that has all of them.
    TrialPtr MendType(const Trial& start) {
        const Mismatch& at = start.mismatch;
        if (!start.mends.empty() || at.line >= text.LineCount() || at.choices.empty()) {
            return nullptr;
        }
        const ReadChoice& type = at.choices.back();
        if (type.table == nullptr || type.ask > kLastTypeAsk || at.ask != type.ask + 1) {
            return nullptr;
        }
        for (std::int32_t row = 0; row < type.table->rowCount; ++row) {
            auto trial = std::make_shared<Trial>();
            trial->mends = {{Mend::Kind::Choice, type.ask, kNone, row}};
            if (row != type.value) {
                Try(*trial);
            }
            if (trial->isRead) {
                return trial;
            }
        }
        return nullptr;
    }

    // Entries that a count was raised for prove nothing by themselves.
    static bool EndsInOpenList(const Mismatch& at) {
        const auto isOpen = [](const OpenList& list) { return list.isOpen; };
        return std::ranges::any_of(at.endedLists, isOpen) || std::ranges::any_of(at.lists, [&](const OpenList& list) {
                   return list.isOpen && list.entryAsk == at.ask;
               });
    }

    std::string_view Key(std::int32_t line) const { return KeyOf(text.Line(line)); }

    void Add(const Trial& parent, double weight, std::initializer_list<Mend> mends, std::int32_t baseLine) {
        Add(parent, weight, Mends(mends), baseLine);
    }

    void Add(const Trial& parent, double weight, const Mends& mends, std::int32_t baseLine) {
        auto trial = std::make_shared<Trial>();
        trial->mends = parent.mends;
        trial->mends.insert(trial->mends.end(), mends.begin(), mends.end());
        trial->weight = weight + parentWeight;
        trial->baseLine = baseLine;
        trial->number = ++trialCount;
        queue.push(std::move(trial));
    }

    void AddChildren(const Trial& trial, double weight) {
        parentWeight = weight;
        const Mismatch& at = trial.mismatch;
        if (const std::int32_t remark = RemarkLength(text, at.line); remark > 0 && !at.isAbnormalEnd) {
            Add(trial, Weight::kRemark, {{Mend::Kind::SkipLines, kNone, at.line, remark}}, at.line + remark);
            return;
        }
        if (IsCutKey(at)) {
            Add(trial, Weight::kOneLine,
                {{Mend::Kind::MissingRest, at.ask, kNone, kNone}, {Mend::Kind::SkipLines, kNone, at.line, 1}},
                at.line + 1);
            return;
        }
        AddCounts(trial);
        AddChoices(trial);
        if (at.isAbnormalEnd) {
            return;
        }
        if (at.line >= text.LineCount()) {
            AddEndOfFile(trial);
            return;
        }
        AddSkips(trial);
        if (!at.label.empty()) {
            AddKeys(trial);
            AddMissing(trial);
        }
    }

    // Whether the file ends within the key that is asked for.
    bool IsCutKey(const Mismatch& at) const {
        const std::string_view content = Trimmed(text.Line(at.line));
        return at.line + 1 == text.LineCount() && content.size() < at.label.size() &&
               IsLabel(content, at.label.substr(0, content.size()));
    }

    // Mends of the line ahead as a line for what is asked for.
    void AddKeys(const Trial& trial) {
        const Mismatch& at = trial.mismatch;
        const std::string_view key = Key(at.line);
        const bool isRow = at.probes[0].kind == FieldKind::Row;
        const bool isAskedLater = std::any_of(at.probes.begin() + 1, at.probes.end(),
                                              [&](const ProbedField& probe) { return IsLabel(key, probe.label); });
        const std::string_view next = Key(at.line + 1);
        if (isRow ? isAskedLater && next.starts_with('[') : IsLabel(next, at.label)) {
            Add(trial, Weight::kSwapped + (isAskedLater ? 0.0 : 0.1), {{Mend::Kind::SwapLines, kNone, at.line, kNone}},
                at.line + 2);
        }
        const bool isLike = isRow ? IsLikeRow(Trimmed(text.Line(at.line))) : IsLike(key, at.label);
        const std::string_view content = Trimmed(text.Line(at.line));
        const bool isFit =
            (isRow && isLike) || FitsKind(content.substr(std::min(key.size(), content.size())), at.probes[0].kind);
        const double weight =
            (isLike ? Weight::kMisspelt : Weight::kOtherKey) + (isAskedLater ? 0.8 : 0.0) + (isFit ? 0.0 : 0.4);
        Add(trial, weight, {{Mend::Kind::AcceptLine, at.ask, kNone, kNone}}, at.line + 1);
    }

    // Mends of fields without lines, up to one that has the key ahead. A group that follows fits by itself wherever it
    // stands: only what is behind it proves anything.
    void AddMissing(const Trial& trial) {
        const Mismatch& at = trial.mismatch;
        const std::int32_t group = GroupLength(text, at.line);
        const std::int32_t base = at.line + (group > 1 ? std::min(group, kFarthestLine) : 0);
        const std::string_view key = Key(at.line);
        const bool isRowAhead = key.starts_with('[');
        int found = 0;
        for (std::size_t i = 1; i < at.probes.size() && found < 3; ++i) {
            const bool isRow = at.probes[i].kind == FieldKind::Row;
            if (isRow ? isRowAhead : IsLabel(key, at.probes[i].label)) {
                Mends mends = MissingUpTo(at, i);
                if (mends.size() < kFarthestLine) {
                    const double weight = static_cast<double>(mends.size()) * Weight::kOneLine;
                    Add(trial, weight, mends, base);
                    ++found;
                }
            }
        }
        Add(trial, Weight::kOneLine + 0.01, {{Mend::Kind::Missing, at.ask, kNone, kNone}}, at.line);
        if (at.probes[0].kind == FieldKind::Record || at.probes[0].kind == FieldKind::Matrix33) {
            Add(trial, Weight::kOneLine + 0.01, {{Mend::Kind::MissingHeader, at.ask, kNone, kNone}}, at.line);
        }
    }

    // The fields ahead of a probed one: the groups that it stands in lack their first line, other groups are missing as
    // a whole.
    static Mends MissingUpTo(const Mismatch& at, std::size_t target) {
        Mends mends;
        std::int32_t depth = at.probes[target].depth;
        for (std::size_t i = target; i-- > 0;) {
            if (at.probes[i].depth <= depth) {
                const bool isAround = at.probes[i].depth < depth;
                mends.push_back({isAround ? Mend::Kind::MissingHeader : Mend::Kind::Missing, kNone, kNone, kNone});
                depth = at.probes[i].depth;
            }
        }
        std::ranges::reverse(mends);
        for (std::size_t i = 0; i < mends.size(); ++i) {
            mends[i].ask = at.ask + static_cast<std::int32_t>(i);
        }
        return mends;
    }

    // Mends of lines that nothing asks for.
    void AddSkips(const Trial& trial) {
        const Mismatch& at = trial.mismatch;
        const std::int32_t group = GroupLength(text, at.line);
        const bool isSurplus = std::ranges::any_of(at.endedLists, [](const OpenList& list) {
            return list.shape.rule == ListRule::Fatal && list.count > list.shape.limit;
        });
        const auto skip = [&](double weight, std::int32_t line, std::int32_t count) {
            Add(trial, isSurplus ? Weight::kKnown : weight, {{Mend::Kind::SkipLines, kNone, line, count}},
                at.line + count);
        };
        const std::int32_t repeated = RepeatedLine(text, at.line);
        const bool isSkipped = std::ranges::any_of(
            trial.mends, [&](const Mend& mend) { return mend.IsOfLines() && mend.line == repeated; });
        if (repeated != kNone && !isSkipped) {
            skip(Weight::kSameLine, repeated, 1);
        } else {
            const bool isDoubled = at.line > 0 && Key(at.line - 1) == Key(at.line);
            skip(isDoubled ? Weight::kDoubledLine : Weight::kOneLine, at.line, 1);
        }
        if (group > 1) {
            // An entry more than a count says is a mistake of the count.
            skip(IsEntry(at) ? Weight::kEntry : Weight::kGroup, at.line, group);
        }
        if (at.label.empty()) {
            const std::int32_t rest = text.LineCount() - at.line;
            const bool isFile = IsLabel(Key(at.line), kTextHeader);
            skip(isFile || rest == 1 ? Weight::kOneLine : std::min(Weight::kRest + 0.25 * (rest - 2), 4.0), at.line,
                 rest);
            return;
        }
        for (std::int32_t count = 2; count < kFarthestLine; ++count) {
            if (IsLabel(Key(at.line + count), at.label)) {
                Mends mends;
                for (std::int32_t i = 0; i < count; ++i) {
                    mends.push_back({Mend::Kind::SkipLines, kNone, at.line + i, 1});
                }
                Add(trial, count * Weight::kOneLine, mends, at.line + count);
                break;
            }
        }
    }

    // Whether a line looks like one more entry of a list that has just ended.
    bool IsEntry(const Mismatch& at) const {
        return std::ranges::any_of(at.endedLists, [&](const OpenList& list) {
            return list.entries > 0 && Key(list.firstLine) == Key(at.line);
        });
    }

    bool HasMendBehind(const Trial& trial, std::int32_t ask) const {
        return std::ranges::any_of(trial.mends, [&](const Mend& mend) { return !mend.IsOfLines() && mend.ask > ask; });
    }

    static bool HasMendAt(const Trial& trial, std::int32_t ask, std::initializer_list<Mend::Kind> kinds) {
        return std::ranges::any_of(trial.mends, [&](const Mend& mend) {
            return mend.ask == ask && std::ranges::find(kinds, mend.kind) != kinds.end();
        });
    }

    // Mends of counts: of lists that have just ended and of those that an entry is wanted of.
    void AddCounts(const Trial& trial) {
        using enum Mend::Kind;
        const Mismatch& at = trial.mismatch;
        const auto add = [&](const OpenList& list, Mend::Kind mend, std::int32_t value) {
            if (!HasMendAt(trial, list.ask, {Count, OpenCount}) || (mend == Count && list.isOpen)) {
                Add(Without(trial, list.ask), list.isDoubtful || list.isOpen ? Weight::kKnown : Weight::kCount,
                    {{mend, list.ask, kNone, value}}, at.line);
            }
        };
        for (const OpenList& list : at.lists) {
            if (list.entries > 0 && list.entryAsk == at.ask) {
                add(list, Count, list.entries - 1);
            } else if (at.isAbnormalEnd && list.ask + 1 == at.ask) {
                add(list, OpenCount, kNone);
            }
        }
        if (at.line < text.LineCount()) {
            for (const OpenList& list : at.endedLists) {
                add(list, OpenCount, kNone);
            }
        }
    }

    // The trial without what it says of the value of a field.
    static Trial Without(const Trial& trial, std::int32_t ask) {
        using enum Mend::Kind;
        Trial result;
        result.mends = trial.mends;
        std::erase_if(result.mends, [&](const Mend& mend) {
            return mend.ask == ask && (mend.kind == Count || mend.kind == OpenCount || mend.kind == Choice);
        });
        return result;
    }

    // Mends of enumerations and truth values that the keys ahead may depend on.
    void AddChoices(const Trial& trial) {
        const Mismatch& at = trial.mismatch;
        for (std::size_t i = 0; i < at.choices.size(); ++i) {
            const ReadChoice& choice = at.choices[i];
            const bool isFirst = i + 1 == at.choices.size() && choice.table != nullptr && choice.ask <= kLastTypeAsk;
            // The type of a content may be chosen again: what is in front of the place has the same keys.
            const bool isChosenAgain = isFirst && HasMendAt(trial, choice.ask, {Mend::Kind::Choice});
            if ((HasMendBehind(trial, choice.ask) && !isFirst) ||
                (HasMendAt(trial, choice.ask, {Mend::Kind::Choice}) && !isFirst) ||
                (isChosenAgain && parentWeight > 0.0) ||
                (!choice.isDoubtful && !isFirst && (i >= kRecentChoices || parentWeight > 0.0))) {
                continue;
            }
            const double weight = choice.isDoubtful || isChosenAgain ? Weight::kDoubtfulChoice
                                  : isFirst                          ? Weight::kFirstChoice
                                                                     : Weight::kChoice;
            const std::int32_t count = choice.table == nullptr ? 2 : choice.table->rowCount;
            for (std::int32_t value = 0; value < count; ++value) {
                if (value != choice.value) {
                    Add(isChosenAgain ? Without(trial, choice.ask) : trial, weight,
                        {{Mend::Kind::Choice, choice.ask, kNone, value}}, at.line);
                }
            }
        }
    }

    // All fields from here on have no line.
    void AddEndOfFile(const Trial& trial) {
        const Mismatch& at = trial.mismatch;
        if (at.label.empty()) {
            return;
        }
        Add(trial, Weight::kOneLine, {{Mend::Kind::Missing, at.ask, kNone, kNone}}, at.line);
        const auto missing = static_cast<double>(at.probes.size());
        Add(trial, std::min(Weight::kRest + 0.1 * (missing - 1.0), 3.0),
            {{Mend::Kind::MissingRest, at.ask, kNone, kNone}}, at.line);
    }

    const ContentKind kind;
    const SourceText& text;
    const TextHeader& header;
    const std::int64_t mostTriedLines;
    Queue queue;
    std::set<std::tuple<std::int32_t, const char16_t*, std::size_t, std::int32_t, bool>> seen;
    double parentWeight = 0.0;
    int trialCount = 0;
    // Steps in a row that nothing confirmed.
    int guesses = 0;
    std::int64_t triedLines = 0;
};

} // namespace

Mends FindMends(ContentKind kind, const SourceText& text, const TextHeader& header) {
    return MendSearch(kind, text, header).Run();
}

} // namespace Vorn
