#include "engine/archive/further/versionedfilearchive.h"

#include "engine/core/reporting.h"

namespace Vorn {

namespace {

constexpr Label kVersionLabel = u"Version";

std::uint32_t ReadVersion(Archive& archive) {
    std::uint32_t version = UINT32_MAX;
    archive.Read(kVersionLabel, version);
    return version;
}

} // namespace

VersionedFileArchive::VersionedFileArchive(FileArchiveSystem& _archives, std::u16string_view _fileName,
                                           FileArchiveType _archiveType, std::uint32_t _versionNumber)
    : archives(_archives), archiveType(_archiveType), versionNumber(_versionNumber) {
    fileName.Assign(_fileName);
}

void VersionedFileArchive::Open() {
    if (!IsExistingFile(fileName.View())) {
        LogLine(u"%s not found... New Version being created.\n", fileName);
        WriteNewFile();
    }
    FileArchive* archive = OpenIfReadable();
    if (archive == nullptr) {
        LogLine(u"%s failed to open... New Version being created.\n", fileName);
        archive = OpenNewFile();
    }
    if (archive == nullptr) {
        return;
    }
    std::uint32_t version = ReadVersion(*archive);
    if (IsOldVersion(version)) {
        LogLine(u"Detected old version of %s... New Version being created.\n", fileName);
        Read(*archive, version);
        archives.Close(archive);
        archive = OpenNewFile();
        if (archive == nullptr) {
            return;
        }
        version = ReadVersion(*archive);
        CheckAssert(version == versionNumber, "versionForFinalRead == versionNumber");
    }
    Read(*archive, version);
    archives.Close(archive);
}

// A file that cannot be opened is normal here and not reported.
FileArchive* VersionedFileArchive::OpenIfReadable() {
    NativeFile probe;
    const bool isReadable = probe.Open(fileName.View(), FileAccess::Read) && !probe.IsDirectory();
    return isReadable ? archives.OpenForRead(fileName.View(), false) : nullptr;
}

FileArchive* VersionedFileArchive::OpenNewFile() {
    WriteNewFile();
    return OpenIfReadable();
}

void VersionedFileArchive::WriteNewFile() {
    FileArchive* archive = archives.OpenForWrite(fileName.View(), false, archiveType);
    if (archive != nullptr) {
        archive->Write(kVersionLabel, versionNumber);
        Write(*archive);
        archives.Close(archive);
    }
}

} // namespace Vorn
