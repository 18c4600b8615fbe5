#include "fuzz/damage.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace Vorn {

namespace {

std::size_t Below(Random& random, std::size_t bound) {
    return bound == 0 ? 0 : random() % bound;
}

struct Span {
    std::size_t start;
    std::size_t length;
};

std::vector<Span> LinesOf(std::string_view bytes) {
    std::vector<Span> lines;
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', start), bytes.size() - 1) + 1;
        lines.push_back({start, end - start});
        start = end;
    }
    return lines;
}

Span SomeSpan(const std::string& bytes, Random& random) {
    const std::size_t start = Below(random, bytes.size() + 1);
    return {start, Below(random, std::min<std::size_t>(bytes.size() - start, 64) + 1)};
}

Span SomeLine(const std::string& bytes, Random& random) {
    const std::vector<Span> lines = LinesOf(bytes);
    return lines.empty() ? Span{0, 0} : lines[Below(random, lines.size())];
}

void Duplicate(std::string& bytes, Span span, Random& random) {
    bytes.insert(Below(random, 2) == 0 ? span.start : Below(random, bytes.size() + 1),
                 bytes.substr(span.start, span.length));
}

void FlipBit(std::string& bytes, Random& random) {
    if (!bytes.empty()) {
        bytes[Below(random, bytes.size())] ^= static_cast<char>(1 << Below(random, 8));
    }
}

// Counts, lengths and limits at their edges.
void PutNumber(std::string& bytes, Random& random) {
    static constexpr std::uint32_t kNumbers[] = {0,          1,           2,          79,         80,
                                                 127,        128,         255,        256,        1000,
                                                 100000,     0x00010000,  0x20000000, 0x7FFFFFFF, 0x80000000,
                                                 0xFFFFFFFF, 0x7F800000u, 0x7FC00001, 0xFF7FFFFF, 0x00000001};
    const std::uint32_t number = kNumbers[Below(random, std::size(kNumbers))];
    const std::size_t digit = bytes.find_first_of("0123456789", Below(random, bytes.size() + 1));
    if (Below(random, 2) == 0 && digit != std::string::npos) {
        const std::size_t end = std::min(bytes.find_first_not_of("0123456789.", digit), bytes.size());
        bytes.replace(digit, end - digit, std::to_string(static_cast<std::int32_t>(number)));
    } else if (bytes.size() >= sizeof number) {
        std::memcpy(&bytes[Below(random, bytes.size() - sizeof number + 1)], &number, sizeof number);
    }
}

void Insert(std::string& bytes, Random& random) {
    static constexpr std::string_view kParts[] = {
        "\"",       "\n",          "\r\n", "\t",   "%s%%n",        "TRUE",
        "[",        "1e39",        "nan",  "-inf", "\xED\xA0\x80", "\xF0\x9F\x9A\x80",
        "\xFF\xFE", "\xEF\xBB\xBF"};
    std::string part(kParts[Below(random, std::size(kParts))]);
    const std::size_t times = Below(random, 20) == 0 ? 1 + Below(random, 2000) : 1;
    const std::size_t at = Below(random, bytes.size() + 1);
    for (std::size_t i = 0; i < times; ++i) {
        bytes.insert(at, part);
    }
    if (Below(random, 4) == 0) {
        bytes.insert(at, 1, static_cast<char>(random()));
    }
}

} // namespace

std::string Damage(std::string bytes, const std::vector<std::string>& corpus, Random& random) {
    for (std::size_t faults = 1 + Below(random, 4); faults > 0; --faults) {
        const Span span = Below(random, 2) == 0 ? SomeSpan(bytes, random) : SomeLine(bytes, random);
        switch (Below(random, 8)) {
        case 0:
            bytes.erase(span.start, span.length);
            break;
        case 1:
            Duplicate(bytes, span, random);
            break;
        case 2:
            bytes.resize(Below(random, bytes.size() + 1));
            break;
        case 3: {
            const std::string& other = corpus[Below(random, corpus.size())];
            bytes = bytes.substr(0, span.start) + other.substr(Below(random, other.size() + 1));
            break;
        }
        case 4:
            Insert(bytes, random);
            break;
        case 5:
        case 6:
            PutNumber(bytes, random);
            break;
        default:
            FlipBit(bytes, random);
            break;
        }
    }
    bytes.resize(std::min(bytes.size(), kMostDamagedBytes));
    return bytes;
}

std::vector<std::string> SystematicDamage(const std::string& bytes, std::size_t mostFlips) {
    std::vector<std::string> damaged;
    Span previous = {0, 0};
    for (const Span& line : LinesOf(bytes)) {
        const std::string text = bytes.substr(line.start, line.length);
        damaged.push_back(std::string(bytes).erase(line.start, line.length));
        damaged.push_back(std::string(bytes).insert(line.start, text));
        damaged.push_back(std::string(bytes).erase(line.start, line.length).insert(previous.start, text));
        previous = line;
    }
    const std::size_t bits = bytes.size() * 8;
    const std::size_t step = bits / std::max<std::size_t>(mostFlips, 1) + 1;
    for (std::size_t bit = 0; bit < bits; bit += step) {
        damaged.push_back(bytes);
        damaged.back()[bit / 8] ^= static_cast<char>(1 << bit % 8);
    }
    return damaged;
}

} // namespace Vorn
