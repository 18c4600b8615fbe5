#pragma once

#include "engine/archive/archiveform.h"
#include "engine/archive/filearchive.h"

namespace Vorn {

// The shipping form: the values alone, little-endian, with no label, tag, length or padding between them. A read past
// the end is reported for every scalar, which keeps its value.
//
// `Bytes` is their storage: Take copies elements out and returns how many were complete, TakeWhole returns the place of
// so many bytes or null, Put copies elements in, ReportShort reports elements that were missing.
template <class Bytes>
class ByteFileArchive : public ArchiveForm<ByteFileArchive<Bytes>, FileArchive> {
    using Form = ArchiveForm<ByteFileArchive<Bytes>, FileArchive>;

public:
    using Form::Read;
    using Form::Write;

    void Read(Label label, char16_t* buffer, int bufferSize) override;
    void Write(Label label, const char16_t* text, int bufferSize) override;

    template <WordValue Value>
    void ReadValue(Label label, Value& value);
    void ReadValue(Label label, std::int64_t& value);
    void ReadValue(Label label, Bool& value);
    void ReadValue(Label label, double& value);

    template <class Value>
    void WriteValue(Label label, const Value& value);

protected:
    ByteFileArchive(File* _file, bool _hasFloatBits, Bytes _bytes) : Form(_file, _hasFloatBits), bytes(_bytes) {}

    using Form::checkSum;
    using Form::CountIdleRead;

private:
    void ReportMissing();
    template <class Number>
    void ReadNumber(Number& number);
    template <class Number>
    void ReadNumberSlowly(Number& number);
    template <class Word, std::size_t N>
    void ReadWords(std::array<Word, N>& words);
    template <class Word, std::size_t N>
    std::array<Word, N> ReadWordsSlowly(std::array<Word, N> words);
    int ReadUnits(char16_t* units, int count);
    int SkipUnits(int count);

    Bytes bytes;
};

} // namespace Vorn
