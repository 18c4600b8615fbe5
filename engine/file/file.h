#pragma once

#include "engine/core/format.h"
#include "engine/file/filebuffer.h"
#include "engine/file/linereader.h"
#include "engine/string/fixedstring.h"
#include "engine/string/numbertext.h"
#include "engine/string/utf8.h"

namespace Vorn {

enum class FileTranslation { Text = 0, Binary = 1 };

// A buffered file with the name it was opened under. Text files contain UTF-8 with a byte-order mark and CR LF on every
// platform; the program sees 16-bit units and line feeds alone. Opened and closed by FileSystem.
class File {
public:
    // Units of the name that reports print, terminator included.
    static constexpr int kNameCapacity = 256;

    // Tabs that a line is indented by at most; no record nests that deep.
    static constexpr int kMaxIndentation = 1024;

    FileAccess GetAccess() const { return access; }
    FileTranslation GetTranslation() const { return translation; }
    const FixedString<kNameCapacity>& GetName() const { return name; }

    // Prints formatted text of at most 4095 units to a text file.
    template <class... Arguments>
    void Print(const char16_t* format, const Arguments&... arguments) {
        FixedString<4096> text;
        Format(text.Buffer(), format, arguments...);
        PrintText(text.View());
    }

    // Prints a text unchanged, except that an unpaired surrogate becomes U+FFFD.
    void PrintText(std::u16string_view text);

    // Bytes that may be written at a place from BeginLine: twice those of a line of 1024 units, and two numbers.
    static constexpr std::size_t kLineRoom = 2 * 1024 * kMaxUtf8PerUnit + 2 * kNumberTextCapacity;

    // A place in the buffer, after `indentation` tabs, for the bytes of a line. CommitLine prints what was written
    // there up to `end`; without it nothing is printed.
    VORN_ALWAYS_INLINE char* BeginLine(int indentation) {
        const auto tabs = static_cast<unsigned>(indentation);
        if (tabs > kTabs.size() || output.Room() < lineRoom + tabs) [[unlikely]] {
            return BeginLineSlowly(indentation);
        }
        std::memcpy(output.Cursor(), kTabs.data(), kTabs.size());
        return output.Cursor() + tabs;
    }
    void CommitLine(char* end) { output.Commit(end); }

    // Reads a line into the buffer, line feed included; true at the end of the file, where the buffer keeps its
    // content. A line without a line feed, or one longer than the buffer, is reported and read as far as possible.
    bool GetString(StringBuffer line) {
        int length = 0;
        return GetString(line, length);
    }

    // The same with the length of the line in code units, line feed included.
    bool GetString(StringBuffer line, int& length);

    // Whether the bytes from PeekText on are UTF-8 text, for readers that can use them directly.
    bool HasPlainText() const { return lines.StandsAtByte(); }

    // The next bytes, followed by ReadBuffer::kSlack more after the last one in the buffer, the first of them 0. The
    // reader skips what it has used. The bytes stay until something else is read.
    const char* PeekText() const { return reinterpret_cast<const char*>(input.Cursor()); }
    void SkipText(const char* end) { input.SkipTo(reinterpret_cast<const unsigned char*>(end)); }

    // The next bytes without skipping them: `count`, which is at most kFileBlock, or fewer at the end of the file.
    std::string_view PeekBytes(std::size_t count) {
        input.Ensure(count);
        return {PeekText(), std::min(count, input.Available())};
    }

    // The size in bytes of a file that is read; of one without a size, like a pipe, the bytes that were read so far.
    std::uint64_t GetSourceSize() const { return std::max(stream->GetSize(), input.BytesGiven()); }

    // Reports a line without its line feed.
    void ReportOpenLine() const;

    // Reads up to `count` elements and returns the number of complete ones; fewer are reported. The bytes of an
    // incomplete element are skipped.
    int Read(void* elements, int elementSize, int count) {
        const int result = TryRead(elements, elementSize, count);
        if (result != count) [[unlikely]] {
            ReportShortRead(count, result);
        }
        return result;
    }

    // Read without the report.
    int TryRead(void* elements, int elementSize, int count) {
        const auto size = static_cast<std::size_t>(elementSize);
        const std::size_t bytes = size * static_cast<std::size_t>(count);
        if (const unsigned char* place = TakeWhole(bytes)) [[likely]] {
            std::memcpy(elements, place, bytes);
            return count;
        }
        return static_cast<int>(input.Take(elements, bytes) / size);
    }

    // Skips the next bytes and returns their place if they are in the buffer, where they stay until something else is
    // read. Null if they are not; nothing is skipped then.
    const unsigned char* TakeWhole(std::size_t bytes) {
        const unsigned char* place = input.Cursor();
        if (input.Available() < bytes) [[unlikely]] {
            return nullptr;
        }
        input.Skip(bytes);
        return place;
    }

    // Reports a read of `count` elements that returned only `result`.
    void ReportShortRead(int count, int result) const;

    void Write(const void* elements, int elementSize, int count) {
        const std::size_t bytes = static_cast<std::size_t>(elementSize) * static_cast<std::size_t>(count);
        CheckAssert(output.Put(elements, bytes), "fileWriteResult == count");
    }

private:
    friend class FileSystem;

    File(FileAccess _access, FileTranslation _translation) : access(_access), translation(_translation) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() = default;

    bool Open(FileStore& store, std::u16string_view fullName);
    bool Flush() { return output.Flush(); }
    bool PutText(std::u16string_view text);
    char* BeginLineSlowly(int indentation);

    // Tabs are copied in pieces of fixed size, which is faster than to copy the exact number of a few.
    static constexpr std::string_view kTabs = "\t\t\t\t\t\t\t\t";

    std::unique_ptr<ByteStream> stream;
    FileAccess access;
    FileTranslation translation;
    ReadBuffer input;
    LineReader lines{input};
    WriteBuffer output;
    // In a binary file more than the buffer ever has, so that printing a line takes the slow path.
    std::size_t lineRoom = translation == FileTranslation::Text ? kTabs.size() + kLineRoom : SIZE_MAX / 2;
    FixedString<kNameCapacity> name;
};

} // namespace Vorn
