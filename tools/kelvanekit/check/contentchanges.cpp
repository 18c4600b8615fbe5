#include "tools/kelvanekit/check/contentfindings.h"

#include "engine/archive/archiveversion.h"
#include "engine/string/ascii.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>

namespace Vorn {

namespace {

// How far apart the same key is looked for where the two sides have different ones.
constexpr std::size_t kFarthest = 4000;

struct WrittenLine {
    std::int32_t depth;
    std::string_view key;
    std::string_view value;
};

std::vector<WrittenLine> LinesOf(std::string_view written) {
    std::vector<WrittenLine> lines;
    while (!written.empty()) {
        const std::size_t length = std::min(written.find('\n'), written.size());
        const auto depth = static_cast<std::int32_t>(std::min(written.find_first_not_of('\t'), length));
        const std::string_view line = Trimmed(written.substr(0, length));
        const std::string_view key = line.starts_with('[') ? line.substr(0, 1) : KeyOf(line);
        lines.push_back({depth, key, line.starts_with('[') ? line : Trimmed(line.substr(key.size()))});
        written.remove_prefix(std::min(length + 1, written.size()));
    }
    return lines;
}

bool IsEmptyValue(std::string_view value) {
    return value.empty() || value == "\"\"" || value == "FALSE" || value.find_first_not_of("0.") == std::string::npos;
}

// Compares the fields that were read with the lines that a conversion writes, key by key.
class Comparison {
public:
    Comparison(FieldReader& _reader, std::string_view written)
        : reader(_reader), asks(_reader.Asks()), lines(LinesOf(written)), ask(_reader.HasVersion() ? 1 : 0),
          known(SpotsOf(_reader.GetFindings())) {
        hasErrors = std::ranges::any_of(reader.GetFindings(), [](const Finding& finding) {
            return finding.code->severity == Severity::Error && finding.code != Code("index-out-of-range");
        });
    }

    void Run() {
        while (ask < asks.size() && line < lines.size()) {
            if (IsPair(ask, line)) {
                Compare(asks[ask], lines[line]);
                const std::int32_t depth = asks[ask].depth;
                ++ask;
                ++line;
                // A group that is missing is written with its defaults.
                while ((ask == asks.size() || asks[ask].depth <= depth) && line < lines.size() &&
                       lines[line].depth > depth) {
                    ++line;
                }
            } else if (IsInFullList(asks[ask])) {
                Drop(1);
            } else {
                Resynchronise();
            }
        }
        Drop(asks.size() - std::min(ask, asks.size()));
        Gain(lines.size() - std::min(line, lines.size()));
    }

    // Keys that are new in the version that is written.
    std::string gained;

private:
    bool IsPair(std::size_t i, std::size_t k) const {
        const Label label = asks[i].label;
        return lines[k].depth == asks[i].depth && lines[k].key.size() == label.size() &&
               Ascii::EqualsEach(lines[k].key.data(), label);
    }

    // Passes over as few as possible on either side.
    void Resynchronise() {
        for (std::size_t distance = 1; distance < kFarthest; ++distance) {
            if (ask + distance < asks.size() && IsPair(ask + distance, line)) {
                Drop(distance);
                return;
            }
            if (line + distance < lines.size() && IsPair(ask, line + distance)) {
                Gain(distance);
                return;
            }
        }
        Drop(1);
        Gain(1);
    }

    // Fields that are not written.
    void Drop(std::size_t count) {
        for (; count > 0; --count, ++ask) {
            const AskedField& field = asks[ask];
            const bool isNewName = reader.GetVersion() >= kArchiveVersion || field.IsMissing() ||
                                   (line < lines.size() && lines[line].value == ValueOf(field));
            if (!isNewName && !IsEmptyValue(ValueOf(field)) && field.kind != FieldKind::Record &&
                !IsInFullList(field) && known.insert(SpotOf(field)).second && (line >= lines.size() || !IsReplaced())) {
                Add(Code("not-kept"), field,
                    "version " + std::to_string(kArchiveVersion) + " has no place for it: it is lost");
            }
        }
    }

    // Whether one key stands in place of another.
    bool IsReplaced() const { return ask + 1 < asks.size() && line + 1 < lines.size() && IsPair(ask + 1, line + 1); }

    // Lines that no field was read for.
    void Gain(std::size_t count) {
        for (; count > 0; --count, ++line) {
            constexpr std::size_t kMostGained = 400;
            if (gained.size() < kMostGained && !lines[line].value.empty()) {
                gained += (gained.empty() ? "`" : ", `") + std::string(lines[line].key) + ' ' +
                          std::string(lines[line].value) + '`';
            }
        }
    }

    std::string_view ValueOf(const AskedField& field) const { return reader.ValueOf(field); }

    bool IsInList(const AskedField& field, ListRule rule) const {
        return IsInList(field, [rule](const AskedField& list) { return list.rule == rule; });
    }

    // Whether a field is the count or in an entry of a list of some kind.
    template <class IsWanted>
    bool IsInList(const AskedField& field, IsWanted isWanted) const {
        for (const AskedField* at = &field;; at = &asks[static_cast<std::size_t>(at->parent)]) {
            if ((at->isCount && isWanted(*at)) ||
                (at->list != kNone && isWanted(asks[static_cast<std::size_t>(at->list)]))) {
                return true;
            }
            if (at->parent == kNone) {
                return false;
            }
        }
    }

    // What is cut out of a list with too many entries is reported at its count.
    bool IsInFullList(const AskedField& field) const {
        return IsInList(field, [](const AskedField& list) { return list.IsOverfull(); });
    }

    void Compare(const AskedField& field, const WrittenLine& written) {
        if (field.IsMissing() || field.kind == FieldKind::Record) {
            return;
        }
        const std::string_view value = ValueOf(field);
        if (IsSameValue(value, written.value) || known.contains(SpotOf(field)) || IsInList(field, ListRule::Keyed) ||
            IsInFullList(field)) {
            return;
        }
        const std::string becomes = '`' + std::string(written.value) + '`';
        if (IsInList(field, ListRule::Derived)) {
            const std::int32_t list = field.isCount ? static_cast<std::int32_t>(&field - asks.data()) : field.list;
            if (!hasErrors && staleLists.insert(list).second && !HasFindingInList(list)) {
                Add(Code("stale-index-list"), asks[static_cast<std::size_t>(list)],
                    "the list is not what the other data give: it is made anew");
            }
            return;
        }
        known.insert(SpotOf(field));
        if (IsRounding(field, value, written.value)) {
            Add(Code("lost-decimals"), field, "is kept as " + becomes, std::string(written.value));
        } else if (field.table != nullptr && !IsPair(ask + 1 < asks.size() ? ask + 1 : ask, NextLine())) {
            Add(Code("rewritten"), field, "is written in a shorter form, as " + becomes);
        } else {
            Add(Code("not-kept"), field, "is not kept: it is written as " + becomes);
        }
    }

    std::size_t NextLine() const { return std::min(line + 1, lines.size() - 1); }

    bool HasFindingInList(std::int32_t list) const {
        return std::ranges::any_of(
            asks, [&](const AskedField& field) { return field.list == list && known.contains(SpotOf(field)); });
    }

    static bool IsRounding(const AskedField& field, std::string_view value, std::string_view written) {
        if (field.kind == FieldKind::Float) {
            const double given = std::strtod(std::string(value).c_str(), nullptr);
            const double kept = std::strtod(std::string(written).c_str(), nullptr);
            return std::fabs(given - kept) <= 1e-5 * std::max(std::fabs(given), 1.0);
        }
        return field.kind == FieldKind::Vector3 || field.kind == FieldKind::Quad || field.kind == FieldKind::Row;
    }

    void Add(const FindingCode* code, const AskedField& field, const std::string& message,
             std::string replacement = {}) {
        const std::string value(ValueOf(field));
        Finding& finding = reader.Add(code, static_cast<std::int32_t>(&field - asks.data()),
                                      value.empty() ? message : '`' + value + "` " + message);
        finding.hasReplacement = !replacement.empty();
        finding.replacement = std::move(replacement);
    }

    FieldReader& reader;
    const AskedFields& asks;
    const std::vector<WrittenLine> lines;
    std::size_t ask;
    std::size_t line = 0;
    std::set<std::int64_t> known;
    std::set<std::int32_t> staleLists;
    // Lists that are made of other data differ by mistakes in these.
    bool hasErrors = false;
};

} // namespace

std::string NoteChanges(FieldReader& reader, LoadedContent& content) {
    const std::string written = WriteContent(content);
    Comparison comparison(reader, written);
    comparison.Run();
    return comparison.gained;
}

void NoteVersion(FieldReader& reader, const std::string& gained) {
    const std::int32_t version = reader.GetVersion();
    const bool hasVersion = reader.HasVersion();
    if (version == kArchiveVersion || reader.Asks().empty() || reader.Asks()[0].IsMissing()) {
        return;
    }
    Finding& finding = reader.Add(Code("older-version"), 0, {});
    const std::string current = std::to_string(kArchiveVersion);
    if (version > kArchiveVersion) {
        finding.code = Code("newer-version");
        finding.message = "version " + std::to_string(version) + " is later than " + current +
                          ": the file is read like one of " + current;
        return;
    }
    if (!hasVersion) {
        finding.place = {std::min(finding.place.line, 1), 0, 0, std::min<std::int64_t>(finding.place.offset, 0)};
        finding.key.clear();
    }
    finding.message = (hasVersion ? "the file is of version " + std::to_string(version) : "the file has no version") +
                      std::string(": it is written in version ") + current;
    finding.help = gained.empty() ? "" : "new keys: " + gained;
}

} // namespace Vorn
