#pragma once

#include "engine/archive/archiveform.h"
#include "engine/file/filesystem.h"

#include <string>

namespace Vorn {

// Keeps a log of all write calls in a file of its own: for each a tag, the label and the value. Replay repeats the
// calls on another archive. It reads nothing: reads of Int, Uint, Value and Record fire the check "false", the others
// do nothing.
class CacheArchive final : public ArchiveForm<CacheArchive> {
public:
    explicit CacheArchive(FileSystem& _fileSystem);
    ~CacheArchive() override;

    // All that is written until CloseWriteFile goes into this file. It is made writable first; the check "bResult ==
    // TRUE" fires if that fails, also for a file that is not there yet. False, after a report, if the file cannot be
    // opened; then all writes are dropped.
    bool OpenWriteFile(std::u16string_view fileName);
    void CloseWriteFile();

    // Makes the calls that the file holds on `target`, up to its end or to an unknown tag. False, after a report, if
    // the file cannot be opened.
    bool Replay(std::u16string_view fileName, Archive& target);

    using ArchiveForm::Read;
    using ArchiveForm::Write;

    void Read(Label label, char16_t* buffer, int bufferSize) override;
    void Read(Label label, SingleLineArchivable& value) override;
    void Read(Label label, Archivable& value, std::int32_t version) override;
    void Read(Label label, Archivable& value) override;
    void Write(Label label, const char16_t* text, int bufferSize) override;
    void Write(Label label, const Archivable& value) override;

    template <class Value>
    void ReadValue(Label label, Value& value);
    template <class Value>
    void WriteValue(Label label, const Value& value);

private:
    class Player;
    class ArchivableNode;

    enum class Tag : std::uint32_t;
    template <class Kind>
    static constexpr Tag TagOf();

    void PutText(std::u16string_view text);
    void PutTag(Tag tag, Label label);

    FileSystem& fileSystem;
    File* writeFile = nullptr;
};

} // namespace Vorn
