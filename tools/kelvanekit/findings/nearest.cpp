#include "tools/kelvanekit/findings/nearest.h"

#include "engine/string/utf8.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace Vorn {

namespace {

constexpr std::size_t kLongest = 255;

using Row = std::array<int, kLongest + 1>;

constexpr char16_t Lower(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

constexpr bool SameUnit(char16_t left, char16_t right) {
    return left == right;
}
constexpr bool SameLetter(char16_t left, char16_t right) {
    return Lower(left) == Lower(right);
}

// Fills one row a unit of `left`, each from the two above it, and gives up once a whole row is above the limit.
template <class Same>
int Distance(std::u16string_view left, std::u16string_view right, int limit, Same same) {
    left = left.substr(0, kLongest);
    right = right.substr(0, kLongest);
    const int tooFar = limit + 1;
    if (std::abs(static_cast<int>(left.size()) - static_cast<int>(right.size())) > limit) {
        return tooFar;
    }
    std::array<Row, 3> rows;
    for (std::size_t j = 0; j <= right.size(); ++j) {
        rows[0][j] = static_cast<int>(j);
    }
    for (std::size_t i = 1; i <= left.size(); ++i) {
        const Row& beforeAbove = rows[(i + 1) % 3];
        const Row& above = rows[(i + 2) % 3];
        Row& row = rows[i % 3];
        row[0] = static_cast<int>(i);
        int least = row[0];
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const int replaced = above[j - 1] + (same(left[i - 1], right[j - 1]) ? 0 : 1);
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, replaced});
            if (i > 1 && j > 1 && same(left[i - 1], right[j - 2]) && same(left[i - 2], right[j - 1])) {
                row[j] = std::min(row[j], beforeAbove[j - 2] + 1);
            }
            least = std::min(least, row[j]);
        }
        if (least > limit) {
            return tooFar;
        }
    }
    return std::min(rows[left.size() % 3][right.size()], tooFar);
}

} // namespace

int EditDistance(std::u16string_view left, std::u16string_view right, int limit) {
    return Distance(left, right, limit, SameUnit);
}

std::size_t NearestOf(std::u16string_view text, std::span<const std::u16string_view> candidates) {
    std::size_t nearest = kNoneNear;
    // Twice the edits, and one more where the case differs too.
    int least = 2 * static_cast<int>((std::min(text.size(), kLongest) + 1) / 3) + 2;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const std::u16string_view candidate = candidates[i];
        const int edits = Distance(text, candidate, (least - 1) / 2, SameLetter);
        const int weight = 2 * edits + (text == candidate ? 0 : 1);
        if (weight < least) {
            nearest = i;
            least = weight;
        }
    }
    return nearest;
}

std::string DidYouMean(std::string_view text, std::span<const std::string_view> candidates) {
    std::vector<std::u16string> wide;
    for (const std::string_view candidate : candidates) {
        wide.emplace_back(candidate.begin(), candidate.end());
    }
    const std::vector<std::u16string_view> views(wide.begin(), wide.end());
    const std::size_t place = NearestOf(NameFromBytes(text), views);
    return place == kNoneNear ? std::string() : "; did you mean `" + std::string(candidates[place]) + "`?";
}

} // namespace Vorn
