#pragma once

#include "tools/kelvane/contentkind.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

// Which files a command works on.
struct SourceOptions {
    // Files and folders; "-" is standard input.
    std::vector<std::string> names;
    // The type of files that are named, whatever their ending; of folders, the files of that type alone are taken.
    std::optional<ContentKind> type;
    // Patterns of files and folders that are left out.
    std::vector<std::string> excludes;
    // What standard input is called; its ending tells the type.
    std::string stdinName;
};

// A file to work on.
struct SourceFile {
    // The name as messages show it, and as it is opened.
    std::string name;
    ContentKind kind = ContentKind::Entity;
    bool isStandardInput = false;
    // Where the name below the folder begins that was given on the command line; for a file that was named itself,
    // where its last name begins.
    std::size_t tail = 0;

    std::string_view Tail() const { return std::string_view(name).substr(tail); }
};

struct Sources {
    std::vector<SourceFile> files;
    // A sentence for each name that cannot be worked on.
    std::vector<std::string> problems;
};

// The files in the order of the names given, those of a folder in the order of their names, each file once. Links are
// followed; a folder that was walked already is not walked again.
Sources FindSources(const SourceOptions& options);

} // namespace Vorn
