#include "tools/kelvanekit/findingcodes.h"

#include "tools/kelvanekit/nearest.h"

#include <algorithm>
#include <vector>

namespace Vorn {

const FindingCode* FindCode(std::string_view name) {
    const auto* row = std::ranges::find(kFindingCodes, name, &FindingCode::name);
    return row == std::end(kFindingCodes) ? nullptr : row;
}

std::size_t IndexOf(const FindingCode& code) {
    return static_cast<std::size_t>(&code - kFindingCodes);
}

std::string_view SummaryOf(const FindingCode& code) {
    return code.explanation.substr(0, code.explanation.find('\n'));
}

std::string_view NearestCode(std::string_view name) {
    std::vector<std::u16string> names;
    for (const FindingCode& row : kFindingCodes) {
        names.emplace_back(row.name.begin(), row.name.end());
    }
    const std::vector<std::u16string_view> candidates(names.begin(), names.end());
    const std::size_t place = NearestOf(std::u16string(name.begin(), name.end()), candidates);
    return place == kNoneNear ? std::string_view() : kFindingCodes[place].name;
}

} // namespace Vorn
