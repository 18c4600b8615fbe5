#pragma once

#include "engine/archive/filearchive.h"
#include "engine/file/filesystem.h"

namespace Vorn {

// Makes archives of a form that has no file of its own.
class ArchiveMaker {
public:
    virtual ~ArchiveMaker() = default;
    virtual FileArchive* Make(bool hasFloatBits) = 0;
};

// Why a file could not become an archive.
enum class OpenFailure { None, CannotOpen, NotAnArchive };

// Opens files as archives: detects the form, skips or writes the header and handles the version. Loaders pass only a
// path, so that text and binary files are interchangeable everywhere.
class FileArchiveSystem {
public:
    // The archives pass the context on to their records.
    FileArchiveSystem(FileSystem& _fileSystem, const FieldContext& _context)
        : fileSystem(_fileSystem), context(_context) {}
    FileArchiveSystem(const FileArchiveSystem&) = delete;
    FileArchiveSystem& operator=(const FileArchiveSystem&) = delete;
    virtual ~FileArchiveSystem();

    // Opens the file once and detects its form. Null, after a report, for a file that cannot be opened, which is
    // reported twice, or that is neither form; GetOpenFailure tells them apart.
    FileArchive* OpenForRead(std::u16string_view fileName, bool hasFloatBits);

    // The result of the latest OpenForRead.
    OpenFailure GetOpenFailure() const { return openFailure; }

    // Null, after a report, if the file cannot be opened. The Steam form has no file, header or version: its archives
    // are made by the remote storage, and without one null is returned.
    FileArchive* OpenForWrite(std::u16string_view fileName, bool hasFloatBits, FileArchiveType type);

    // Closes the file, destroys the archive and clears the pointer; does nothing on null.
    void Close(FileArchive*& archive);

    // Close for an archive that has no file.
    void Destroy(FileArchive*& archive);

    // The storage that makes archives of the Steam form, not owned.
    void SetRemoteStorage(ArchiveMaker* storage) { remoteStorage = storage; }

    // Makes and counts the archive of a file that has been read up to its header; null for an unknown type.
    FileArchive* Create(File* file, FileArchiveType type, bool hasFloatBits);

    const FieldContext& GetContext() const { return context; }

    std::int32_t GetFileArchiveCount() const { return fileArchiveCount; }

private:
    FileArchive* Make(File* file, FileArchiveType type, bool hasFloatBits) const;
    struct Form;

    static Form TakeHeader(File& file, std::u16string_view fileName);
    static Form DetectBinary(File& file);
    static Form TakeTextHeader(File& file, std::u16string_view fileName, bool hasVersion);
    static void WriteHeader(File* file, FileArchiveType type);

    FileSystem& fileSystem;
    const FieldContext& context;
    ArchiveMaker* remoteStorage = nullptr;
    std::int32_t fileArchiveCount = 0;
    OpenFailure openFailure = OpenFailure::None;
};

// Closes an archive at the end of the scope, also when an exception leaves it. The archive may be null.
class ScopedArchive {
public:
    ScopedArchive(FileArchiveSystem& _archives, FileArchive* _archive) : archives(_archives), archive(_archive) {}
    ScopedArchive(const ScopedArchive&) = delete;
    ScopedArchive& operator=(const ScopedArchive&) = delete;
    ~ScopedArchive() { archives.Close(archive); }

    explicit operator bool() const { return archive != nullptr; }
    FileArchive& operator*() const { return *archive; }
    FileArchive* operator->() const { return archive; }

private:
    FileArchiveSystem& archives;
    FileArchive* archive;
};

} // namespace Vorn
