#pragma once

#include <string_view>

namespace Vorn {

// The parts of a path, the same on every platform: both slashes separate folders, a single letter and a colon at the
// start are a drive, and the extension begins at the last dot of the rest. The parts together are the path again.
struct PathParts {
    std::u16string_view drive;
    std::u16string_view folder;
    std::u16string_view stem;
    std::u16string_view extension;
};

PathParts SplitPath(std::u16string_view path);

// What follows drive and folders.
std::u16string_view FileNameOf(std::u16string_view path);

} // namespace Vorn
