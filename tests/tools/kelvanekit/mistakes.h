#pragma once

#include "tools/kelvane/contentkind.h"

#include <random>
#include <string>
#include <vector>

namespace Vorn {

// Where a mistake should be reported: a line of the content without mistakes or, if it is relative, one that is counted
// from the place of the mistake, both from 0.
struct MistakePlace {
    std::int32_t line;
    bool isRelative;
    std::string key;
};

// One mistake that an author could make: lines that are taken out and others that stand in their place.
struct Mistake {
    std::string kind;
    std::int32_t line;
    std::int32_t removed;
    std::vector<std::string> added;
    // Any of these is right.
    std::vector<MistakePlace> places;
};

// A content without mistakes as lines.
class SoundContent {
public:
    SoundContent(ContentKind kind, std::string_view bytes);

    // Each kind of mistake at each line that can have it.
    std::vector<Mistake> AllMistakes() const;

    // The bytes with some mistakes, which must be in the order of their lines and not overlap.
    std::string With(const std::vector<Mistake>& mistakes) const;

    // The line, from 1, that a place has in such bytes.
    static std::int32_t LineOf(const MistakePlace& place, const Mistake& mistake, const std::vector<Mistake>& all);

private:
    struct Line {
        std::string text;
        std::string indentation;
        std::string key;
        std::string value;
        int kind = -1;
        bool isEnum = false;
        bool isCount = false;
        // The line of the count of the list that it is in, itself or by a record around it.
        std::int32_t countLine = -1;
        std::int32_t entryBegin = -1;
        // Behind the last line of the group that it begins.
        std::int32_t end = 0;
    };

    bool IsMovable(std::int32_t first, std::int32_t count) const;
    void AddLineMistakes(std::int32_t i, std::vector<Mistake>& mistakes) const;
    void AddValueMistakes(std::int32_t i, std::vector<Mistake>& mistakes) const;
    void AddListMistakes(std::int32_t i, std::vector<Mistake>& mistakes) const;
    void AddValue(const char* mistake, std::int32_t i, std::string value, std::vector<Mistake>& mistakes) const;

    std::vector<Line> lines;
};

} // namespace Vorn
