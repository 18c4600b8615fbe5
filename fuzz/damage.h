#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

using Random = std::mt19937_64;

// A stored content with one to four faults, of the kinds that a text editor, a disk or an attacker makes. At most
// kMostDamagedBytes long.
inline constexpr std::size_t kMostDamagedBytes = 1 << 16;
std::string Damage(std::string bytes, const std::vector<std::string>& corpus, Random& random);

// A content with each line left out, doubled or put in front of the one before it, and with single bits flipped: all of
// them, or as many as `mostFlips` evenly over the content.
std::vector<std::string> SystematicDamage(const std::string& bytes, std::size_t mostFlips);

} // namespace Vorn
