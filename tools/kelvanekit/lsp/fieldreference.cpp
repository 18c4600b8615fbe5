#include "tools/kelvanekit/lsp/fieldreference.h"

#include "engine/archive/enumtable.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/describe/describekeys.h"
#include "tools/kelvanekit/describe/keyrows.h"

#include <algorithm>
#include <limits>

namespace Vorn {

namespace {

const KeyModel& Reference() {
    static const KeyModel model = DescribeKeys(ReportDetail::None);
    return model;
}

// The keys around a field and its own, without the numbers of entries.
std::string PlainPath(const AskedFields& asks, std::int32_t ask) {
    const AskedField& field = asks[static_cast<std::size_t>(ask)];
    const std::string around = field.parent == kNone ? std::string() : PlainPath(asks, field.parent);
    return (around.empty() ? "" : around + '.') + ToUtf8(field.label);
}

// The record of a file: of a type with classes, that of the class which its first enumeration chooses.
std::int32_t RecordOf(const KeyModel& model, ContentKind kind, const AskedFields& asks) {
    if (kind != ContentKind::Entity) {
        return FindRecord(model, NameOf(kind));
    }
    const auto type = std::ranges::find_if(asks, [](const AskedField& field) { return field.table != nullptr; });
    return type == asks.end() || type->value < 0
               ? kNone
               : FindRecord(model, ToUtf8(type->table->rows[static_cast<std::size_t>(type->value)]));
}

} // namespace

std::vector<SectionLine> LinesBelow(ContentKind kind, const AskedFields& asks, std::int32_t ask) {
    const KeyModel& model = Reference();
    const std::int32_t record = RecordOf(model, kind, asks);
    std::vector<SectionLine> lines;
    if (record == kNone) {
        return lines;
    }
    const RecordRows rows = RowsOf(model, record, RowDetail::All);
    const auto own = std::ranges::find(rows.keys, PlainPath(asks, ask), &KeyRow::path);
    // Entries of lists, and what depends on other keys, are passed over.
    std::int32_t leftOut = std::numeric_limits<std::int32_t>::max();
    for (auto row = own; row != rows.keys.end() && (row == own || row->depth > own->depth); ++row) {
        if (row == own || row->depth > leftOut) {
            continue;
        }
        const bool isUnconditional = row->when.values.empty() && row->when.before == kNone;
        leftOut = isUnconditional && !row->key->isList ? std::numeric_limits<std::int32_t>::max() : row->depth;
        if (!isUnconditional || row->key->key.empty()) {
            continue;
        }
        const auto texts = model.choices.find(row->key->choices);
        lines.push_back({row->depth - own->depth - (own->key->isList ? 1 : 0), row->key->key,
                         texts == model.choices.end() ? row->key->start : '"' + texts->second.front() + '"'});
    }
    return lines;
}

void PrepareReference() {
    Reference();
}

std::string DescribeField(ContentKind kind, const AskedFields& asks, std::int32_t ask) {
    const KeyModel& model = Reference();
    const std::int32_t record = RecordOf(model, kind, asks);
    if (record == kNone) {
        return {};
    }
    const std::string path = PlainPath(asks, ask);
    std::string text;
    for (const KeyRow& row : RowsOf(model, record, RowDetail::All).keys) {
        if (row.path != path) {
            continue;
        }
        text += (text.empty() ? "**" : "\n\n**") + path + "**  \n" + RowInWords(model, row);
        if (const auto texts = model.choices.find(row.key->choices); texts != model.choices.end()) {
            text += "  \n`" + texts->second.front() + '`';
            std::for_each(texts->second.begin() + 1, texts->second.end(),
                          [&](const std::string& choice) { text += ", `" + choice + '`'; });
        }
    }
    return text;
}

} // namespace Vorn
