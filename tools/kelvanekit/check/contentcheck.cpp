#include "tools/kelvanekit/check/contentcheck.h"

#include "engine/archive/archiveheader.h"
#include "tools/kelvanekit/check/contentreading.h"

#include <algorithm>

namespace Vorn {

bool IsBinaryContent(std::string_view bytes) {
    return bytes.size() >= kBinaryMarkSize && std::equal(kBinaryHeader, kBinaryHeader + kBinaryMarkSize,
                                                         reinterpret_cast<const unsigned char*>(bytes.data()));
}

Findings CheckContent(ContentKind kind, std::string_view bytes, const CheckOptions& options) {
    ContentReading reading(kind, bytes, options.names);
    if (reading.IsFlawless()) {
        return {};
    }
    reading.ReadFields(false);
    return reading.TakeFindings();
}

} // namespace Vorn
