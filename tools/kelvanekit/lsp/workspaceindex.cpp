#include "tools/kelvanekit/lsp/workspaceindex.h"

#include "tools/kelvanekit/namelists.h"

namespace Vorn {

void WorkspaceIndex::Walk(const std::vector<std::string>& folders) {
    *this = {};
    if (folders.empty()) {
        return;
    }
    SourceOptions options;
    options.names = folders;
    files = FindSources(options).files;
    KnownNames names;
    AddContents(files, names, [&](NameKind kind, const std::u16string& name, const SourceFile& file) {
        places[static_cast<std::size_t>(kind)].emplace(name, NamePlace{file.name});
    });
}

const NamePlace* WorkspaceIndex::Find(NameKind kind, std::u16string_view name) const {
    const auto found = Of(kind).find(std::u16string(name));
    return found == Of(kind).end() ? nullptr : &found->second;
}

} // namespace Vorn
