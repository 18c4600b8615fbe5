#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace Vorn {

// The number of edits that make one text of the other: a unit put in, taken out or replaced, or two neighbours
// exchanged. Anything above `limit` gives limit + 1; texts of over 255 units are compared by their first 255.
int EditDistance(std::u16string_view left, std::u16string_view right, int limit);

inline constexpr std::size_t kNoneNear = static_cast<std::size_t>(-1);

// The place of the candidate that is most like `text`, the first among equals, or kNoneNear if all differ in more than
// a third of their units. Another case counts as less than any edit.
std::size_t NearestOf(std::u16string_view text, std::span<const std::u16string_view> candidates);

// "; did you mean `...`?" with the nearest of the candidates, all of them ASCII, or nothing.
std::string DidYouMean(std::string_view text, std::span<const std::string_view> candidates);

} // namespace Vorn
