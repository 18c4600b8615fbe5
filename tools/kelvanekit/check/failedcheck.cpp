#include "tools/kelvanekit/check/failedcheck.h"

#include "tools/kelvanekit/check/sourcetext.h"

#include <algorithm>

namespace Vorn {

namespace {

bool IsNamePart(char byte) {
    return byte == '_' || (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

std::string_view WithoutPrefix(std::string_view name) {
    return name.starts_with("m_") ? name.substr(2) : name;
}

// A sentence of a report has no operators.
bool IsSentence(std::string_view expression) {
    return expression.find_first_of("<>=!&|,") == std::string_view::npos && expression.find(' ') != std::string::npos;
}

} // namespace

bool SpeaksOf(std::string_view expression, std::u16string_view label, bool isCount) {
    const std::string key = Lowered(WithoutPrefix(ToUtf8(label)));
    if (IsSentence(expression)) {
        std::string squeezed = Lowered(expression);
        std::erase(squeezed, ' ');
        return isCount && key.starts_with("num") && squeezed.find(key.substr(3)) != std::string::npos;
    }
    for (std::size_t i = 0; i < expression.size();) {
        std::size_t end = i;
        while (end < expression.size() && IsNamePart(expression[end])) {
            ++end;
        }
        if (end > i && Lowered(WithoutPrefix(expression.substr(i, end - i))) == key) {
            return true;
        }
        i = end + 1;
    }
    return false;
}

std::string CheckMessage(std::string_view expression) {
    if (IsSentence(expression)) {
        return std::string(expression);
    }
    std::string shown(expression);
    for (std::size_t place = shown.find("m_"); place != std::string::npos; place = shown.find("m_", place)) {
        shown.erase(place, 2);
    }
    return expression == "false" ? "the value does not suit what it is used for"
                                 : "a check of the content fails: it wants `" + shown + '`';
}

} // namespace Vorn
