#pragma once

#include "engine/archive/archivable.h"

#include <vector>

namespace Vorn {

// Network messages: no labels, and values of as many bits as their writer asks for, from the lowest bit of a byte and
// of a value upward. The only form that honours a bit count. A text has at most 255 units.
class BitStreamArchive final : public Archive {
public:
    BitStreamArchive() = default;
    explicit BitStreamArchive(std::vector<unsigned char> _stream) : stream(std::move(_stream)) {}

    const std::vector<unsigned char>& GetStream() const { return stream; }

    // Goes back to the first bit.
    void Rewind();

    // A count of 0 or less moves nothing, one over 32 acts as 32; bits behind the end read as 0.
    void Read(Label label, std::uint32_t& value, int bitCount) override;
    void Write(Label label, const std::uint32_t& value, int bitCount) override;

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
    std::uint32_t ReadBits(int bitCount);
    void WriteBits(std::uint32_t value, int bitCount);
    template <class... Words>
    void ReadWords(Words&... words);
    template <class... Words>
    void WriteWords(Words... words);
    void NextBit();

    std::vector<unsigned char> stream;
    std::size_t currentPos = 0;
    int currentBit = 0;
};

} // namespace Vorn
