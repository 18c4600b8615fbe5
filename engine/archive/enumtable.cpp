#include "engine/archive/enumtable.h"

#include "engine/core/reporting.h"

namespace Vorn {

namespace {
constexpr std::u16string_view kInvalidText = u"Invalid";
}

std::u16string_view EnumToText(std::int32_t value, const EnumTable& table) {
    if (value == kInvalidEnum) {
        return kInvalidText;
    }
    const bool isRow = value >= 0 && value < table.rowCount;
    CheckAssert(isRow, "false");
    return isRow ? table.rows[value] : std::u16string_view();
}

std::int32_t EnumFromText(std::u16string_view text, const EnumTable& table) {
    for (std::int32_t row = 0; row < table.rowCount; ++row) {
        if (table.rows[row] == text) {
            return row;
        }
    }
    if (text != kInvalidText) {
        ReportError(u"Failed to convert '%s' to a %s::enum value.\n", text, table.typeName);
    }
    return kInvalidEnum;
}

} // namespace Vorn
