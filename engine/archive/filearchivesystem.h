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

// The one place where a file becomes an archive: it tells a file's form, skips or writes the header and handles the
// version. A loader names only a path, so that text and binary files stand for each other everywhere.
class FileArchiveSystem {
public:
    // The archives give the context to their records.
    FileArchiveSystem(FileSystem& _fileSystem, const FieldContext& _context)
        : fileSystem(_fileSystem), context(_context) {}
    FileArchiveSystem(const FileArchiveSystem&) = delete;
    FileArchiveSystem& operator=(const FileArchiveSystem&) = delete;
    virtual ~FileArchiveSystem();

    // Opens the file once and detects its form. Null, after a report, for a file that cannot be opened, which is
    // reported twice, or that is neither form; GetOpenFailure says which.
    FileArchive* OpenForRead(std::u16string_view fileName, bool hasFloatBits);

    // What became of the latest OpenForRead.
    OpenFailure GetOpenFailure() const { return openFailure; }

    // Null, after a report, if the file cannot be opened. The Steam form has no file, header or version: its archives
    // are those of the remote storage, and null comes back where none was set.
    FileArchive* OpenForWrite(std::u16string_view fileName, bool hasFloatBits, FileArchiveType type);

    // Closes the file, destroys the archive and clears the pointer; does nothing on null.
    void Close(FileArchive*& archive);

    // Close for an archive that has no file.
    void Destroy(FileArchive*& archive);

    // The storage behind archives of the Steam form, not owned.
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

// An archive that is given back at the end of its scope, also when an exception leaves it. Null gives nothing back.
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
