#include "engine/file/path.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr std::u16string_view kSlashes = u"/\\";

bool HasDrive(std::u16string_view path) {
    return path.size() >= 2 && path[1] == u':' && kSlashes.find(path[0]) == std::u16string_view::npos;
}

} // namespace

PathParts SplitPath(std::u16string_view path) {
    PathParts parts;
    if (HasDrive(path)) {
        parts.drive = path.substr(0, 2);
        path.remove_prefix(2);
    }
    const std::size_t folderEnd = path.find_last_of(kSlashes) + 1;
    parts.folder = path.substr(0, folderEnd);
    path.remove_prefix(folderEnd);
    const std::size_t dot = std::min(path.rfind(u'.'), path.size());
    parts.stem = path.substr(0, dot);
    parts.extension = path.substr(dot);
    return parts;
}

std::u16string_view FileNameOf(std::u16string_view path) {
    const PathParts parts = SplitPath(path);
    return path.substr(parts.drive.size() + parts.folder.size());
}

} // namespace Vorn
