#pragma once

#include "engine/file/filebuffer.h"
#include "engine/file/linereader.h"
#include "engine/string/format.h"

#include <optional>

namespace Vorn {

enum class FileTranslation { Text = 0, Binary = 1 };

// A buffered file with the name it was opened under. Text files hold UTF-8 with a byte-order mark and CR LF on every
// platform and show 16-bit units and single line feeds. Opened and closed by FileSystem.
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

    // Prints a text as it stands; an unpaired surrogate becomes U+FFFD.
    void PrintText(std::u16string_view text);

    // A place in the buffer behind `indentation` tabs for the bytes of a line, at most `room` of them; CommitLine takes
    // what was put there up to `end`, and without it nothing is printed.
    char* BeginLine(int indentation, std::size_t room);
    void CommitLine(const char* end) { output->Commit(end); }

    // Reads a line into the buffer, line feed included; true at the end of the file, where the buffer keeps its
    // content. A line without its line feed, or one longer than the buffer, is reported and read as far as it goes.
    bool GetString(StringBuffer line) {
        int length = 0;
        return GetString(line, length);
    }

    // The same with the length of the line in code units, line feed included.
    bool GetString(StringBuffer line, int& length);

    // The bytes ahead of a reader that can do with UTF-8 text as it stands, with a 0 and ReadBuffer::kSlack bytes in
    // all behind the last one that is in the buffer; null where text is to be decoded. What it takes it skips; the
    // bytes stay until something else is read.
    const char* PeekText() const {
        return lines && lines->StandsAtByte() ? reinterpret_cast<const char*>(input->Cursor()) : nullptr;
    }
    void SkipText(std::size_t bytes) { input->Skip(bytes); }

    // Reads up to `count` elements and returns how many were there whole; fewer are reported. The bytes of a partial
    // element are consumed.
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
        if (input && input->Available() >= bytes) [[likely]] {
            std::memcpy(elements, input->Cursor(), bytes);
            input->Skip(bytes);
            return count;
        }
        return input ? static_cast<int>(input->Take(elements, bytes) / size) : 0;
    }

    // Reports a read of `count` elements that brought only `result`.
    void ReportShortRead(int count, int result) const;

    void Write(const void* elements, int elementSize, int count) {
        const std::size_t bytes = static_cast<std::size_t>(elementSize) * static_cast<std::size_t>(count);
        CheckAssert(output && output->Put(elements, bytes), "fileWriteResult == count");
    }

private:
    friend class FileSystem;

    File(FileAccess _access, FileTranslation _translation) : access(_access), translation(_translation) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() = default;

    bool Open(std::u16string_view fullName);
    bool Flush() { return !output || output->Flush(); }
    bool PutText(std::u16string_view text);

    NativeFile stream;
    FileAccess access;
    FileTranslation translation;
    FixedString<kNameCapacity> name;
    std::optional<ReadBuffer> input;
    std::optional<LineReader> lines;
    std::optional<WriteBuffer> output;
};

} // namespace Vorn
