#include "tests/tools/kelvanekit/mistakes.h"

#include "tools/kelvanekit/check/textreader.h"

namespace Vorn {

SoundContent::SoundContent(ContentKind kind, std::string_view bytes) {
    const SourceText text(bytes);
    for (std::int32_t i = 0; i < text.LineCount(); ++i) {
        Line line;
        line.text = text.Line(i);
        line.indentation = line.text.substr(0, static_cast<std::size_t>(IndentationOf(line.text)));
        line.key = KeyOf(line.text);
        line.value = Trimmed(std::string_view(line.text).substr(line.indentation.size() + line.key.size()));
        line.end = i + 1;
        lines.push_back(line);
    }
    LoadedContent content(kind);
    TextHeader header;
    header.firstLine = 1;
    TextReader reader(text, header, TextReader::Mode::Noting, nullptr);
    reader.Read(content);
    const AskedFields& asks = reader.Asks();
    for (const AskedField& ask : asks) {
        Line& line = lines[static_cast<std::size_t>(ask.line)];
        line.kind = static_cast<int>(ask.kind);
        line.isEnum = ask.table != nullptr;
        line.isCount = ask.isCount;
        if (ask.list != kNone) {
            line.countLine = asks[static_cast<std::size_t>(ask.list)].line;
        }
        for (std::int32_t parent = ask.parent; parent != kNone;
             parent = asks[static_cast<std::size_t>(parent)].parent) {
            lines[static_cast<std::size_t>(asks[static_cast<std::size_t>(parent)].line)].end = ask.line + 1;
        }
    }
}

std::vector<Mistake> SoundContent::AllMistakes() const {
    std::vector<Mistake> mistakes;
    for (std::int32_t i = 1; i < static_cast<std::int32_t>(lines.size()); ++i) {
        AddLineMistakes(i, mistakes);
        AddValueMistakes(i, mistakes);
        AddListMistakes(i, mistakes);
    }
    mistakes.push_back({"no header", 0, 1, {}, {{0, true, ""}}});
    const auto end = static_cast<std::int32_t>(lines.size());
    mistakes.push_back({"content behind the end", end, 0, {"furtherKey 1"}, {{0, true, "furtherKey"}}});
    return mistakes;
}

void SoundContent::AddLineMistakes(std::int32_t i, std::vector<Mistake>& mistakes) const {
    const Line& line = lines[static_cast<std::size_t>(i)];
    const bool isRow = line.kind == static_cast<int>(FieldKind::Row);
    std::vector<MistakePlace> at = {{0, true, isRow ? "" : line.key}};
    if (line.countLine >= 0) {
        at.push_back({line.countLine, false, lines[static_cast<std::size_t>(line.countLine)].key});
    }
    // Which of a matrix' rows is missing or doubled cannot be known.
    for (std::int32_t k = 1; k < 4 && isRow; ++k) {
        at.push_back({k, true, ""});
    }
    mistakes.push_back({"dropped", i, 1, {}, at});
    at.push_back({1, true, isRow ? "" : line.key});
    mistakes.push_back({"doubled", i, 1, {line.text, line.text}, at});
    mistakes.push_back({"comment", i, 0, {line.indentation + "// tuned by hand"}, {{0, true, "//"}}});
    mistakes.push_back({"empty line", i, 0, {""}, {{0, true, ""}}});
    mistakes.push_back({"stray", i, 0, {line.indentation + "strayKey 12.500000"}, {{0, true, "strayKey"}}});
    if (i + 1 < static_cast<std::int32_t>(lines.size())) {
        const Line& next = lines[static_cast<std::size_t>(i) + 1];
        if (next.key != line.key) {
            mistakes.push_back({"swapped",
                                i,
                                2,
                                {next.text, line.text},
                                {{0, true, line.key}, {0, true, next.key}, {1, true, line.key}, {1, true, next.key}}});
        }
    }
    if (i + 4 < static_cast<std::int32_t>(lines.size()) && IsMovable(i, 4)) {
        const auto from = lines.begin() + i;
        mistakes.push_back({"moved",
                            i,
                            4,
                            {from[1].text, from[2].text, from[3].text, from[0].text},
                            {{0, true, line.key}, {3, true, line.key}}});
    }
    if (!isRow && line.key.size() > 3) {
        const auto with = [&](const char* mistake, std::string key) {
            if (key != line.key) {
                mistakes.push_back({mistake,
                                    i,
                                    1,
                                    {line.indentation + key + (line.value.empty() ? "" : " ") + line.value},
                                    {{0, true, line.key}, {0, true, key}}});
            }
        };
        std::string key = line.key;
        std::swap(key[1], key[2]);
        with("key with exchanged letters", key);
        with("key without a letter", line.key.substr(0, 2) + line.key.substr(3));
        key = line.key;
        key[0] = static_cast<char>(key[0] ^ 0x20);
        with("key in another case", key);
    }
}

// Whether some lines stand side by side and have different keys.
bool SoundContent::IsMovable(std::int32_t first, std::int32_t count) const {
    for (std::int32_t i = first; i < first + count; ++i) {
        const Line& line = lines[static_cast<std::size_t>(i)];
        const bool isPlain =
            line.end == i + 1 && line.indentation == lines[static_cast<std::size_t>(first)].indentation;
        for (std::int32_t k = first; k < i; ++k) {
            if (lines[static_cast<std::size_t>(k)].key == line.key) {
                return false;
            }
        }
        if (!isPlain || line.isCount || line.kind == static_cast<int>(FieldKind::Row)) {
            return false;
        }
    }
    return true;
}

void SoundContent::AddValue(const char* mistake, std::int32_t i, std::string value,
                            std::vector<Mistake>& mistakes) const {
    const Line& line = lines[static_cast<std::size_t>(i)];
    mistakes.push_back({mistake, i, 1, {line.indentation + line.key + ' ' + value}, {{0, true, line.key}}});
}

void SoundContent::AddValueMistakes(std::int32_t i, std::vector<Mistake>& mistakes) const {
    const Line& line = lines[static_cast<std::size_t>(i)];
    const auto add = [&](const char* mistake, std::string value) { AddValue(mistake, i, std::move(value), mistakes); };
    const std::string& value = line.value;
    switch (static_cast<FieldKind>(line.kind)) {
    case FieldKind::Float:
        add("decimal comma", "900,5");
        add("unit", value + "f");
        add("too large", "1e40");
        add("word", "much");
        break;
    case FieldKind::Int:
    case FieldKind::Uint:
        add("fraction", "1.5");
        add("rest", value + "x");
        add("number missing", "");
        add("too large", "99999999999");
        break;
    case FieldKind::Bool:
        add("small letters", value == "TRUE" ? "true" : "false");
        add("misspelt truth", value + "E");
        break;
    case FieldKind::Color:
        add("hash", "#" + value);
        add("many digits", "ff00ff00ff");
        break;
    case FieldKind::Text:
        add("no quotes", value == "\"\"" ? "none" : value.substr(1, value.size() - 2));
        add("one quote", value.substr(0, value.size() - 1));
        add("text behind", value + " further");
        add("quote inside", value.substr(0, value.size() - 1) + "\"s\"");
        if (!line.isEnum) {
            add("too long", '"' + std::string(400, 'n') + '"');
        } else if (value != "\"\"" && value.size() > 4) {
            std::string text = value;
            text[1] = static_cast<char>(text[1] ^ 0x20);
            add("text in another case", text);
            text = value;
            text.insert(2, 1, 'q');
            add("misspelt text", text);
            add("unknown text", "\"NothingOfTheKind\"");
        }
        break;
    case FieldKind::Rectangle:
    case FieldKind::Vector3:
        add("no bracket", value.substr(0, value.size() - 1));
        break;
    default:
        break;
    }
}

void SoundContent::AddListMistakes(std::int32_t i, std::vector<Mistake>& mistakes) const {
    const Line& line = lines[static_cast<std::size_t>(i)];
    if (line.isCount) {
        const int count = std::stoi(line.value);
        AddValue("count too high", i, std::to_string(count + 1), mistakes);
        if (count > 0) {
            AddValue("count too low", i, std::to_string(count - 1), mistakes);
        }
    }
    if (line.end == i + 1) {
        return;
    }
    std::vector<std::string> group;
    for (std::int32_t k = i; k < line.end; ++k) {
        group.push_back(lines[static_cast<std::size_t>(k)].text);
    }
    std::vector<MistakePlace> at = {{0, true, line.key}};
    if (line.countLine >= 0) {
        at.push_back({line.countLine, false, lines[static_cast<std::size_t>(line.countLine)].key});
    }
    mistakes.push_back({"group removed", i, line.end - i, {}, at});
    std::vector<std::string> twice = group;
    twice.insert(twice.end(), group.begin(), group.end());
    at.push_back({line.end - i, true, line.key});
    mistakes.push_back({"group doubled", i, line.end - i, twice, at});
}

std::string SoundContent::With(const std::vector<Mistake>& mistakes) const {
    std::string bytes;
    const auto put = [&](const std::string& line) { bytes += line + "\r\n"; };
    std::size_t place = 0;
    for (const Mistake& mistake : mistakes) {
        for (; place < static_cast<std::size_t>(mistake.line); ++place) {
            put(lines[place].text);
        }
        for (const std::string& line : mistake.added) {
            put(line);
        }
        place += static_cast<std::size_t>(mistake.removed);
    }
    for (; place < lines.size(); ++place) {
        put(lines[place].text);
    }
    return bytes;
}

std::int32_t SoundContent::LineOf(const MistakePlace& place, const Mistake& mistake, const std::vector<Mistake>& all) {
    std::int32_t line = place.line + (place.isRelative ? mistake.line : 0);
    const std::int32_t origin = place.isRelative ? mistake.line : place.line;
    for (const Mistake& other : all) {
        if (other.line < origin && &other != &mistake) {
            line += static_cast<std::int32_t>(other.added.size()) - other.removed;
        }
    }
    return line + 1;
}

} // namespace Vorn
