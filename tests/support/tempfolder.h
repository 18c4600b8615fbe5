#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace Vorn {

// A new folder in the system's folder for temporary files. The destructor removes it with all its content.
class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::filesystem::path& Path() const { return path; }

private:
    std::filesystem::path path;
};

// The bytes of a file, or nothing if it cannot be read.
std::optional<std::string> ReadBytes(const std::filesystem::path& path);

void WriteBytes(const std::filesystem::path& path, std::string_view bytes);

} // namespace Vorn
