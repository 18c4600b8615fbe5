#pragma once

#include "engine/archive/archiveform.h"
#include "engine/archive/textlines.h"

#include <array>

namespace Vorn {

// The readable form: one line a field, label first, nested records indented. A line that is written holds at most 1023
// units after its indentation; a longer one is cut.
class TextFileArchive final : public ArchiveForm<TextFileArchive, TextLines> {
public:
    TextFileArchive(File* _file, bool _hasFloatBits);
    ~TextFileArchive() override;

    using ArchiveForm::Read;
    using ArchiveForm::Write;

    void Read(Label label, char16_t* buffer, int bufferSize) override;
    void Read(Label label, Archivable& value, std::int32_t version) override;
    void Read(Label label, Archivable& value) override;
    void Write(Label label, const char16_t* text, int bufferSize) override;
    void Write(Label label, const Archivable& value) override;

    void ReadValue(Label label, Color& value);
    void ReadValue(Label label, Rectangle& value);
    void ReadValue(Label label, std::int64_t& value);
    void ReadValue(Label label, Bool& value);
    void ReadValue(Label label, double& value);
    void ReadValue(Label label, float& value);
    template <MatrixValue Value>
    void ReadValue(Label label, Value& value);
    // Vectors, pairs and whole numbers.
    template <WordValue Value>
    void ReadValue(Label label, Value& value);

    void WriteValue(Label label, const Color& value);
    void WriteValue(Label label, const Rectangle& value);
    void WriteValue(Label label, const std::int64_t& value);
    void WriteValue(Label label, const Bool& value);
    void WriteValue(Label label, const double& value);
    void WriteValue(Label label, const float& value);
    template <MatrixValue Value>
    void WriteValue(Label label, const Value& value);
    template <WordValue Value>
    void WriteValue(Label label, const Value& value);

private:
    bool FindRecord(Label label);
    template <class Form, class Value>
    int ScanForm(Label label, Value& value);
    template <class Form, class Value>
    bool ReadForm(Label label, Value& value, int fields);
    template <std::size_t N>
    bool ReadFloatBits(Label label, std::array<float, N>& values);
    template <class Put>
    void WriteLine(Label label, Put put);
    template <class Put>
    void WriteLineSlowly(Label label, Put put);
    template <std::size_t N>
    void WriteFloats(Label label, const std::array<float, N>& values);

    std::int32_t m_TabDepth = 0;
};

} // namespace Vorn
