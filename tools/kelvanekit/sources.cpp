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
        return std::move(sources);
    }

private:
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
        } else if (seen.insert("-").second) {
            sources.files.push_back({options.stdinName.empty() ? "<stdin>" : options.stdinName, *kind, true, 0});
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
            AddFile(name, *kind, error ? name : NameOf(canonical), name.find_last_of("/\\") + 1);
        }
    }

    // Takes the files below a folder; `prefix` is its name with a slash.
    void Walk(const std::string& prefix, const std::string& identity, std::size_t tail) {
        if (!seen.insert(identity).second) {
            return;
        }
        for (const Entry& entry : EntriesOf(prefix)) {
            const std::string name = prefix + entry.name;
            if (IsExcluded(name)) {
                continue;
            }
            const std::optional<ContentKind> kind = ContentKindOfFile(entry.name);
            if (!entry.isFolder && (!kind || (options.type && options.type != kind))) {
                continue;
            }
            std::string own = identity + '/' + entry.name;
            if (entry.isLink) {
                std::error_code error;
                own = NameOf(fs::canonical(PathOf(name), error));
                if (error) {
                    AddProblem(name, error);
                    continue;
                }
            }
            if (entry.isFolder) {
                Walk(name + '/', own, tail);
            } else if (entry.isFile) {
                AddFile(name, *kind, own, tail);
            }
        }
    }

    std::vector<Entry> EntriesOf(const std::string& folder) {
        std::vector<Entry> entries;
        std::error_code error;
        fs::directory_iterator listing(PathOf(folder), error);
        while (!error && listing != fs::directory_iterator()) {
            std::error_code none;
            const bool isLink = listing->is_symlink(none);
            const bool isFolder = listing->is_directory(none);
            // A link that leads nowhere is reported when it is followed.
            entries.push_back(
                {NameOf(listing->path().filename()), isLink, isFolder, isLink || listing->is_regular_file(none)});
            listing.increment(error);
        }
        if (error) {
            AddProblem(folder, error);
        }
        std::ranges::sort(entries, {}, &Entry::name);
        return entries;
    }

    bool IsExcluded(std::string_view name) const {
        return std::ranges::any_of(options.excludes,
                                   [&](const std::string& pattern) { return ExcludesName(pattern, name); });
    }

    void AddFile(const std::string& name, ContentKind kind, const std::string& identity, std::size_t tail) {
        if (seen.insert(identity).second) {
            sources.files.push_back({name, kind, false, tail});
        }
    }

    void AddProblem(const std::string& name, const std::error_code& error) {
        const std::error_code reason = error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
        sources.problems.push_back(name + ": " + reason.message());
    }

    const SourceOptions& options;
    Sources sources;
    std::unordered_set<std::string> seen;
};

} // namespace

Sources FindSources(const SourceOptions& options) {
    return SourceFinder(options).Find();
}

} // namespace Vorn
