#include "fuzz/corpus.h"

#include "tests/support/casesource.h"
#include "tests/support/tempfolder.h"

#include <algorithm>

namespace Vorn {

namespace fs = std::filesystem;

void Corpus::Load(const fs::path& path) {
    std::vector<fs::path> paths;
    if (fs::is_directory(path)) {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
            if (entry.is_regular_file()) {
                paths.push_back(entry.path());
            }
        }
        std::sort(paths.begin(), paths.end());
    } else {
        paths.push_back(path);
    }
    std::for_each(paths.begin(), paths.end(), [this](const fs::path& file) { LoadFile(file); });
}

void Corpus::LoadFile(const fs::path& path) {
    if (path.extension() != ".cases") {
        AddSound(ReadBytes(path).value());
        return;
    }
    const CaseFile file(path, KELVANE_SAMPLES);
    for (const bool isBinary : {false, true}) {
        for (const auto& [name, lines] : file.contents) {
            AddSound(CurrentHeader(isBinary) + Joined(FieldsOf(isBinary, lines)));
        }
        for (const Case& tested : file.cases) {
            if (HasSource(tested, isBinary)) {
                Add(Source(tested, BaseOf(file, tested), isBinary).Bytes());
            }
        }
    }
}

void Corpus::Add(const std::string& bytes) {
    all.push_back(bytes);
}

void Corpus::AddSound(const std::string& bytes) {
    Add(bytes);
    sound.push_back(bytes);
}

} // namespace Vorn
