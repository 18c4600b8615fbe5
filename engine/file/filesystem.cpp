#include "engine/file/filesystem.h"

#include "engine/core/reporting.h"

#include <algorithm>

namespace Vorn {

FileSystem::~FileSystem() {
    for (File* file : openFiles) {
        delete file;
    }
}

File* FileSystem::Open(std::u16string_view name, FileAccess access, FileTranslation translation) {
    CheckAssert(access == FileAccess::Read || access == FileAccess::Write, "false");
    CheckAssert(translation == FileTranslation::Text || translation == FileTranslation::Binary, "false");
    File* file = new File(access, translation);
    if (!file->Open(store, name)) {
        ReportUnopened(name);
        delete file;
        return nullptr;
    }
    openFiles.Append(file);
    return file;
}

void FileSystem::Reopen(File& file, std::u16string_view name, FileTranslation translation) {
    file.translation = translation;
    file.name.Assign(name);
}

void FileSystem::ReportUnopened(std::u16string_view name) {
    ReportError(u"Failed to Open File: '%s'\n", name);
}

void FileSystem::Close(File* file) {
    if (file == nullptr) {
        EndAbnormally();
    }
    const bool flushed = file->Flush();
    CheckAssert(file->stream->Close() && flushed, "closeResult == 0");
    openFiles.RemoveAt(static_cast<int>(std::find(openFiles.begin(), openFiles.end(), file) - openFiles.begin()));
    delete file;
}

void FileSystem::BeforeAbnormalEnd() {
    for (File* file : openFiles) {
        file->Flush();
    }
}

} // namespace Vorn
