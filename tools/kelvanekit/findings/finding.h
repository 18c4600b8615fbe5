#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

enum class Severity : std::uint8_t {
    // Something is lost or changed by a conversion.
    Error,
    // Probably meant otherwise.
    Warning,
    Note
};

// A kind of finding. The texts stand in findingcodes.cpp, one row a code.
struct FindingCode {
    // In words: "missing-key".
    std::string_view name;
    Severity severity;
    // What `--explain` tells: what is wrong, why it matters and how to repair it, with an example.
    std::string_view explanation;
};

// Where a finding lies in its file: a range of a text, or a place in a binary file.
struct FindingPlace {
    // The line, from 1; 0 for a binary file.
    std::int32_t line = 0;
    // Where the range begins and ends in its line, in bytes of the line as UTF-8, from 0.
    std::int32_t begin = 0;
    std::int32_t end = 0;
    // The place in a binary file in bytes.
    std::int64_t offset = -1;
};

// One mistake in a content file.
struct Finding {
    FindingPlace place;
    const FindingCode* code = nullptr;
    // The path of the key, "Weapon[1].WeaponType"; empty where no key is concerned. All texts are UTF-8.
    std::string key;
    // One sentence: what was wanted, what stands there, what a conversion makes of it.
    std::string message;
    // How to repair it; empty where nothing is known.
    std::string help;
    // What stands in place of the range when it is repaired, for editors; only where there is one clear cure.
    std::string replacement;
    bool hasReplacement = false;
};

using Findings = std::vector<Finding>;

} // namespace Vorn
