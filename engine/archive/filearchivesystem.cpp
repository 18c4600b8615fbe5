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

// What the header of a file contains.
struct FileArchiveSystem::Form {
    FileArchiveType type;
    bool hasVersion;
};

// The reports are those of three openings: one to detect each of the two forms, and one to read.
FileArchive* FileArchiveSystem::OpenForRead(std::u16string_view fileName, bool hasFloatBits) {
    openFailure = OpenFailure::None;
    File* file = fileSystem.Open(fileName, FileAccess::Read, FileTranslation::Binary);
    if (file == nullptr) {
        FileSystem::ReportUnopened(fileName);
        openFailure = OpenFailure::CannotOpen;
        return nullptr;
    }
    const Form form = TakeHeader(*file, fileName);
    if (form.type == FileArchiveType::Unknown) {
        fileSystem.Close(file);
        ReportErrorAt(u"Could not detect if Archive File is Binary or Text: %s", fileName);
        openFailure = OpenFailure::NotAnArchive;
        return nullptr;
    }
    FileArchive* archive = Create(file, form.type, hasFloatBits);
    if (form.hasVersion) {
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

FileArchiveSystem::Form FileArchiveSystem::TakeHeader(File& file, std::u16string_view fileName) {
    const Form form = DetectBinary(file);
    if (form.type != FileArchiveType::Binary) {
        return TakeTextHeader(file, fileName, form.hasVersion);
    }
    FileSystem::Reopen(file, fileName, FileTranslation::Binary);
    const int size = form.hasVersion ? kHeaderSize : kOldBinaryHeaderSize;
    for (int i = 0; i < size; ++i) {
        unsigned char skipped = 0;
        file.Read(&skipped, 1, 1);
    }
    return form;
}

// Does not move past the header. Each missing byte is reported.
FileArchiveSystem::Form FileArchiveSystem::DetectBinary(File& file) {
    const std::string_view start = file.PeekBytes(kHeaderSize);
    for (std::size_t missing = start.size(); missing < kHeaderSize; ++missing) {
        file.ReportShortRead(1, 0);
    }
    const bool isBinary =
        start.size() >= kBinaryMarkSize && std::equal(kBinaryHeader, kBinaryHeader + kBinaryMarkSize, start.begin());
    return {isBinary ? FileArchiveType::Binary : FileArchiveType::Unknown,
            start.size() > kBinaryMarkSize && start[kBinaryMarkSize] == kVersionMark};
}

FileArchiveSystem::Form FileArchiveSystem::TakeTextHeader(File& file, std::u16string_view fileName, bool hasVersion) {
    HeaderLine line;
    FileSystem::Reopen(file, fileName, FileTranslation::Text);
    file.GetString(line.Buffer());
    const std::u16string_view text = line.View();
    if (text.find(kTextMark) == std::u16string_view::npos) {
        return {FileArchiveType::Unknown, hasVersion};
    }
    FileSystem::Reopen(file, fileName, FileTranslation::Text);
    if (text.back() != u'\n') {
        file.ReportOpenLine();
    }
    return {FileArchiveType::Text, hasVersion || text.find(kVersionMark) != std::u16string_view::npos};
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
