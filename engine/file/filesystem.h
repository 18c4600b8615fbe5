#pragma once

#include "engine/core/abnormalend.h"
#include "engine/datastructures/dynamicvector.h"
#include "engine/file/file.h"
#include "engine/file/nativefile.h"

namespace Vorn {

// The path of a data file.
using DataPath = FixedString<260>;

// Opens and closes files and keeps a list of those that are open. When the process ends abnormally, their buffers are
// flushed.
class FileSystem final : public EndGuard {
public:
    explicit FileSystem(FileStore& _store = NativeFiles()) : store(_store) {}
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    ~FileSystem();

    // Null, after a report, if the platform cannot open the name; a directory cannot be opened.
    File* Open(std::u16string_view name, FileAccess access, FileTranslation translation);

    // Acts as if an open file were opened once more for reading, with another translation, but continues at the current
    // place: some sources, like pipes, cannot be opened twice. The name is checked as by Open.
    static void Reopen(File& file, std::u16string_view name, FileTranslation translation);

    // What Open reports for a name that cannot be opened.
    static void ReportUnopened(std::u16string_view name);

    // Frees the file. Null ends the process abnormally.
    void Close(File* file);

    // Whether a file of that name exists; a directory is none.
    bool Exists(std::u16string_view name) const { return store.Exists(name); }

    // Registers a folder to search for data files. Mod folders are searched before all others.
    void AddModFolder(std::u16string_view folder) { modFolders.Append().Assign(folder); }
    void AddDataFolder(std::u16string_view folder) { dataFolders.Append().Assign(folder); }

    // Looks for a data file in `subPath` of each registered folder in turn, then in that of the data source folder two
    // levels up, and in all folders below it, depth first by name. A path over 259 units is no candidate. The first hit
    // is the result; without one it is unchanged.
    bool FindDataFile(DataPath& result, std::u16string_view fileName, std::u16string_view subPath, bool useModFolders,
                      bool reportFailure) const;

    int OpenCount() const { return openFiles.Size(); }

    void BeforeAbnormalEnd() override;

private:
    bool FindInFolder(DataPath& result, std::u16string_view folder, std::u16string_view fileName) const;
    bool FindInTree(DataPath& result, std::u16string_view folder, std::u16string_view fileName) const;

    FileStore& store;
    DynamicVector<File*> openFiles;
    DynamicVector<DataPath> modFolders;
    DynamicVector<DataPath> dataFolders;
};

} // namespace Vorn
