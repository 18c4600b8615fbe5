#include "tests/support/tempfolder.h"

#include <fstream>
#include <iterator>
#include <random>

namespace Vorn {

TempFolder::TempFolder() {
    std::random_device random;
    do {
        path = std::filesystem::temp_directory_path() / ("kelvane-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path));
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

std::optional<std::string> ReadBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void WriteBytes(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

} // namespace Vorn
