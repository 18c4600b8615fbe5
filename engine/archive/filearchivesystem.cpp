#include "engine/archive/filearchivesystem.h"

#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"
#include "engine/archive/binaryfilearchive.h"
#include "engine/archive/textfilearchive.h"
#include "engine/core/reporting.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr int kHeaderSize = sizeof kBinaryHeader;

using HeaderLine = FixedString<kHeaderLineCapacity>;

FileTranslation TranslationOf(FileArchiveType type) {
    return type == FileArchiveType::Text ? FileTranslation::Text : FileTranslation::Binary;
}

} // namespace

FileArchiveSystem::~FileArchiveSystem() {
    CheckAssert(fileArchiveCount == 0, "fileArchiveCount == 0");
}

FileArchive* FileArchiveSystem::OpenForRead(std::u16string_view fileName, bool hasFloatBits) {
    bool hasVersion = false;
    const FileArchiveType type = DetectType(fileName, hasVersion);
    if (type == FileArchiveType::Unknown) {
        ReportErrorAt(u"Could not detect if Archive File is Binary or Text: %s", fileName);
        return nullptr;
    }
    File* file = fileSystem.Open(fileName, FileAccess::Read, TranslationOf(type));
    if (file == nullptr) {
        return nullptr;
    }
    SkipHeader(*file, type, hasVersion);
    FileArchive* archive = Create(file, type, hasFloatBits);
    if (hasVersion) {
        std::int32_t version = Archive::kNoVersion;
        archive->Read(kVersionLabel, version);
        archive->SetVersion(version);
    }
    return archive;
}

FileArchive* FileArchiveSystem::OpenForWrite(std::u16string_view fileName, bool hasFloatBits, FileArchiveType type) {
    if (type == FileArchiveType::Steam) {
        return Create(nullptr, type, hasFloatBits);
    }
    File* file = fileSystem.Open(fileName, FileAccess::Write, TranslationOf(type));
    if (file == nullptr) {
        return nullptr;
    }
    WriteHeader(file, type);
    FileArchive* archive = Create(file, type, hasFloatBits);
    if (archive != nullptr) {
        archive->Write(kVersionLabel, kArchiveVersion);
    }
    return archive;
}

void FileArchiveSystem::Close(FileArchive*& archive) {
    if (archive != nullptr) {
        fileSystem.Close(archive->GetFile());
        Destroy(archive);
    }
}

void FileArchiveSystem::Destroy(FileArchive*& archive) {
    if (archive != nullptr) {
        delete archive;
        archive = nullptr;
        --fileArchiveCount;
        CheckAssert(fileArchiveCount >= 0, "fileArchiveCount >= 0");
    }
}

FileArchive* FileArchiveSystem::Create(File* file, FileArchiveType type, bool hasFloatBits) {
    ++fileArchiveCount;
    FileArchive* archive = Make(file, type, hasFloatBits);
    CheckAssert(archive != nullptr, "false");
    if (archive != nullptr) {
        archive->SetContext(&context);
    }
    return archive;
}

FileArchive* FileArchiveSystem::Make(File* file, FileArchiveType type, bool hasFloatBits) const {
    switch (type) {
    case FileArchiveType::Text:
        return new TextFileArchive(file, hasFloatBits);
    case FileArchiveType::Binary:
        return new BinaryFileArchive(file, hasFloatBits);
    case FileArchiveType::Steam:
        return remoteStorage != nullptr ? remoteStorage->Make(hasFloatBits) : nullptr;
    default:
        return nullptr;
    }
}

FileArchiveType FileArchiveSystem::DetectType(std::u16string_view fileName, bool& hasVersion) {
    if (DetectBinary(fileName, hasVersion)) {
        return FileArchiveType::Binary;
    }
    return DetectText(fileName, hasVersion) ? FileArchiveType::Text : FileArchiveType::Unknown;
}

bool FileArchiveSystem::DetectBinary(std::u16string_view fileName, bool& hasVersion) {
    File* file = fileSystem.Open(fileName, FileAccess::Read, FileTranslation::Binary);
    if (file == nullptr) {
        return false;
    }
    unsigned char header[kHeaderSize] = {};
    for (unsigned char& byte : header) {
        file->Read(&byte, 1, 1);
    }
    fileSystem.Close(file);
    hasVersion = header[kBinaryMarkSize] == kVersionMark;
    return std::equal(header, header + kBinaryMarkSize, kBinaryHeader);
}

// A file that does not open is closed all the same: a missing source ends the process here.
bool FileArchiveSystem::DetectText(std::u16string_view fileName, bool& hasVersion) {
    HeaderLine line;
    File* file = fileSystem.Open(fileName, FileAccess::Read, FileTranslation::Text);
    if (file != nullptr) {
        file->GetString(line.Buffer());
    }
    fileSystem.Close(file);
    hasVersion = hasVersion || line.View().find(kVersionMark) != std::u16string_view::npos;
    return line.View().find(kTextMark) != std::u16string_view::npos;
}

void FileArchiveSystem::SkipHeader(File& file, FileArchiveType type, bool hasVersion) {
    if (type == FileArchiveType::Text) {
        HeaderLine line;
        file.GetString(line.Buffer());
        return;
    }
    const int size = hasVersion ? kHeaderSize : kOldBinaryHeaderSize;
    for (int i = 0; i < size; ++i) {
        unsigned char skipped = 0;
        file.Read(&skipped, 1, 1);
    }
}

void FileArchiveSystem::WriteHeader(File* file, FileArchiveType type) {
    CheckAssert(file != nullptr, "file != NULL");
    CheckAssert(file->GetAccess() == FileAccess::Write, "file->GetAccess() == FileAccess::Write");
    switch (type) {
    case FileArchiveType::Text:
        file->PrintText(kTextHeader);
        file->PrintText(u"\n");
        break;
    case FileArchiveType::Binary:
        file->Write(kBinaryHeader, kHeaderSize, 1);
        break;
    default:
        CheckAssert(false, "false");
        break;
    }
}

} // namespace Vorn
