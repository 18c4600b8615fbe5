#include "tools/kelvanekit/convertplan.h"

#include "tools/kelvanekit/filename.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_map>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr std::string_view kSlashes = "/\\";
#else
constexpr std::string_view kSlashes = "/";
#endif

bool EndsInSlash(const std::string& name) {
    return !name.empty() && kSlashes.find(name.back()) != std::string_view::npos;
}

bool IsFolder(const std::string& name) {
    std::error_code error;
    return fs::is_directory(PathOf(name), error);
}

// Tells whether two names are of one file. The folder of a name is looked up once.
class FileIdentities {
public:
    std::string Of(const std::string& name) {
        const std::size_t slash = name.find_last_of(kSlashes);
        const std::size_t leaf = slash == std::string::npos ? 0 : slash + 1;
        return Folded(Folder(name.substr(0, leaf)) + '/' + name.substr(leaf));
    }

private:
    const std::string& Folder(const std::string& name) {
        const auto [found, isNew] = folders.try_emplace(name);
        if (isNew) {
            std::error_code error;
            const fs::path path = fs::weakly_canonical(fs::absolute(PathOf(name.empty() ? "." : name), error), error);
            found->second = error ? name : NameOf(path);
        }
        return found->second;
    }

    // Windows does not tell capitals from small letters.
    static std::string Folded(std::string name) {
#ifdef _WIN32
        std::ranges::transform(name, name.begin(), [](char letter) {
            return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        });
#endif
        return name;
    }

    std::unordered_map<std::string, std::string> folders;
};

std::string DestinationIn(const std::string& folder, const SourceFile& source) {
    // Standard input may be called by any path.
    const std::string_view tail =
        source.isStandardInput ? source.Tail().substr(source.Tail().find_last_of(kSlashes) + 1) : source.Tail();
    return folder + (EndsInSlash(folder) ? "" : "/") + std::string(tail);
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
    std::unordered_map<std::string, const SourceFile*> sourceOf;
    for (const SourceFile& source : sources) {
        if (!source.isStandardInput) {
            sourceOf.emplace(identities.Of(source.name), &source);
        }
    }
    std::unordered_map<std::string, const SourceFile*> writerOf;
    for (const SourceFile& source : sources) {
        const std::string& destination =
            plan.destinations.emplace_back(isFolder ? DestinationIn(output, source) : output);
        const std::string identity = identities.Of(destination);
        const auto [writer, isFree] = writerOf.emplace(identity, &source);
        const auto overwritten = sourceOf.find(identity);
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
