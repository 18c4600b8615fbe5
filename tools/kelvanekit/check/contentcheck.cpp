#include "tools/kelvanekit/check/contentcheck.h"

#include "tools/kelvanekit/check/contentreading.h"

namespace Vorn {

Findings CheckContent(ContentKind kind, std::string_view bytes, const CheckOptions& options) {
    ContentReading reading(kind, bytes, options.names);
    if (reading.IsFlawless()) {
        return {};
    }
    reading.ReadFields(false);
    return reading.TakeFindings();
}

} // namespace Vorn
