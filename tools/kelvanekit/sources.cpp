#include "tools/kelvanekit/sources.h"

#include "tools/kelvanekit/filename.h"
#include "tools/kelvanekit/glob.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_set>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

class SourceFinder {
public:
    explicit SourceFinder(const SourceOptions& _options) : options(_options) {}

    Sources Find() {
        for (const std::string& name : options.names) {
            if (name == "-") {
                AddStandardInput();
            } else {
                AddNamed(name);
            }
        }
        if (hasOtherNames) {
            LeaveOutRepeated();
        }
        return std::move(sources);
    }

private:
    // Tells whether two files are one: by the canonical name, or where that is empty by the folder that was walked and
    // the name in it, which begins at `leaf`.
    struct Origin {
        const std::string* folder;
        std::size_t leaf;
        std::string canonical;
    };

    // What a folder has, by its name with that of the folder.
    struct Entry {
        std::string name;
        bool isLink;
        bool isFolder;
        bool isFile;
    };

    void AddStandardInput() {
        const std::optional<ContentKind> kind = options.type ? options.type : ContentKindOfFile(options.stdinName);
        if (!kind) {
            sources.problems.push_back("standard input: give its type by --type, or a name by --stdin-name");
        } else {
            AddFile({options.stdinName.empty() ? "<stdin>" : options.stdinName, *kind, true, 0}, {nullptr, 0, "-"});
        }
    }

    void AddNamed(const std::string& name) {
        std::error_code error;
        const fs::path path = PathOf(name);
        const fs::file_status status = fs::status(path, error);
        if (error || !fs::exists(status)) {
            AddProblem(name, error);
        } else if (fs::is_directory(status)) {
            const std::string identity = NameOf(fs::canonical(path, error));
            const bool endsFolder =
                name.ends_with('/') || name.ends_with(static_cast<char>(fs::path::preferred_separator));
            Walk(endsFolder ? name : name + '/', identity, name.size() + (endsFolder ? 0 : 1));
        } else if (!IsExcluded(name)) {
            const std::optional<ContentKind> kind = options.type ? options.type : ContentKindOfFile(name);
            if (!kind) {
                sources.problems.push_back(name + ": its ending tells no type; give it by --type");
                return;
            }
            // Pipes have no path of their own.
            const fs::path canonical = fs::canonical(path, error);
            AddFile({name, *kind, false, name.find_last_of("/\\") + 1}, {nullptr, 0, error ? name : NameOf(canonical)});
        }
    }

    // Takes the files below a folder; `prefix` is its name with a slash.
    void Walk(const std::string& prefix, const std::string& identity, std::size_t tail) {
        const auto [place, isNew] = folders.insert(identity);
        if (!isNew) {
            return;
        }
        const std::string& folder = *place;
        for (Entry& entry : EntriesOf(prefix)) {
            if (IsExcluded(entry.name)) {
                continue;
            }
            const std::optional<ContentKind> kind = ContentKindOfFile(entry.name);
            if (!entry.isFolder && (!kind || (options.type && options.type != kind))) {
                continue;
            }
            std::string own;
            if (entry.isLink) {
                std::error_code error;
                own = NameOf(fs::canonical(PathOf(entry.name), error));
                if (error) {
                    AddProblem(entry.name, error);
                    continue;
                }
            }
            if (entry.isFolder) {
                Walk(entry.name + '/', entry.isLink ? own : IdentityIn(folder, entry.name, prefix.size()), tail);
            } else if (entry.isFile) {
                AddFile({std::move(entry.name), *kind, false, tail}, {&folder, prefix.size(), std::move(own)});
            }
        }
    }

    std::vector<Entry> EntriesOf(const std::string& prefix) {
        std::vector<Entry> entries;
        std::error_code error;
        fs::directory_iterator listing(PathOf(prefix), error);
        while (!error && listing != fs::directory_iterator()) {
            std::error_code none;
            const bool isLink = listing->is_symlink(none);
            const bool isFolder = listing->is_directory(none);
            // A link that leads nowhere is reported when it is followed.
            entries.push_back({NameOf(listing->path()), isLink, isFolder, isLink || listing->is_regular_file(none)});
            listing.increment(error);
        }
        if (error) {
            AddProblem(prefix, error);
        }
        std::ranges::sort(entries, {}, &Entry::name);
        return entries;
    }

    bool IsExcluded(std::string_view name) const {
        return std::ranges::any_of(options.excludes,
                                   [&](const std::string& pattern) { return ExcludesName(pattern, name); });
    }

    void AddFile(SourceFile file, Origin origin) {
        hasOtherNames = hasOtherNames || !origin.canonical.empty();
        sources.files.push_back(std::move(file));
        origins.push_back(std::move(origin));
    }

    // The files of folders differ from each other, but not from those that were named or linked to.
    void LeaveOutRepeated() {
        std::unordered_set<std::string> seen;
        std::vector<SourceFile> files;
        for (std::size_t i = 0; i < origins.size(); ++i) {
            Origin& origin = origins[i];
            SourceFile& file = sources.files[i];
            if (origin.canonical.empty()) {
                origin.canonical = IdentityIn(*origin.folder, file.name, origin.leaf);
            }
            if (seen.insert(std::move(origin.canonical)).second) {
                files.push_back(std::move(file));
            }
        }
        sources.files = std::move(files);
    }

    static std::string IdentityIn(const std::string& folder, const std::string& name, std::size_t leaf) {
        return folder + static_cast<char>(fs::path::preferred_separator) + name.substr(leaf);
    }

    void AddProblem(const std::string& name, const std::error_code& error) {
        const std::error_code reason = error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
        sources.problems.push_back(name + ": " + reason.message());
    }

    const SourceOptions& options;
    Sources sources;
    // One for each file.
    std::vector<Origin> origins;
    // Some have canonical names.
    bool hasOtherNames = false;
    // The canonical names of those that were walked, which origins point to.
    std::unordered_set<std::string> folders;
};

} // namespace

Sources FindSources(const SourceOptions& options) {
    return SourceFinder(options).Find();
}

} // namespace Vorn
