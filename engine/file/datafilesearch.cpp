#include "engine/core/reporting.h"
#include "engine/file/filesystem.h"

#include <algorithm>

namespace Vorn {

namespace {

#ifdef _WIN32
constexpr std::u16string_view kDataSourceFolder = u"..\\..\\DataSource";
#else
constexpr std::u16string_view kDataSourceFolder = u"../../DataSource";
#endif

std::u16string JoinPath(std::u16string_view folder, std::u16string_view name) {
    std::u16string path(folder);
    if (!path.empty() && path.back() != u'/' && path.back() != kPathSeparator) {
        path += kPathSeparator;
    }
    return path += name;
}

bool IsTooLong(std::u16string_view path) {
    return path.size() >= static_cast<std::size_t>(DataPath::kCapacity);
}

} // namespace

bool FileSystem::FindInFolder(DataPath& result, std::u16string_view folder, std::u16string_view fileName) const {
    const std::u16string candidate = JoinPath(folder, fileName);
    if (IsTooLong(candidate) || !Exists(candidate)) {
        return false;
    }
    result.Assign(candidate);
    return true;
}

// If the path in a folder is too long, all paths below it are, so that the depth is bounded.
bool FileSystem::FindInTree(DataPath& result, std::u16string_view folder, std::u16string_view fileName) const {
    if (FindInFolder(result, folder, fileName)) {
        return true;
    }
    if (IsTooLong(JoinPath(folder, fileName))) {
        return false;
    }
    const std::vector<std::u16string> subfolders = SubfoldersOf(folder);
    return std::any_of(subfolders.begin(), subfolders.end(), [&](const std::u16string& subfolder) {
        return FindInTree(result, JoinPath(folder, subfolder), fileName);
    });
}

bool FileSystem::FindDataFile(DataPath& result, std::u16string_view fileName, std::u16string_view subPath,
                              bool useModFolders, bool reportFailure) const {
    const auto isIn = [&](const DataPath& folder) {
        return FindInFolder(result, JoinPath(folder.View(), subPath), fileName);
    };
    if ((useModFolders && std::any_of(modFolders.begin(), modFolders.end(), isIn)) ||
        std::any_of(dataFolders.begin(), dataFolders.end(), isIn) ||
        FindInTree(result, JoinPath(kDataSourceFolder, subPath), fileName)) {
        return true;
    }
    if (reportFailure) {
        ReportError(u"Failed to find data file '%s'. (SubPath = %s)\n", fileName, subPath);
    }
    return false;
}

} // namespace Vorn
