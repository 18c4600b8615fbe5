#include "tools/kelvanekit/check/contentfindings.h"

#include "tools/kelvanekit/check/failedcheck.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/check/writtentext.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace Vorn {

namespace {

constexpr std::int32_t kFarthestName = 300;

// The fields of a record, or of a list's entries, in order.
std::vector<std::int32_t> ChildrenOf(const AskedFields& asks, std::int32_t parent) {
    std::vector<std::int32_t> children;
    for (auto i = static_cast<std::size_t>(parent) + 1; i < asks.size() && asks[i].parent >= parent; ++i) {
        if (asks[i].parent == parent) {
            children.push_back(static_cast<std::int32_t>(i));
        }
    }
    return children;
}

std::vector<std::int32_t> EntriesOf(const AskedFields& asks, std::int32_t list) {
    std::vector<std::int32_t> entries;
    for (auto i = static_cast<std::size_t>(list) + 1; i < asks.size(); ++i) {
        if (asks[i].list == list) {
            entries.push_back(static_cast<std::int32_t>(i));
        }
    }
    return entries;
}

// The counts of lists that are not in other lists, by their place among these.
std::vector<std::int32_t> OuterLists(const AskedFields& asks) {
    std::vector<std::int32_t> lists;
    const std::int32_t root = asks.empty() ? kNone : asks[0].parent;
    for (std::size_t i = 0; i < asks.size(); ++i) {
        const bool isOuter = asks[i].parent == root || asks[static_cast<std::size_t>(asks[i].parent)].parent == root;
        if (asks[i].isCount && isOuter && asks[i].list == kNone) {
            lists.push_back(static_cast<std::int32_t>(i));
        }
    }
    return lists;
}

// The key of an entry's row in a list that has a place for each.
std::int32_t RowAskOf(const AskedFields& asks, std::int32_t entry) {
    if (asks[static_cast<std::size_t>(entry)].table != nullptr) {
        return entry;
    }
    const std::vector<std::int32_t> children = ChildrenOf(asks, entry);
    return children.empty() ? kNone : children[0];
}

// Whether there is a finding at a field or in the group that it begins.
bool HasFinding(const Findings& findings, const std::string& path) {
    return std::ranges::any_of(findings, [&](const Finding& finding) {
        return finding.key.starts_with(path) && (finding.key.size() == path.size() || finding.key[path.size()] == '.' ||
                                                 finding.key[path.size()] == '[');
    });
}

// The value of an entry that begins with the key of its row, if it is 0.
std::int32_t ZeroBehind(const FieldReader& reader, std::int32_t rowAsk) {
    const AskedFields& asks = reader.Asks();
    const auto value = static_cast<std::size_t>(rowAsk) + 1;
    const bool isValue = value < asks.size() && asks[value].kind == FieldKind::Float && !asks[value].IsMissing() &&
                         asks[value].parent == asks[value - 1].parent;
    return isValue && IsSameValue(reader.ValueOf(asks[value]), "0.000000") ? rowAsk + 1 : kNone;
}

void NoteKeyedList(FieldReader& reader, std::int32_t list) {
    const AskedFields& asks = reader.Asks();
    if (HasFinding(reader.GetFindings(), PathOf(asks, list))) {
        return;
    }
    std::set<std::int32_t> rows;
    for (const std::int32_t entry : EntriesOf(asks, list)) {
        const std::int32_t ask = RowAskOf(asks, entry);
        const AskedField* field = ask == kNone ? nullptr : &asks[static_cast<std::size_t>(ask)];
        if (field == nullptr || field->table == nullptr || field->IsMissing()) {
            continue;
        }
        if (field->value == kInvalidEnum && HasFinding(reader.GetFindings(), PathOf(asks, ask))) {
            continue;
        }
        if (field->value == kInvalidEnum) {
            reader.Add(Code("not-kept"), ask, "an entry of the type `Invalid` is left out");
        } else if (!rows.insert(field->value).second) {
            reader
                .Add(Code("duplicate-property"), ask,
                     '`' + ToUtf8(field->table->rows[field->value]) +
                         "` stands in the list already: the last one is kept")
                .help = "take one of them out";
        } else if (const std::int32_t zero = ZeroBehind(reader, ask); zero != kNone) {
            reader.Add(Code("rewritten"), zero, "an entry of the value 0 is left out: without it the value is 0 too");
        }
    }
}

bool HasDuplicate(const BrushSet& set) {
    std::set<std::u16string_view> known;
    return std::ranges::any_of(set.GetBrushes(),
                               [&](const Brush& brush) { return !known.insert(brush.GetName().View()).second; });
}

void NoteDuplicateNames(FieldReader& reader, const BrushSet& set) {
    const AskedFields& asks = reader.Asks();
    const std::vector<std::int32_t> lists = OuterLists(asks);
    const std::vector<std::int32_t> entries = lists.empty() ? lists : EntriesOf(asks, lists[0]);
    if (lists.empty() || HasFinding(reader.GetFindings(), PathOf(asks, lists[0]))) {
        return;
    }
    std::set<std::u16string_view> known;
    std::size_t i = 0;
    for (const Brush& brush : set.GetBrushes()) {
        const bool isNew = known.insert(brush.GetName().View()).second;
        const std::vector<std::int32_t> children =
            i < entries.size() && !isNew ? ChildrenOf(asks, entries[i]) : std::vector<std::int32_t>();
        if (!children.empty() && !asks[static_cast<std::size_t>(children[0])].IsMissing()) {
            reader.Add(Code("duplicate-name"), children[0],
                       "there is a `" + ToUtf8(brush.GetName().View()) + "` already");
        }
        ++i;
    }
}

template <class Visit>
void ForEachBadIndex(const Mesh::Data& mesh, Visit visit) {
    const auto vertexCount = static_cast<std::uint32_t>(mesh.vertices.Size());
    const auto materialCount = static_cast<std::uint32_t>(mesh.materials.Size());
    std::int32_t triangle = 0;
    for (const Mesh::Triangle& indices : mesh.triangles) {
        const std::uint32_t values[] = {indices.iVertex0, indices.iVertex1, indices.iVertex2, indices.iMaterial};
        for (std::int32_t i = 0; i < 4; ++i) {
            const std::uint32_t count = i < 3 ? vertexCount : materialCount;
            if (values[i] >= count) {
                visit(triangle, i, values[i], count);
            }
        }
        ++triangle;
    }
}

bool HasBadIndex(const Mesh::Data& mesh) {
    bool isBad = false;
    ForEachBadIndex(mesh, [&](std::int32_t, std::int32_t, std::uint32_t, std::uint32_t) { isBad = true; });
    return isBad;
}

std::string IndexMessage(std::uint32_t value, std::uint32_t count) {
    return std::to_string(static_cast<std::int32_t>(value)) + " points outside of a list of " + std::to_string(count);
}

// The lists of a mesh stand in the order materials, points, vertices, triangles and six of vertex indices.
void NoteBadIndices(FieldReader& reader, const Mesh::Data& mesh) {
    constexpr std::size_t kTriangles = 3;
    const AskedFields& asks = reader.Asks();
    const std::vector<std::int32_t> lists = OuterLists(asks);
    const std::vector<std::int32_t> triangles = lists.size() > kTriangles && HasBadIndex(mesh)
                                                    ? EntriesOf(asks, lists[kTriangles])
                                                    : std::vector<std::int32_t>();
    const std::set<std::int64_t> known = SpotsOf(reader.GetFindings());
    const auto add = [&](std::int32_t ask, std::uint32_t value, std::uint32_t count) {
        const AskedField& field = asks[static_cast<std::size_t>(ask)];
        if (!field.IsMissing() && !known.contains(SpotOf(field))) {
            reader.Add(Code("index-out-of-range"), ask, IndexMessage(value, count));
        }
    };
    // A list that lacks entries is reported at its count.
    const auto isFlawed = [&](std::size_t list) {
        return list < lists.size() && HasFinding(reader.GetFindings(), PathOf(asks, lists[list]));
    };
    const bool hasMaterials = !isFlawed(0);
    const bool hasVertices = !isFlawed(2);
    ForEachBadIndex(mesh, [&](std::int32_t triangle, std::int32_t i, std::uint32_t value, std::uint32_t count) {
        if (i < 3 ? !hasVertices : !hasMaterials) {
            return;
        }
        const auto place = static_cast<std::size_t>(triangle);
        const std::vector<std::int32_t> children =
            place < triangles.size() ? ChildrenOf(asks, triangles[place]) : std::vector<std::int32_t>();
        if (static_cast<std::size_t>(i) < children.size()) {
            add(children[static_cast<std::size_t>(i)], value, count);
        }
    });
    const auto vertexCount = static_cast<std::uint32_t>(mesh.vertices.Size());
    for (std::size_t list = kTriangles + 1; list < lists.size() && list <= kTriangles + Mesh::Data::kDirectionCount;
         ++list) {
        const auto& indices = mesh.cachedVertexIndices[static_cast<int>(list - kTriangles - 1)];
        const bool isBad = hasVertices && std::ranges::any_of(indices, [&](std::int32_t index) {
                               return static_cast<std::uint32_t>(index) >= vertexCount;
                           });
        const std::vector<std::int32_t> entries = isBad ? EntriesOf(asks, lists[list]) : std::vector<std::int32_t>();
        for (std::size_t i = 0; i < entries.size() && i < static_cast<std::size_t>(indices.Size()); ++i) {
            const auto index = static_cast<std::uint32_t>(indices[static_cast<int>(i)]);
            if (index >= vertexCount) {
                add(entries[i], index, vertexCount);
            }
        }
    }
}

// The asks that a failed check speaks of, the latest first and each key once.
std::vector<std::int32_t> AsksOf(const AskedFields& asks, const FailedCheck& check) {
    std::vector<std::int32_t> result;
    const bool isChoice = check.expression == "false";
    for (std::int32_t ask = check.ask; ask >= 0 && ask + kFarthestName > check.ask; --ask) {
        const AskedField& field = asks[static_cast<std::size_t>(ask)];
        const bool isKnown = std::ranges::any_of(result, [&](std::int32_t other) {
            return isChoice || asks[static_cast<std::size_t>(other)].label == field.label;
        });
        if (!isKnown && (isChoice ? field.table != nullptr : SpeaksOf(check.expression, field.label, field.isCount))) {
            result.push_back(ask);
        }
    }
    return result;
}

std::string_view LastKeyOf(std::string_view path) {
    const std::string_view key = path.substr(path.rfind('.') + 1);
    return key.substr(0, key.find('['));
}

std::string_view GroupOf(std::string_view path) {
    const std::size_t end = path.rfind('.');
    return path.substr(0, end == std::string_view::npos ? 0 : end);
}

// Whether what stands at one place is what lacks at another: in the same group, or not far away.
bool CanBelong(const Finding& stray, const Finding& missing) {
    constexpr std::int32_t kFarthestMove = 12;
    const bool isOfKind = missing.code == Code("missing-section") ||
                          (missing.code == Code("missing-key") && stray.code == Code("unexpected-line"));
    return isOfKind && LastKeyOf(stray.key) == LastKeyOf(missing.key) &&
           (GroupOf(stray.key) == GroupOf(missing.key) ||
            std::abs(stray.place.line - missing.place.line) <= kFarthestMove);
}

} // namespace

void JoinMoved(Findings& findings) {
    for (Finding& stray : findings) {
        if (stray.key.empty() || (stray.code != Code("unexpected-line") && stray.code != Code("unexpected-section"))) {
            continue;
        }
        const auto distance = [&](const Finding& missing) { return std::abs(missing.place.line - stray.place.line); };
        Finding* nearest = nullptr;
        for (Finding& missing : findings) {
            if (CanBelong(stray, missing) && (nearest == nullptr || distance(missing) < distance(*nearest))) {
                nearest = &missing;
            }
        }
        if (nearest != nullptr) {
            stray.code = Code("moved-line");
            stray.message =
                Quoted(LastKeyOf(stray.key)) + " belongs behind line " + std::to_string(nearest->place.line - 1);
            stray.help = "move it to its place";
            stray.key = nearest->key;
            nearest->code = nullptr;
        }
    }
    std::erase_if(findings, [](const Finding& finding) { return finding.code == nullptr; });
}

std::int64_t SpotOf(const AskedField& field) {
    return field.line != kNone ? field.line : field.offset;
}

std::int64_t SpotOf(const Finding& finding) {
    return finding.place.line > 0 ? finding.place.line - 1 : finding.place.offset;
}

std::set<std::int64_t> SpotsOf(const Findings& findings) {
    std::set<std::int64_t> spots;
    for (const Finding& finding : findings) {
        spots.insert(SpotOf(finding));
    }
    return spots;
}

bool HasSuspectRelations(const LoadedContent& content) {
    return (content.GetMesh() != nullptr && HasBadIndex(*content.GetMesh())) ||
           (content.GetBrushes() != nullptr && HasDuplicate(*content.GetBrushes()));
}

void NoteRelations(FieldReader& reader, const LoadedContent& content) {
    const AskedFields& asks = reader.Asks();
    for (std::size_t i = 0; i < asks.size(); ++i) {
        if (asks[i].isCount && asks[i].rule == ListRule::Keyed) {
            NoteKeyedList(reader, static_cast<std::int32_t>(i));
        }
    }
    if (content.GetBrushes() != nullptr) {
        NoteDuplicateNames(reader, *content.GetBrushes());
    }
    if (content.GetMesh() != nullptr) {
        NoteBadIndices(reader, *content.GetMesh());
    }
}

namespace {

void NoteCrossedBounds(FieldReader& reader) {
    const AskedFields& asks = reader.Asks();
    for (const CrossedBounds& bounds : reader.AllCrossedBounds()) {
        const AskedField& minimum = asks[static_cast<std::size_t>(bounds.minimum)];
        const AskedField& maximum = asks[static_cast<std::size_t>(bounds.maximum)];
        const auto isKnown = [&](std::int32_t ask) { return HasFinding(reader.GetFindings(), PathOf(asks, ask)); };
        if (!minimum.IsMissing() && !maximum.IsMissing() && !isKnown(bounds.minimum) && !isKnown(bounds.maximum)) {
            reader.Add(Code("unsuitable-value"), bounds.minimum,
                       "the minimum is above the maximum, which is " + std::string(reader.ValueOf(maximum)) + " in " +
                           Quoted(maximum.label));
        }
    }
}

} // namespace

// A check that speaks of fields with findings is taken for their consequence.
void NoteFailedChecks(FieldReader& reader) {
    NoteCrossedBounds(reader);
    const AskedFields& asks = reader.Asks();
    for (const FailedCheck& check : reader.FailedChecks()) {
        if (check.ask != kNone && asks[static_cast<std::size_t>(check.ask)].IsMissing()) {
            continue;
        }
        std::vector<std::int32_t> named = AsksOf(asks, check);
        if (named.empty() && check.ask != kNone) {
            named.push_back(check.ask);
        }
        const bool isConsequence = std::ranges::any_of(named, [&](std::int32_t ask) {
            return asks[static_cast<std::size_t>(ask)].IsMissing() ||
                   HasFinding(reader.GetFindings(), PathOf(asks, ask));
        });
        if (!named.empty() && !isConsequence) {
            reader.Add(Code("unsuitable-value"), named[0], CheckMessage(check.expression));
        }
    }
}

} // namespace Vorn
