#include "tools/kelvanekit/convertplan.h"

#include "tools/kelvanekit/filename.h"
#include "tools/kelvanekit/namehash.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_map>
#include <unordered_set>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr std::string_view kSlashes = "/\\";

// Capitals are not told from small letters.
constexpr char Folded(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}
#else
constexpr std::string_view kSlashes = "/";

constexpr char Folded(char letter) {
    return letter;
}
#endif

bool IsSlash(char letter) {
    return kSlashes.find(letter) != std::string_view::npos;
}

// Where the last name begins.
std::size_t LeafOf(std::string_view name) {
    std::size_t leaf = name.size();
    while (leaf > 0 && !IsSlash(name[leaf - 1])) {
        --leaf;
    }
    return leaf;
}

bool EndsInSlash(const std::string& name) {
    return !name.empty() && IsSlash(name.back());
}

bool IsFolder(const std::string& name) {
    std::error_code error;
    return fs::is_directory(PathOf(name), error);
}

// Two are equal if they are of one file.
struct FileIdentity {
    bool operator==(const FileIdentity& other) const {
        return folder == other.folder && std::ranges::equal(leaf, other.leaf, {}, Folded, Folded);
    }

    // The number of the folder, and the name in it.
    std::size_t folder;
    std::string_view leaf;
};

struct FileIdentityHash {
    std::size_t operator()(const FileIdentity& identity) const {
        return static_cast<std::size_t>(HashOfName(identity.leaf, Folded) + identity.folder);
    }
};

// Each folder is looked up once.
class FileIdentities {
public:
    // Refers to the name.
    FileIdentity Of(std::string_view name) {
        const std::size_t leaf = LeafOf(name);
        const std::string_view folder = name.substr(0, leaf);
        // Files of one folder mostly follow each other.
        if (numbers.empty() || folder != last) {
            last = folder;
            const auto [found, isNew] = numbers.try_emplace(last);
            if (isNew) {
                found->second = folders.try_emplace(CanonicalName(last), folders.size()).first->second;
            }
            number = found->second;
        }
        return {number, name.substr(leaf)};
    }

private:
    static std::string CanonicalName(const std::string& folder) {
        std::error_code error;
        const fs::path path = fs::weakly_canonical(fs::absolute(PathOf(folder.empty() ? "." : folder), error), error);
        std::string name = error ? folder : NameOf(path);
        std::ranges::transform(name, name.begin(), Folded);
        return name;
    }

    std::unordered_map<std::string, std::size_t> numbers;
    // The numbers by the canonical names.
    std::unordered_map<std::string, std::size_t> folders;
    std::string last;
    std::size_t number = 0;
};

using FileMap = std::unordered_map<FileIdentity, const SourceFile*, FileIdentityHash>;

std::string DestinationIn(const std::string& folder, const SourceFile& source) {
    // Standard input may be called by any path.
    const std::string_view tail = source.Tail();
    std::string name = folder + (EndsInSlash(folder) ? "" : "/");
    name += source.isStandardInput ? tail.substr(LeafOf(tail)) : tail;
    return name;
}

std::string Quoted(const std::string& name) {
    return '\'' + name + '\'';
}

} // namespace

ConvertPlan PlanConversions(const std::vector<SourceFile>& sources, const std::vector<std::string>& names,
                            const std::string& output) {
    ConvertPlan plan;
    const bool isFolder =
        EndsInSlash(output) || IsFolder(output) || names.size() != 1 || std::ranges::any_of(names, IsFolder);
    FileIdentities identities;
    std::vector<FileIdentity> written;
    std::unordered_set<std::size_t> writtenFolders;
    // The identities refer to the destinations.
    plan.destinations.reserve(sources.size());
    for (const SourceFile& source : sources) {
        plan.destinations.push_back(isFolder ? DestinationIn(output, source) : output);
        written.push_back(identities.Of(plan.destinations.back()));
        writtenFolders.insert(written.back().folder);
    }
    FileMap sourceOf;
    for (const SourceFile& source : sources) {
        const FileIdentity identity = identities.Of(source.name);
        if (!source.isStandardInput && writtenFolders.contains(identity.folder)) {
            sourceOf.emplace(identity, &source);
        }
    }
    FileMap writerOf(sources.size());
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const SourceFile& source = sources[i];
        const std::string& destination = plan.destinations[i];
        const auto [writer, isFree] = writerOf.emplace(written[i], &source);
        const auto overwritten = sourceOf.find(written[i]);
        if (!isFree) {
            plan.problems.push_back(Quoted(writer->second->name) + " and " + Quoted(source.name) +
                                    " would both become " + Quoted(destination));
        } else if (overwritten != sourceOf.end() && overwritten->second != &source) {
            plan.problems.push_back(Quoted(source.name) + " would overwrite " + Quoted(overwritten->second->name) +
                                    ", which is to be converted too");
        }
    }
    return plan;
}

} // namespace Vorn
