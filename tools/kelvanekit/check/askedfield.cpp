#include "tools/kelvanekit/check/askedfield.h"

#include "tools/kelvanekit/check/sourcetext.h"

namespace Vorn {

std::string PathOf(const AskedFields& asks, std::int32_t ask) {
    if (ask < 0 || ask >= static_cast<std::int32_t>(asks.size())) {
        return {};
    }
    const AskedField& field = asks[static_cast<std::size_t>(ask)];
    if (field.kind == FieldKind::Row) {
        return PathOf(asks, field.parent) + '[' + std::to_string(field.entry) + ']';
    }
    std::string key = ToUtf8(field.label);
    if (field.entry != kNone) {
        key += '[' + std::to_string(field.entry) + ']';
    }
    return PathBelow(asks, field.parent, key);
}

std::string PathBelow(const AskedFields& asks, std::int32_t parent, std::string_view key) {
    std::string path = PathOf(asks, parent);
    return path.empty() ? std::string(key) : path + '.' + std::string(key);
}

} // namespace Vorn
