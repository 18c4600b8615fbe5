#include "tests/support/casesource.h"

#include "engine/archive/archiveversion.h"
#include "tests/support/binaryform.h"

#include <algorithm>
#include <stdexcept>

namespace Vorn {

namespace {

// The bytes of each line in a text file.
std::vector<std::string> TextFields(const Lines& lines) {
    std::vector<std::string> fields;
    for (const std::string& line : lines) {
        fields.push_back(line + "\r\n");
    }
    return fields;
}

// Text as pairs of bytes, or without the mark in front and with line feeds alone.
std::string Recoded(const std::string& text, const std::string& encoding) {
    std::string bytes;
    if (encoding.starts_with("utf16")) {
        for (const char16_t unit : Utf16(text)) {
            const char low = static_cast<char>(unit & 0xFF);
            const char high = static_cast<char>(unit >> 8);
            bytes += encoding == "utf16-little" ? std::string{low, high} : std::string{high, low};
        }
    } else if (encoding == "plain") {
        std::copy_if(text.begin() + 3, text.end(), std::back_inserter(bytes), [](char byte) { return byte != '\r'; });
    } else {
        throw std::runtime_error("no encoding " + encoding);
    }
    return bytes;
}

} // namespace

std::string Header(bool isBinary, const std::string& version) {
    if (version == "none") {
        return isBinary ? "BIN\n" : "\xEF\xBB\xBFTXT\r\n";
    }
    return isBinary ? "BIN2\n" + Bytes32(static_cast<std::uint32_t>(std::stoi(version)))
                    : "\xEF\xBB\xBFTXT2\r\nZephArchiveVersion " + version + "\r\n";
}

std::string Unescaped(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const char mark = text.size() > 1 && text[0] == '\\' ? text[1] : '\0';
        constexpr std::string_view kMarks = "rnt0\\";
        constexpr std::string_view kBytes("\r\n\t\0\\", 5);
        if (mark == 'x') {
            const char byte = static_cast<char>(std::stoi(std::string(text.substr(2, 2)), nullptr, 16));
            text.remove_prefix(4);
            std::size_t digits = 0;
            const bool isRepeated = text.starts_with('*');
            const std::size_t times = isRepeated ? std::stoul(std::string(text.substr(1)), &digits) : 1;
            bytes.append(times, byte);
            text.remove_prefix(isRepeated ? 1 + digits : 0);
        } else if (mark != '\0') {
            bytes += kBytes.at(kMarks.find(mark));
            text.remove_prefix(2);
        } else {
            bytes += text[0];
            text.remove_prefix(1);
        }
    }
    return bytes;
}

std::string Joined(const std::vector<std::string>& fields) {
    std::string bytes;
    for (const std::string& field : fields) {
        bytes += field;
    }
    return bytes;
}

std::vector<std::string> FieldsOf(bool isBinary, const Lines& lines) {
    return isBinary ? BinaryFields(lines) : TextFields(lines);
}

std::string CurrentHeader(bool isBinary) {
    return Header(isBinary, std::to_string(kArchiveVersion));
}

std::string InCurrentVersion(std::string_view text) {
    const std::size_t endOfHeader = text.find('\n', text.find('\n') + 1) + 1;
    return CurrentHeader(false).append(text.substr(endOfHeader));
}

Lines SplitFields(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find("\r\n"), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 2, text.size()));
    }
    return lines;
}

Lines SourceLines::Content() const {
    return {lines.begin() + static_cast<Lines::difference_type>(std::min(headerLines, lines.size())), lines.end()};
}

std::string SourceLines::MissingReport(std::string_view key, std::size_t lineNumber, std::size_t waiting) const {
    const std::size_t shown = std::min(waiting, lines.size() - 1);
    const bool ends = lastLineEnds || shown + 1 < lines.size();
    return std::string("Text FileArchive missing Label.") + "\n\nFile: source\nLabel: " + std::string(key) +
           "\nLine Number:" + std::to_string(lineNumber) + "\nLine Contents:" + lines[shown] + (ends ? "\n\n" : "\n");
}

bool IsOfTwoParts(const Edit& edit) {
    return edit.verb == "bare" || edit.verb == "overfill";
}

Edit SourcePart(const Edit& edit) {
    if (edit.verb == "overfill") {
        std::string_view paths = edit.rest;
        const std::string count(TakeWord(paths));
        return {"fill", std::to_string(std::stoul(count) + 1) + " " + std::string(paths), edit.added};
    }
    return edit.verb == "bare" ? Edit{"keep", edit.rest, edit.added} : edit;
}

Edit ResultPart(const Edit& edit) {
    if (edit.verb == "overfill") {
        return {"fill", edit.rest, edit.added};
    }
    return edit.verb == "bare" ? Edit{"blank-but", edit.rest, edit.added} : edit;
}

bool HasEdit(const Case& tested, std::string_view verb) {
    return std::any_of(tested.edits.begin(), tested.edits.end(),
                       [&](const SidedEdit& sided) { return sided.side == Side::In && sided.edit.verb == verb; });
}

bool HasSource(const Case& tested, bool isBinary) {
    const bool isWhole = std::none_of(tested.edits.begin(), tested.edits.end(), [](const SidedEdit& sided) {
        return sided.side == Side::In || IsOfTwoParts(sided.edit);
    });
    return isWhole || HasEdit(tested, "version") || HasEdit(tested, "binary") == isBinary;
}

const Lines& BaseOf(const CaseFile& file, const Case& tested) {
    const auto found = file.contents.find(tested.from);
    if (found == file.contents.end()) {
        throw std::runtime_error("no content " + tested.from);
    }
    return found->second;
}

Source::Source(const Case& tested, Lines _lines, bool _isBinary) : lines(std::move(_lines)), isBinary(_isBinary) {
    std::vector<const Edit*> byteEdits;
    for (const SidedEdit& sided : tested.edits) {
        if (sided.side != Side::Out && !ApplyEdit(SourcePart(sided.edit), lines)) {
            byteEdits.push_back(&sided.edit);
        }
    }
    header = CurrentHeader(isBinary);
    std::vector<std::string> fields = FieldsOf(isBinary, lines);
    for (const Edit* edit : byteEdits) {
        EditBytes(*edit, fields);
    }
    bytes = whole.value_or(header + Joined(fields));
    if (!encoding.empty()) {
        bytes = Recoded(bytes, encoding);
    }
}

SourceLines Source::AsLines() const {
    const auto headerLines = std::count(header.begin(), header.end(), '\n');
    return {SplitFields(bytes), static_cast<std::size_t>(headerLines), bytes.ends_with('\n')};
}

void Source::EditBytes(const Edit& edit, std::vector<std::string>& fields) {
    std::string_view rest = edit.rest;
    if (edit.verb == "version") {
        header = Header(isBinary, edit.rest);
    } else if (edit.verb == "header") {
        header = Unescaped(rest);
    } else if (edit.verb == "bytes") {
        std::string& field = fields.at(FindLine(lines, TakeWord(rest)));
        field = Unescaped(rest);
    } else if (edit.verb == "cut") {
        const std::size_t plus = std::min(rest.find('+'), rest.size());
        const std::size_t last = FindLine(lines, rest.substr(0, plus));
        const std::string count(rest.substr(std::min(plus + 1, rest.size())));
        fields.resize(last + 1);
        fields[last].resize(count.empty() ? 0 : std::stoul(count));
    } else if (edit.verb == "append") {
        fields.push_back(Unescaped(rest));
    } else if (edit.verb == "encoding") {
        encoding = rest;
    } else if (edit.verb == "whole") {
        whole = Unescaped(rest);
    } else if (edit.verb != "binary") {
        throw std::runtime_error("no edit " + edit.verb);
    }
}

} // namespace Vorn
