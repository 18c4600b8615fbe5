#pragma once

#include "engine/core/abnormalend.h"
#include "engine/datastructures/dynamicvector.h"
#include "engine/file/file.h"

namespace Vorn {

// Opens and closes files and keeps the list of those that are open. When the process ends abnormally, what was written
// to them reaches the platform.
class FileSystem final : public EndGuard {
public:
    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    ~FileSystem();

    // Null, after a report, if the platform cannot open the name; a directory cannot be opened.
    File* Open(std::u16string_view name, FileAccess access, FileTranslation translation);

    // Frees the file. Null ends the process abnormally.
    void Close(File* file);

    // Whether a file of that name exists; a directory is none.
    static bool Exists(std::u16string_view name);

    int OpenCount() const { return openFiles.Size(); }

    void BeforeAbnormalEnd() override;

private:
    DynamicVector<File*> openFiles;
};

} // namespace Vorn
