#pragma once

#include "engine/archive/filearchive.h"
#include "engine/file/filesystem.h"
#include "tools/kelvanekit/check/loadedcontent.h"

#include <string>
#include <vector>

namespace Vorn {

// A file in memory with the archive that writes it.
class WrittenFile {
public:
    explicit WrittenFile(FileArchiveType form, std::size_t expectedSize = 0);
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;
    ~WrittenFile();

    Archive& GetArchive() { return *archive; }

    // All that was written, without byte-order mark. Nothing can be written any more.
    std::string& Finish();

private:
    class Store final : public FileStore {
    public:
        Store(std::string& _bytes, std::size_t _markSize) : bytes(_bytes), markSize(_markSize) {}

        std::unique_ptr<ByteStream> Open(std::u16string_view name, FileAccess access) override;
        bool Exists(std::u16string_view) const override { return true; }

    private:
        std::string& bytes;
        const std::size_t markSize;
    };

    std::string bytes;
    Store store;
    FileSystem files{store};
    File* file;
    std::unique_ptr<Archive> archive;
};

// Values as the text form writes them, behind their keys.
class KeptValues {
public:
    // The number of the value.
    template <class Value>
    std::int32_t Keep(const Value& value) {
        written.GetArchive().Write({}, value);
        return count++;
    }
    std::int32_t KeepText(std::u16string_view text);

    // The value of that number, an empty one for a negative. The first use ends the keeping.
    std::string_view At(std::int32_t number);

private:
    WrittenFile written{FileArchiveType::Text};
    std::int32_t count = 0;
    std::vector<std::string_view> lines;
};

// What a conversion makes of a content, without byte-order mark, header and version.
std::string WriteContent(LoadedContent& content, FileArchiveType form, std::size_t expectedSize = 0);

// Whether two values mean the same to a reader: the same text, the same number in another spelling.
bool IsSameValue(std::string_view left, std::string_view right);

// Whether the lines of two texts have the same keys and values.
bool IsSameText(std::string_view left, std::string_view right);

} // namespace Vorn
