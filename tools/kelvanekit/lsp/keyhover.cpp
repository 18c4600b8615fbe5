#include "tools/kelvanekit/lsp/keyhover.h"

#include "engine/archive/enumtable.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/describe/describekeys.h"
#include "tools/kelvanekit/describe/keyrows.h"

#include <algorithm>

namespace Vorn {

namespace {

const KeyModel& Reference() {
    static const KeyModel model = DescribeKeys();
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
