#pragma once

#include "engine/archive/filearchive.h"

#include <array>

namespace Vorn {

// The readable form: one line a field, label first, nested records indented. Reading is strictly sequential: each read
// demands that the current line begins with its label. A label that does not match is reported and leaves its field at
// the default, and the same line serves the next read; so a missing line costs one report, a stray one all behind it.
class TextFileArchive final : public FileArchive {
public:
    // Units of a line, terminator included; longer lines come in pieces when read and are cut when written.
    static constexpr int kLineCapacity = 1024;

    using Archive::Read;
    using Archive::Write;
    using FileArchive::FileArchive;

    void Read(Label label, Color& value) override;
    void Read(Label label, Rectangle& value) override;
    void Read(Label label, Size& value) override;
    void Read(Label label, Point& value) override;
    void Read(Label label, Quad& value) override;
    void Read(Label label, Matrix44& value) override;
    void Read(Label label, Matrix33& value) override;
    void Read(Label label, Vector3& value) override;
    void Read(Label label, char16_t* buffer, int bufferSize) override;
    void Read(Label label, std::int64_t& value) override;
    void Read(Label label, Bool& value) override;
    void Read(Label label, double& value) override;
    void Read(Label label, float& value) override;
    void Read(Label label, std::int32_t& value) override;
    void Read(Label label, std::uint32_t& value) override;
    void Read(Label label, SingleLineArchivable& value) override;
    void Read(Label label, Archivable& value, std::int32_t version) override;
    void Read(Label label, Archivable& value) override;

    void Write(Label label, const Color& value) override;
    void Write(Label label, const Rectangle& value) override;
    void Write(Label label, const Size& value) override;
    void Write(Label label, const Point& value) override;
    void Write(Label label, const Quad& value) override;
    void Write(Label label, const Matrix44& value) override;
    void Write(Label label, const Matrix33& value) override;
    void Write(Label label, const Vector3& value) override;
    void Write(Label label, const char16_t* text, int bufferSize) override;
    void Write(Label label, const std::int64_t& value) override;
    void Write(Label label, const Bool& value) override;
    void Write(Label label, const double& value) override;
    void Write(Label label, const float& value) override;
    void Write(Label label, const std::int32_t& value) override;
    void Write(Label label, const std::uint32_t& value) override;
    void Write(Label label, const SingleLineArchivable& value) override;
    void Write(Label label, const Archivable& value) override;

private:
    void TakeLine();
    void KeepPlainLine();
    template <class Scan>
    bool TakePlain(Label label, Scan scan);
    const char16_t* FindLabel(Label label);
    bool FindRecord(Label label);
    std::u16string_view RestOfLine(const char16_t* text) const;
    void ReportMissingLabel(Label label) const;
    void ReportMissingQuote(Label label) const;
    template <class Form, class Value>
    int ScanForm(Label label, Value& value);
    template <class Form, class Value, class Take>
    void ReadForm(Label label, const Value& start, int fields, Take take);
    template <class Form, class Value, class Take>
    void ReadFormSlowly(Label label, Value value, int fields, Take take);
    template <std::size_t N, class Take>
    void ReadFloats(Label label, const std::array<float, N>& start, Take take);
    template <std::size_t N>
    void ReadRow(float (&row)[N]);
    template <std::size_t N>
    void ReadRows(Label label, float (&rows)[N][N]);
    template <class... Ints>
    void AddInts(Ints... ints);
    template <class Put>
    void WriteLine(Label label, Put put);
    template <class Put>
    void WriteLineSlowly(Label label, Put put);
    template <std::size_t N>
    void WriteFloats(Label label, std::array<float, N> values);
    template <std::size_t N>
    void WriteRows(Label label, const float (&rows)[N][N]);

    std::int32_t m_TabDepth = 0;
    FixedString<kLineCapacity> currentLine;
    int currentLineLength = 0;
    std::int32_t lineNumber = 0;
    bool m_CurrentLineUnread = false;
    // Not where the current line waits, and not behind an idle read, whose end TakeLine has to see.
    bool takesPlainLines = true;
    // The line taken last, up to the place of the file, where it was taken straight from the file's bytes; the current
    // line is older then.
    const char* plainLine = nullptr;
};

} // namespace Vorn
