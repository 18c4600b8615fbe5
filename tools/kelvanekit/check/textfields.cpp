#include "tools/kelvanekit/check/textfields.h"

#include "tools/kelvanekit/check/contentreading.h"

#include <algorithm>

namespace Vorn {

std::int32_t TextFields::AskAt(std::int32_t line) const {
    const auto found = std::ranges::find(asks, line, &AskedField::line);
    return found == asks.end() ? kNone : static_cast<std::int32_t>(found - asks.begin());
}

TextFields ReadTextFields(ContentKind kind, std::string_view bytes) {
    ContentReading reading(kind, bytes, nullptr);
    TextFields fields;
    if (reading.IsBinary() || !reading.ReadFields(true)) {
        return fields;
    }
    fields.asks = reading.Reader().Asks();
    for (std::size_t ask = 0; ask < fields.asks.size(); ++ask) {
        if (fields.asks[ask].IsMissing()) {
            fields.missingValues.emplace(ask, Trimmed(reading.Reader().KeptValue(fields.asks[ask])));
        }
    }
    return fields;
}

} // namespace Vorn
