#include "tools/kelvanekit/check/likeness.h"

#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/findings/nearest.h"

namespace Vorn {

bool IsLike(std::string_view key, Label label) {
    const std::u16string units = ToUnits(key);
    const std::u16string_view candidates[] = {label};
    return NearestOf(units, candidates) != kNoneNear ||
           (units.size() > label.size() && units.starts_with(label) && label.size() > 2);
}

bool IsLikeRow(std::string_view line) {
    return line.ends_with(']') && !line.empty() && (line[0] == '-' || (line[0] >= '0' && line[0] <= '9'));
}

bool FitsKind(std::string_view value, FieldKind kind) {
    value = Trimmed(value);
    const char first = value.empty() ? ' ' : value[0];
    switch (kind) {
    case FieldKind::Text:
        return first == '"';
    case FieldKind::Bool:
        return first == 'T' || first == 'F';
    case FieldKind::Record:
    case FieldKind::Matrix33:
    case FieldKind::Matrix44:
        return value.empty();
    case FieldKind::Color:
    case FieldKind::Int:
    case FieldKind::Uint:
    case FieldKind::Float:
        return first != '"' && first != '[' && first != 'T' && first != 'F' && first != ' ';
    default:
        return first == '[';
    }
}

} // namespace Vorn
