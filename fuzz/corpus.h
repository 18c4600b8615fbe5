#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Vorn {

// Contents to start from: files, and the sources of cases.
struct Corpus {
    // Adds all files below a folder, or one file. A file of cases stands for its contents and sources.
    void Load(const std::filesystem::path& path);

    std::vector<std::string> all;
    // Those that nothing is wrong with.
    std::vector<std::string> sound;

private:
    void LoadFile(const std::filesystem::path& path);
    void Add(const std::string& bytes);
    void AddSound(const std::string& bytes);
};

} // namespace Vorn
