#pragma once

#include "engine/archive/filearchive.h"

namespace Vorn {

// The shipping form: the values alone, little-endian, with no label, tag, length or padding between them. Behind the
// end every scalar is reported and keeps its value.
//
// `Bytes` is where they lie: Take copies elements out and returns how many were there whole, TakeWhole takes bytes
// where they lie or gives null, Put copies elements in, ReportShort tells of elements that were not there.
template <class Bytes>
class ByteFileArchive : public FileArchive {
public:
    using Archive::Read;
    using Archive::Write;

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

protected:
    ByteFileArchive(File* _file, bool _hasFloatBits, Bytes _bytes) : FileArchive(_file, _hasFloatBits), bytes(_bytes) {}

private:
    void ReportMissing();
    template <class Bits>
    void ReadBits(Bits& bits);
    template <class Bits>
    void ReadBitsSlowly(Bits& bits);
    template <class... Words>
    void ReadWords(Words&... words);
    template <class... Words>
    void ReadWordsSlowly(Words&... words);
    template <class... Floats>
    void ReadFloats(Floats&... floats);
    template <class... Ints>
    void ReadInts(Ints&... ints);
    template <class... Bits>
    void WriteBits(Bits... bits);
    int ReadUnits(char16_t* units, int count);
    int SkipUnits(int count);

    Bytes bytes;
};

} // namespace Vorn
