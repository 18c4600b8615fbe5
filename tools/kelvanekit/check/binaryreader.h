#pragma once

#include "tools/kelvanekit/check/fieldreader.h"

#include <array>

namespace Vorn {

// Runs a list of fields against the bytes of a binary file. The first field that is not there ends it.
class BinaryReader final : public FieldReaderForm<BinaryReader> {
public:
    BinaryReader(std::string_view _bytes, Mode _mode, const KnownNames* _names);

    // Bytes of a field that was read, without those of the fields below it.
    std::string_view BytesOf(std::int32_t ask) const;

    std::string_view ValueOf(const AskedField& field) const override { return KeptValue(field); }
    FindingPlace PlaceOf(const AskedField& field) const override { return {0, 0, 0, field.offset}; }

    using FieldReaderForm::Read;
    void Read(Label label, char16_t* buffer, int bufferSize) override;

    // Reads one kind of value, for FieldReaderForm.
    template <class Value>
    void ReadOne(Label label, Value& value);
    template <class Word, std::size_t N>
    void ReadWords(Label label, FieldKind kind, std::array<Word, N>& words);
    bool BeginGroup(Label label, FieldKind kind);

private:
    void ReadAll(LoadedContent& content) override;
    void AtAbnormalEnd() override;

    void Begin(Label label, FieldKind kind);
    template <class Scalar>
    void Take(Scalar& value);
    [[noreturn]] void NoteShort(const FindingCode* code, std::string message);
    void NoteFault(const FindingCode* code, std::string message);
    std::int32_t CountOf(std::int32_t count);
    void CheckText(std::u16string_view text);

    const std::string_view bytes;
    std::size_t place = 0;
    Label fieldLabel;
};

} // namespace Vorn
