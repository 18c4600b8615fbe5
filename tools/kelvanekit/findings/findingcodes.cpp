#include "tools/kelvanekit/findings/findingcodes.h"

#include "tools/kelvanekit/findings/nearest.h"

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

std::string UnknownCode(std::string_view name) {
    std::vector<std::string_view> names;
    for (const FindingCode& row : kFindingCodes) {
        names.push_back(row.name);
    }
    return "no code '" + std::string(name) + "'" + DidYouMean(name, names);
}

} // namespace Vorn
