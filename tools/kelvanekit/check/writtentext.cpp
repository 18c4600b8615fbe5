#include "tools/kelvanekit/check/writtentext.h"

#include "engine/archive/binaryfilearchive.h"
#include "engine/archive/textfilearchive.h"
#include "engine/string/utf8.h"
#include "tools/kelvanekit/check/readscope.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/check/valuescan.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr std::size_t kMarkSize = 3;

// Takes the next number or mark of a value.
std::string_view TakeToken(std::string_view& text) {
    text = Trimmed(text);
    const auto isMark = [](char byte) { return byte == '[' || byte == ']' || byte == ','; };
    std::size_t length = !text.empty() && isMark(text[0]) ? 1 : 0;
    while (length < text.size() && !isMark(text[0]) && !isMark(text[length]) && text[length] != ' ' &&
           text[length] != '\t') {
        ++length;
    }
    const std::string_view token = text.substr(0, length);
    text.remove_prefix(length);
    return token;
}

std::string_view WithoutZeros(std::string_view digits) {
    digits.remove_prefix(digits.starts_with("0x") || digits.starts_with("0X") ? 2 : digits.starts_with('+') ? 1 : 0);
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

bool IsSameToken(std::string_view left, std::string_view right) {
    return left == right || Lowered(WithoutZeros(left)) == Lowered(WithoutZeros(right)) ||
           (right.find('.') != std::string_view::npos && SameDecimal(left, right));
}

std::string_view TakeTextLine(std::string_view& text) {
    const std::size_t length = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return Trimmed(line);
}

// The checks of records while they are written repeat those of reading.
void WriteTo(WrittenFile& written, LoadedContent& content) {
    const DroppedReports reports;
    content.Write(written.GetArchive());
}

} // namespace

class WrittenFile::Stream final : public ByteStream {
public:
    explicit Stream(WrittenFile& _written) : written(_written) {}

    std::ptrdiff_t Read(void*, std::size_t) override { return -1; }
    bool Write(const void* part, std::size_t count) override {
        written.Keep({static_cast<const char*>(part), count});
        return true;
    }
    bool Close() override { return true; }

private:
    WrittenFile& written;
};

std::unique_ptr<ByteStream> WrittenFile::Store::Open(std::u16string_view, FileAccess) {
    return std::make_unique<Stream>(written);
}

WrittenFile::WrittenFile(FileArchiveType form, std::string_view _expected)
    : expected(_expected), markLeft(form == FileArchiveType::Text ? kMarkSize : 0) {
    if (form == FileArchiveType::Text) {
        const std::size_t end = expected.find('\n');
        dropsReturns = end != std::string_view::npos && !expected.substr(0, end).ends_with('\r');
        file = files.Open(u"written", FileAccess::Write, FileTranslation::Text);
        archive = std::make_unique<TextFileArchive>(file, false);
    } else {
        file = files.Open(u"written", FileAccess::Write, FileTranslation::Binary);
        archive = std::make_unique<BinaryFileArchive>(file, false);
    }
}

WrittenFile::~WrittenFile() {
    Finish();
}

void WrittenFile::Keep(std::string_view part) {
    const std::size_t ofMark = std::min(markLeft, part.size());
    markLeft -= ofMark;
    part.remove_prefix(ofMark);
    if (dropsReturns) {
        withoutReturns = part;
        std::erase(withoutReturns, '\r');
        part = withoutReturns;
    }
    if (bytes.empty() && part == expected.substr(agreed, part.size())) {
        agreed += part.size();
        return;
    }
    if (bytes.empty()) {
        const std::size_t line = expected.substr(0, agreed).rfind('\n') + 1;
        bytes.reserve(expected.size() - line);
        bytes = expected.substr(line, agreed - line);
        agreed = line;
    }
    bytes += part;
}

std::string& WrittenFile::Finish() {
    if (file != nullptr) {
        files.Close(std::exchange(file, nullptr));
    }
    return bytes;
}

// A line feed would begin another line, and the unit 0 end the text.
std::int32_t KeptValues::KeepText(std::u16string_view text) {
    std::u16string line(text);
    std::ranges::replace(line, u'\n', kReplacementUnit);
    written.GetArchive().Write({}, line.c_str(), static_cast<int>(line.size()) + 1);
    return count++;
}

std::string_view KeptValues::At(std::int32_t number) {
    if (lines.empty()) {
        std::string_view rest = written.Finish();
        while (!rest.empty()) {
            lines.push_back(TakeTextLine(rest));
        }
    }
    return number < 0 ? std::string_view() : lines[static_cast<std::size_t>(number)];
}

bool IsSameValue(std::string_view left, std::string_view right) {
    if (left == right) {
        return true;
    }
    if (right.starts_with('"')) {
        return false;
    }
    while (!left.empty() || !right.empty()) {
        if (!IsSameToken(TakeToken(left), TakeToken(right))) {
            return false;
        }
        left = Trimmed(left);
        right = Trimmed(right);
    }
    return true;
}

std::string WriteContent(LoadedContent& content) {
    WrittenFile written(FileArchiveType::Text);
    WriteTo(written, content);
    return std::move(written.Finish());
}

bool IsWrittenAs(LoadedContent& content, FileArchiveType form, std::string_view fields) {
    WrittenFile written(form, fields);
    WriteTo(written, content);
    const std::string_view other = written.Finish();
    const std::string_view rest = fields.substr(written.AgreedSize());
    return form == FileArchiveType::Text ? IsSameText(rest, other) : rest == other;
}

bool IsSameText(std::string_view left, std::string_view right) {
    while (!left.empty() && !right.empty()) {
        const std::string_view leftLine = TakeTextLine(left);
        const std::string_view rightLine = TakeTextLine(right);
        if (leftLine == rightLine) {
            continue;
        }
        const std::string_view leftKey = KeyOf(leftLine);
        const std::string_view rightKey = KeyOf(rightLine);
        if (leftKey != rightKey ||
            !IsSameValue(Trimmed(leftLine.substr(leftKey.size())), Trimmed(rightLine.substr(rightKey.size())))) {
            return false;
        }
    }
    return Trimmed(left).empty() && right.empty();
}

} // namespace Vorn
