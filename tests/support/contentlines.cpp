#include "tests/support/contentlines.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace Vorn {

namespace {

using Offset = Lines::difference_type;

Lines::iterator At(Lines& lines, std::size_t index) {
    return lines.begin() + static_cast<Offset>(index);
}

Lines Block(const Lines& lines, std::size_t begin, std::size_t end) {
    return {lines.begin() + static_cast<Offset>(begin), lines.begin() + static_cast<Offset>(end)};
}

void SetText(std::string& line, std::string_view text) {
    line.replace(static_cast<std::size_t>(KeyOfLine(line).data() - line.data()), std::string::npos, text);
}

void SetValue(std::string& line, std::string_view value) {
    SetText(line, std::string(KeyOfLine(line)) + (value.empty() ? "" : " ") + std::string(value));
}

std::string Letters(std::size_t count) {
    std::string letters(count, '"');
    std::generate(letters.begin(), letters.end(), [n = 0]() mutable { return static_cast<char>('a' + n++ % 26); });
    return '"' + letters + '"';
}

struct Range {
    std::size_t begin;
    std::size_t end;
};

// Removes "PATH" or "PATH to PATH" from a text: the lines from the first one to the end of the last block.
Range TakeRange(const Lines& lines, std::string_view& rest) {
    const std::size_t begin = FindLine(lines, TakeWord(rest));
    if (!rest.starts_with("to ")) {
        return {begin, EndOfBlock(lines, begin)};
    }
    TakeWord(rest);
    return {begin, EndOfBlock(lines, FindLine(lines, TakeWord(rest)))};
}

void Drop(Lines& lines, std::string_view rest) {
    const Range range = TakeRange(lines, rest);
    lines.erase(At(lines, range.begin), At(lines, range.end));
}

void Rows(Lines& lines, std::string_view rest, const Lines& given) {
    const Range range = TakeRange(lines, rest);
    Lines block = Block(lines, range.begin, range.end);
    Lines rows;
    for (std::string_view words : given) {
        while (!words.empty()) {
            SetValue(block.at(FindLine(block, rest)), '"' + std::string(TakeWord(words)) + '"');
            rows.insert(rows.end(), block.begin(), block.end());
        }
    }
    lines.erase(At(lines, range.begin), At(lines, range.end));
    lines.insert(At(lines, range.begin), rows.begin(), rows.end());
}

void Fill(Lines& lines, std::string_view rest, const Lines& given) {
    const std::string letters = Letters(std::stoul(std::string(TakeWord(rest))));
    const auto fillAll = [&](std::string_view paths) {
        while (!paths.empty()) {
            SetValue(lines.at(FindLine(lines, TakeWord(paths))), letters);
        }
    };
    fillAll(rest);
    std::for_each(given.begin(), given.end(), fillAll);
}

// Whether a line has one of the keys that follow a verb.
class HasKey {
public:
    HasKey(std::string_view rest, const Lines& given) {
        Add(rest);
        for (const std::string& words : given) {
            Add(words);
        }
    }

    bool operator()(const std::string& line) const {
        return std::find(keys.begin(), keys.end(), KeyOfLine(line)) != keys.end();
    }

private:
    void Add(std::string_view words) {
        while (!words.empty()) {
            keys.push_back(TakeWord(words));
        }
    }

    std::vector<std::string_view> keys;
};

void Keep(Lines& lines, std::string_view rest, const Lines& given) {
    lines.erase(std::remove_if(lines.begin(), lines.end(), std::not_fn(HasKey(rest, given))), lines.end());
}

// Zeros in the same notation as a number, or as several in brackets.
std::string Zeros(std::string_view numbers) {
    if (numbers.starts_with('[')) {
        std::string zeros;
        while (!numbers.empty()) {
            const std::string_view word = TakeWord(numbers);
            const bool isNumber = word.find_first_of("0123456789") != std::string_view::npos;
            zeros += (zeros.empty() ? "" : " ") + (isNumber ? Zeros(word) : std::string(word));
        }
        return zeros;
    }
    return numbers.find('.') == std::string_view::npos ? "0" : "0.000000";
}

void BlankLine(std::string& line) {
    const std::string_view value = ValueOf(line);
    if (!value.empty()) {
        SetValue(line, value.front() == '"' ? "\"\"" : value == "TRUE" || value == "FALSE" ? "FALSE" : Zeros(value));
    }
}

void Blank(Lines& lines, std::string_view rest) {
    const Range range = TakeRange(lines, rest);
    std::for_each(At(lines, range.begin), At(lines, range.end), BlankLine);
}

void BlankOthers(Lines& lines, std::string_view rest, const Lines& given) {
    const HasKey hasKey(rest, given);
    for (std::string& line : lines) {
        if (!hasKey(line)) {
            BlankLine(line);
        }
    }
}

void Add(Lines& lines, std::string_view rest, const Lines& added) {
    const bool isAfter = TakeWord(rest) == "after";
    const std::size_t at = FindLine(lines, rest) + (isAfter ? 1 : 0);
    lines.insert(At(lines, at), added.begin(), added.end());
}

void Swap(Lines& lines, std::string_view rest) {
    const std::size_t first = FindLine(lines, TakeWord(rest));
    const std::size_t second = FindLine(lines, rest);
    const Lines later = Block(lines, second, EndOfBlock(lines, second));
    const Lines earlier = Block(lines, first, EndOfBlock(lines, first));
    lines.erase(At(lines, second), At(lines, second + later.size()));
    lines.insert(At(lines, second), earlier.begin(), earlier.end());
    lines.erase(At(lines, first), At(lines, first + earlier.size()));
    lines.insert(At(lines, first), later.begin(), later.end());
}

void Repeat(Lines& lines, std::string_view rest) {
    const Range range = TakeRange(lines, rest);
    const Lines block = Block(lines, range.begin, range.end);
    for (int i = std::stoi(std::string(rest)); i > 1; --i) {
        lines.insert(At(lines, range.begin), block.begin(), block.end());
    }
}

} // namespace

std::size_t DepthOf(std::string_view line) {
    return std::min(line.find_first_not_of('\t'), line.size());
}

std::string_view KeyOfLine(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of("\t "), line.size()));
    return line.substr(0, line.find(' '));
}

std::string_view ValueOf(std::string_view line) {
    const std::string_view key = KeyOfLine(line);
    line.remove_prefix(static_cast<std::size_t>(key.data() - line.data()) + key.size());
    return line.substr(std::min<std::size_t>(1, line.size()));
}

std::string_view TakeWord(std::string_view& text) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    return word;
}

std::size_t FindLine(const Lines& lines, std::string_view path) {
    if (path == "end") {
        return lines.size();
    }
    std::size_t index = 0;
    for (std::string_view rest = path;;) {
        const std::string_view step = rest.substr(0, rest.find('/'));
        const std::size_t mark = std::min(step.find('#'), step.size());
        int number = mark < step.size() ? std::stoi(std::string(step.substr(mark + 1))) : 1;
        while (index < lines.size() && (KeyOfLine(lines[index]) != step.substr(0, mark) || --number > 0)) {
            ++index;
        }
        if (index == lines.size()) {
            throw std::runtime_error("no line " + std::string(path));
        }
        if (step.size() == rest.size()) {
            return index;
        }
        rest.remove_prefix(step.size() + 1);
        ++index;
    }
}

std::string PathOf(const Lines& lines, std::size_t index) {
    if (index == lines.size()) {
        return "end";
    }
    const auto hasKey = [&](const std::string& line) { return KeyOfLine(line) == KeyOfLine(lines[index]); };
    const auto number = 1 + std::count_if(lines.begin(), lines.begin() + static_cast<Offset>(index), hasKey);
    const std::string key(KeyOfLine(lines[index]));
    if (number == 1) {
        return key;
    }
    for (std::size_t owner = index, depth = DepthOf(lines[index]); owner-- > 0 && depth > 0;) {
        if (DepthOf(lines[owner]) < depth) {
            depth = DepthOf(lines[owner]);
            const std::string path = PathOf(lines, owner) + "/" + key;
            if (FindLine(lines, path) == index) {
                return path;
            }
        }
    }
    return key + "#" + std::to_string(number);
}

std::size_t EndOfBlock(const Lines& lines, std::size_t index) {
    const std::size_t depth = index < lines.size() ? DepthOf(lines[index]) : 0;
    for (++index; index < lines.size() && DepthOf(lines[index]) > depth;) {
        ++index;
    }
    return std::min(index, lines.size());
}

bool ApplyEdit(const Edit& edit, Lines& lines) {
    std::string_view rest = edit.rest;
    if (edit.verb == "drop") {
        Drop(lines, rest);
    } else if (edit.verb == "add") {
        Add(lines, rest, edit.added);
    } else if (edit.verb == "swap") {
        Swap(lines, rest);
    } else if (edit.verb == "repeat") {
        Repeat(lines, rest);
    } else if (edit.verb == "rows") {
        Rows(lines, rest, edit.added);
    } else if (edit.verb == "fill") {
        Fill(lines, rest, edit.added);
    } else if (edit.verb == "keep") {
        Keep(lines, rest, edit.added);
    } else if (edit.verb == "blank-but") {
        BlankOthers(lines, rest, edit.added);
    } else if (edit.verb == "blank") {
        Blank(lines, rest);
    } else {
        const auto line = [&]() -> std::string& { return lines.at(FindLine(lines, TakeWord(rest))); };
        if (edit.verb == "set") {
            std::string& changed = line();
            SetValue(changed, rest);
        } else if (edit.verb == "line") {
            std::string& changed = line();
            SetText(changed, rest);
        } else if (edit.verb == "drop-label") {
            lines.erase(At(lines, FindLine(lines, rest)));
        } else {
            return false;
        }
    }
    return true;
}

} // namespace Vorn
