#pragma once

#include "engine/archive/filearchivesystem.h"

namespace Vorn {

// A file like one of settings that is made anew when its layout has changed: no archive itself, but the owner of one
// file's content. Open brings the file up to date and reads it.
class VersionedFileArchive {
public:
    // The name holds at most 255 units; the type is Text or Binary.
    VersionedFileArchive(FileArchiveSystem& _archives, std::u16string_view _fileName, FileArchiveType _archiveType,
                         std::uint32_t _versionNumber);
    VersionedFileArchive(const VersionedFileArchive&) = delete;
    VersionedFileArchive& operator=(const VersionedFileArchive&) = delete;
    virtual ~VersionedFileArchive() = default;

    virtual bool IsOldVersion(std::uint32_t version) const { return version != versionNumber; }
    // Reads the content of a file of any version.
    virtual void Read(Archive& archive, std::uint32_t version) = 0;
    virtual void Write(Archive& archive) const = 0;

    // Reads the file. One that is missing, that is no archive or that has another version is written anew first, with
    // what could be taken over from the old one; a log line tells of it. Where even a new file does not open, nothing
    // is read.
    void Open();

private:
    FileArchive* OpenIfReadable();
    FileArchive* OpenNewFile();
    void WriteNewFile();

    FileArchiveSystem& archives;
    FixedString<256> fileName;
    FileArchiveType archiveType;
    std::uint32_t versionNumber;
};

} // namespace Vorn
