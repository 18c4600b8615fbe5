#include "engine/file/file.h"

#include "engine/core/reporting.h"
#include "engine/string/ascii.h"
#include "engine/string/utf8.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// Units that are encoded at a time; their bytes always fit into the buffer.
constexpr std::size_t kTextPiece = 4096;

// The first piece of a text, which does not end inside a surrogate pair.
std::u16string_view FirstPiece(std::u16string_view text) {
    std::u16string_view piece = text.substr(0, kTextPiece);
    if (piece.size() < text.size() && IsHighSurrogate(piece.back())) {
        piece.remove_suffix(1);
    }
    return piece;
}

// Encodes a text with CR LF for each line feed.
char* EncodeLines(char* out, std::u16string_view text) {
    for (;;) {
        const std::size_t lineFeed = text.find(u'\n');
        out = EncodeUtf8(out, text.substr(0, lineFeed));
        if (lineFeed == std::u16string_view::npos) {
            return out;
        }
        *out++ = '\r';
        *out++ = '\n';
        text.remove_prefix(lineFeed + 1);
    }
}

} // namespace

bool File::Open(FileStore& store, std::u16string_view fullName) {
    stream = store.Open(fullName, access);
    if (stream == nullptr) {
        return false;
    }
    if (access == FileAccess::Read) {
        input.Open(*stream);
        input.Ensure(1);
        if (input.HasFailed() && stream->IsDirectory()) {
            return false;
        }
    } else {
        output.Open(*stream);
        if (translation == FileTranslation::Text) {
            output.Put(kUtf8Mark.data(), kUtf8Mark.size());
        }
    }
    name.Assign(fullName);
    return true;
}

void File::PrintText(std::u16string_view text) {
    CheckAssert(translation == FileTranslation::Text, "translation == FileTranslation::Text");
    CheckAssert(PutText(text), "result >= 0");
}

char* File::BeginLineSlowly(int indentation) {
    CheckAssert(translation == FileTranslation::Text, "translation == FileTranslation::Text");
    const int tabs = std::clamp(indentation, 0, kMaxIndentation);
    bool written = true;
    char* out = output.Reserve(static_cast<std::size_t>(tabs) + kTabs.size() + kLineRoom, written);
    CheckAssert(written, "result >= 0");
    for (int put = 0; put < tabs; put += static_cast<int>(kTabs.size())) {
        std::memcpy(out + put, kTabs.data(), kTabs.size());
    }
    return out + tabs;
}

bool File::PutText(std::u16string_view text) {
    bool written = output.IsOpen();
    while (output.IsOpen() && !text.empty()) {
        const std::u16string_view piece = FirstPiece(text);
        bool flushed = true;
        char* out = output.Reserve(piece.size() * kMaxUtf8PerUnit, flushed);
        written = written && flushed;
        output.Commit(NarrowAscii(piece.data(), piece.size(), out) ? out + piece.size() : EncodeLines(out, piece));
        text.remove_prefix(piece.size());
    }
    return written;
}

bool File::GetString(StringBuffer line, int& length) {
    CheckAssert(translation == FileTranslation::Text, "translation == FileTranslation::Text");
    const LineKind kind = lines.ReadLine(line.m_Buffer, line.m_BufferSize, length);
    if (kind == LineKind::None) {
        if (input.HasFailed()) {
            ReportError(u"File GetString - Error Encountered. [ File = %s ]\n", name);
        }
        return true;
    }
    if (kind == LineKind::Open) {
        ReportOpenLine();
    }
    return false;
}

void File::ReportOpenLine() const {
    ReportErrorAt(u"Missing \n in %s\n\nThis is a mostly harmless error message usually caused by forgetting to hit "
                  u"enter at the end of the last line of the file",
                  name);
}

void File::ReportShortRead(int count, int result) const {
    ReportError(u"Failed to Read File '%s'. desired read bytes = %d, actual read bytes = %d.\n", name, count, result);
}

} // namespace Vorn
