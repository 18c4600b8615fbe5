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

// Keeps what is written in a string, but for the first bytes.
class StringStream final : public ByteStream {
public:
    StringStream(std::string& _bytes, std::size_t _skipped) : bytes(_bytes), skipped(_skipped) {}

    std::ptrdiff_t Read(void*, std::size_t) override { return -1; }
    bool Write(const void* part, std::size_t count) override {
        const std::size_t left = std::min(skipped, count);
        bytes.append(static_cast<const char*>(part) + left, count - left);
        skipped -= left;
        return true;
    }
    bool Close() override { return true; }

private:
    std::string& bytes;
    std::size_t skipped;
};

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

} // namespace

std::unique_ptr<ByteStream> WrittenFile::Store::Open(std::u16string_view, FileAccess) {
    return std::make_unique<StringStream>(bytes, markSize);
}

WrittenFile::WrittenFile(FileArchiveType form, std::size_t expectedSize)
    : store(bytes, form == FileArchiveType::Text ? kMarkSize : 0) {
    bytes.reserve(expectedSize + expectedSize / 8);
    if (form == FileArchiveType::Text) {
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

std::string WriteContent(LoadedContent& content, FileArchiveType form, std::size_t expectedSize) {
    WrittenFile written(form, expectedSize);
    // The checks of records while they are written repeat those of reading.
    const DroppedReports reports;
    content.Write(written.GetArchive());
    return std::move(written.Finish());
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

bool IsSameText(std::string_view left, std::string_view right) {
    if (left == right) {
        return true;
    }
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
