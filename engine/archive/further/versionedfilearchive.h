#pragma once

#include "engine/archive/filearchivesystem.h"

namespace Vorn {

// A file, of settings for example, that is written again when its layout has changed. It is no archive itself but owns
// the content of one file. Open brings the file up to date and reads it.
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

    // Reads the file. One that is missing, that is no archive or that has another version is first written again,
    // keeping what can be read of the old one, and a log line is written. If even a new file cannot be opened, nothing
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
