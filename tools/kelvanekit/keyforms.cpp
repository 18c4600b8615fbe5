#include "tools/kelvanekit/keyforms.h"

namespace Vorn {

namespace {

constexpr KeyForm kForms[] = {
    {"text", PrintKeysAsText}, {"markdown", PrintKeysAsMarkdown},  {"html", PrintKeysAsHtml},
    {"json", PrintKeysAsJson}, {"words", PrintKeysAsWords, false},
};

} // namespace

std::span<const KeyForm> KeyForms() {
    return kForms;
}

} // namespace Vorn
