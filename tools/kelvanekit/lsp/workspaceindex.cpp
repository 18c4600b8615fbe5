#include "tools/kelvanekit/lsp/workspaceindex.h"

#include "tools/kelvanekit/namelists.h"

#include <algorithm>

namespace Vorn {

void WorkspaceIndex::Walk(const std::vector<std::string>& folders) {
    *this = {};
    if (folders.empty()) {
        return;
    }
    SourceOptions options;
    options.names = folders;
    files = FindSources(options).files;
    const bool hasEntities = std::ranges::count(files, ContentKind::Entity, &SourceFile::kind) > 1;
    FindNames(files, [&](const std::u16string& name, const SourceFile& file) {
        definitions[static_cast<std::size_t>(NameKindOf(file.kind))].emplace(name, &file);
        if (file.kind != ContentKind::Entity || hasEntities) {
            AddName(name, file, names);
        }
    });
}

const SourceFile* WorkspaceIndex::Find(NameKind kind, std::u16string_view name) const {
    const auto found = Of(kind).find(std::u16string(name));
    return found == Of(kind).end() ? nullptr : found->second;
}

} // namespace Vorn
