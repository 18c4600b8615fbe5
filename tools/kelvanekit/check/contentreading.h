#pragma once

#include "tools/kelvanekit/check/textreader.h"

#include <optional>

namespace Vorn {

// The bytes of a content file of either form, read field by field, whatever is wrong with them.
class ContentReading {
public:
    // Names of other contents are looked up where `names` is not null. The bytes and the names must outlive it.
    ContentReading(ContentKind _kind, std::string_view _bytes, const KnownNames* _names);
    ContentReading(const ContentReading&) = delete;
    ContentReading& operator=(const ContentReading&) = delete;

    bool IsBinary() const { return !text; }

    // Whether nothing is wrong: the quick answer, for most files.
    bool IsFlawless() const;

    // Reads and notes all fields. False if nothing speaks for a content file.
    bool ReadFields(bool keepsValues);

    // What was read.
    FieldReader& Reader() { return *reader; }
    // The bytes of a field of a binary file, without those of the fields below it.
    std::string_view BytesOf(std::int32_t ask) const;

    // All findings, in the order of their places.
    Findings TakeFindings();

private:
    bool IsKept(const FieldReader& strict, LoadedContent& read, FileArchiveType form, std::string_view fields) const;
    void ReadHeader();
    bool IsForeign() const;
    void NoteForeign();
    Mends FindMends() const;
    void NoteEnd();
    void Add(const FindingCode* code, std::int32_t line, std::string message);

    const ContentKind kind;
    const std::string_view bytes;
    const KnownNames* const names;
    std::optional<SourceText> text;
    TextHeader header;
    Findings findings;
    std::optional<LoadedContent> content;
    std::unique_ptr<FieldReader> reader;
    bool isRead = false;
};

} // namespace Vorn
