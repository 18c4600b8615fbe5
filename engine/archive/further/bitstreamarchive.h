#pragma once

#include "engine/archive/archiveform.h"

#include <vector>

namespace Vorn {

// Network messages: no labels, and values of as many bits as their writer asks for, from the lowest bit of a byte and
// of a value upward. The only form that honours a bit count. A text has at most 255 units.
class BitStreamArchive final : public ArchiveForm<BitStreamArchive> {
public:
    BitStreamArchive();
    explicit BitStreamArchive(std::vector<unsigned char> _stream);
    ~BitStreamArchive() override;

    using ArchiveForm::Read;
    using ArchiveForm::Write;

    const std::vector<unsigned char>& GetStream() const { return stream; }

    // Goes back to the first bit.
    void Rewind();

    // A bit count of 0 or less transfers nothing, one above 32 counts as 32; bits past the end read as 0.
    void Read(Label label, std::uint32_t& value, int bitCount) override;
    void Write(Label label, const std::uint32_t& value, int bitCount) override;

    void Read(Label label, char16_t* buffer, int bufferSize) override;
    void Write(Label label, const char16_t* text, int bufferSize) override;

    template <WordValue Value>
    void ReadValue(Label label, Value& value);
    void ReadValue(Label label, Bool& value);
    // Numbers of 64 bits fire the check "false".
    template <class Wide>
    void ReadValue(Label label, Wide& value);

    template <WordValue Value>
    void WriteValue(Label label, const Value& value);
    void WriteValue(Label label, const Bool& value);
    template <class Wide>
    void WriteValue(Label label, const Wide& value);

private:
    std::uint32_t ReadBits(int bitCount);
    void WriteBits(std::uint32_t value, int bitCount);
    void NextBit();

    std::vector<unsigned char> stream;
    std::size_t currentPos = 0;
    int currentBit = 0;
};

} // namespace Vorn
