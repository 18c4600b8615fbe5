#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace Vorn {

// Reads whole files one after the other into one buffer, which grows to the largest of them.
class InputFile {
public:
    // Reads a file or pipe to its end and returns an empty text, or the reason why it cannot be read.
    std::string Read(const std::string& name);
    std::string ReadStandardInput();

    // What was read last.
    std::string_view Bytes() const { return {buffer.get(), size}; }

private:
    std::string ReadAll(int descriptor);
    void Grow(std::size_t least);

    std::unique_ptr<char[]> buffer;
    std::size_t capacity = 0;
    std::size_t size = 0;
};

} // namespace Vorn
