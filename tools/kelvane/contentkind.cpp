#include "tools/kelvane/contentkind.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr ContentKindRow kContentKinds[] = {
    {"mesh", ".mesh", ContentKind::Mesh},
    {"particle", ".particle", ContentKind::Particle},
    {"brushes", ".brushes", ContentKind::Brushes},
    {"entity", ".entity", ContentKind::Entity},
};

constexpr char Lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool HasEnding(std::string_view fileName, std::string_view ending) {
    if (fileName.size() <= ending.size()) {
        return false;
    }
    const std::string_view tail = fileName.substr(fileName.size() - ending.size());
    const char before = fileName[fileName.size() - ending.size() - 1];
    return before != '/' && before != '\\' &&
           std::ranges::equal(tail, ending, [](char left, char right) { return Lower(left) == right; });
}

} // namespace

std::span<const ContentKindRow> ContentKinds() {
    return kContentKinds;
}

std::string_view NameOf(ContentKind kind) {
    return kContentKinds[static_cast<std::size_t>(kind)].name;
}

std::optional<ContentKind> ContentKindNamed(std::string_view name) {
    const auto* row = std::ranges::find(kContentKinds, name, &ContentKindRow::name);
    return row == std::end(kContentKinds) ? std::nullopt : std::optional(row->kind);
}

std::optional<ContentKind> ContentKindOfFile(std::string_view fileName) {
    const auto* row = std::ranges::find_if(
        kContentKinds, [&](const ContentKindRow& candidate) { return HasEnding(fileName, candidate.ending); });
    return row == std::end(kContentKinds) ? std::nullopt : std::optional(row->kind);
}

} // namespace Vorn
