#include "tests/support/binaryform.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <stdexcept>

namespace Vorn {

namespace {

std::string FloatBytes(float number) {
    return Bytes32(std::bit_cast<std::uint32_t>(number));
}

std::string TextBytes(std::string_view text) {
    const std::u16string units = Utf16(text);
    std::string bytes = Bytes32(static_cast<std::uint32_t>(units.size()));
    for (const char16_t unit : units) {
        bytes += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
    }
    return bytes;
}

std::string NumberBytes(const std::string& number) {
    if (number.find_first_of(".n") != std::string::npos) {
        return FloatBytes(std::stof(number));
    }
    return Bytes32(static_cast<std::uint32_t>(std::stoll(number)));
}

// Red, green, blue and alpha, each as a part of 1.
std::string ColorBytes(const std::string& digits) {
    const unsigned long packed = std::stoul(digits, nullptr, 16);
    std::string bytes;
    for (const int shift : {16, 8, 0, 24}) {
        bytes += FloatBytes(static_cast<float>(packed >> shift & 0xFF) * 0.003921569f);
    }
    return bytes;
}

bool IsColor(std::string_view key) {
    return key.ends_with("olor") || key == "Diffuse" || key == "Ambient" || key == "Specular" || key == "Emissive";
}

// Numbers in brackets. A box of left, top, width and height has its right and bottom edge in the bytes.
std::string BracketBytes(std::string_view text) {
    std::vector<std::string> numbers;
    while (!text.empty()) {
        const std::string_view word = TakeWord(text);
        if (word.find_first_of("[],") == std::string_view::npos) {
            numbers.emplace_back(word);
        }
    }
    if (numbers.size() == 4) {
        for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
            numbers[i + 2] = std::to_string(std::stoll(numbers[i]) + std::stoll(numbers[i + 2]));
        }
    }
    std::string bytes;
    for (const std::string& number : numbers) {
        bytes += NumberBytes(number);
    }
    return bytes;
}

} // namespace

std::string Bytes32(std::uint32_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(number >> shift & 0xFF);
    }
    return bytes;
}

std::u16string Utf16(std::string_view text) {
    std::u16string units;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t code = length == 1 ? lead : lead & (0xFFu >> (length + 1));
        for (std::size_t k = 1; k < length; ++k) {
            code = code << 6 | (static_cast<unsigned char>(text.at(i + k)) & 0x3Fu);
        }
        if (code > 0xFFFF) {
            units += static_cast<char16_t>(0xD7C0 + (code >> 10));
            code = 0xDC00 + (code & 0x3FF);
        }
        units += static_cast<char16_t>(code);
        i += length;
    }
    return units;
}

std::string BinaryValue(std::string_view line) {
    const std::string_view key = KeyOfLine(line);
    const std::string value(ValueOf(line));
    if (key == "[") {
        return BracketBytes(value);
    }
    if (value.empty()) {
        return "";
    }
    if (value.front() == '"') {
        const std::size_t end = value.find('"', 1);
        return TextBytes(std::string_view(value).substr(1, end - 1));
    }
    if (value.front() == '[') {
        return BracketBytes(value);
    }
    if (value == "TRUE" || value == "FALSE") {
        return std::string(1, value == "TRUE" ? '\1' : '\0');
    }
    return IsColor(key) ? ColorBytes(value) : NumberBytes(value);
}

std::vector<std::string> BinaryFields(const Lines& lines) {
    std::vector<std::string> fields;
    for (const std::string& line : lines) {
        try {
            fields.push_back(BinaryValue(line));
        } catch (const std::exception&) {
            throw std::runtime_error("no binary form of: " + line);
        }
    }
    return fields;
}

} // namespace Vorn
