#include "tools/kelvanekit/glob.h"

namespace Vorn {

namespace {

// Takes a set like "[!a-c]" off the front of a pattern. False if there is none that is closed.
bool TakeSet(std::string_view& pattern, char character, bool& matches) {
    std::size_t i = 1;
    const bool inverted = i < pattern.size() && (pattern[i] == '!' || pattern[i] == '^');
    i += inverted ? 1 : 0;
    const std::size_t first = i;
    bool found = false;
    for (; i < pattern.size() && (pattern[i] != ']' || i == first); ++i) {
        if (i + 2 < pattern.size() && pattern[i + 1] == '-' && pattern[i + 2] != ']') {
            found = found || (pattern[i] <= character && character <= pattern[i + 2]);
            i += 2;
        } else {
            found = found || pattern[i] == character;
        }
    }
    if (i >= pattern.size()) {
        return false;
    }
    pattern.remove_prefix(i + 1);
    matches = found != inverted && character != '/';
    return true;
}

// Takes one character's worth off the front of a pattern that begins with no star.
bool TakeOne(std::string_view& pattern, char character) {
    bool matches = false;
    if (pattern.front() == '[' && TakeSet(pattern, character, matches)) {
        return matches;
    }
    matches = pattern.front() == '?' ? character != '/' : pattern.front() == character;
    pattern.remove_prefix(1);
    return matches;
}

// Where the matching goes on after a mismatch: the star takes one character more.
struct Retry {
    std::string_view pattern;
    std::string_view text;
    bool possible = false;
};

} // namespace

// A later star of a kind makes earlier ones of that kind needless to try again, so that the time is bounded by the
// product of three lengths.
bool MatchesGlob(std::string_view pattern, std::string_view text) {
    Retry star;
    Retry doubleStar;
    for (;;) {
        if (pattern.starts_with("**")) {
            pattern.remove_prefix(2);
            if (pattern.starts_with('/') && MatchesGlob(pattern.substr(1), text)) {
                return true;
            }
            doubleStar = {pattern, text, true};
            star.possible = false;
            continue;
        }
        if (pattern.starts_with('*')) {
            pattern.remove_prefix(1);
            star = {pattern, text, true};
            continue;
        }
        if (pattern.empty() && text.empty()) {
            return true;
        }
        if (!pattern.empty() && !text.empty() && TakeOne(pattern, text.front())) {
            text.remove_prefix(1);
            continue;
        }
        if (star.possible && !star.text.empty() && star.text.front() != '/') {
            star.text.remove_prefix(1);
            pattern = star.pattern;
            text = star.text;
        } else if (doubleStar.possible && !doubleStar.text.empty()) {
            doubleStar.text.remove_prefix(1);
            star.possible = false;
            pattern = doubleStar.pattern;
            text = doubleStar.text;
        } else {
            return false;
        }
    }
}

bool ExcludesName(std::string_view pattern, std::string_view name) {
    while (pattern.ends_with('/')) {
        pattern.remove_suffix(1);
    }
    if (pattern.find('/') == std::string_view::npos) {
        const std::size_t slash = name.find_last_of('/');
        return MatchesGlob(pattern, slash == std::string_view::npos ? name : name.substr(slash + 1));
    }
    while (!MatchesGlob(pattern, name)) {
        const std::size_t slash = name.find('/');
        if (slash == std::string_view::npos) {
            return false;
        }
        name.remove_prefix(slash + 1);
    }
    return true;
}

} // namespace Vorn
