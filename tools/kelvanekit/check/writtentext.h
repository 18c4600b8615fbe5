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
    // What agrees with the beginning of `expected` need not be kept.
    explicit WrittenFile(FileArchiveType form, std::string_view expected = {});
    WrittenFile(const WrittenFile&) = delete;
    WrittenFile& operator=(const WrittenFile&) = delete;
    ~WrittenFile();

    Archive& GetArchive() { return *archive; }

    // What was written behind the part that agrees, without byte-order mark. Nothing can be written any more.
    std::string& Finish();

    // How much of what was expected was written, in whole lines if there is more.
    std::size_t AgreedSize() const { return agreed; }

private:
    class Stream;
    class Store final : public FileStore {
    public:
        explicit Store(WrittenFile& _written) : written(_written) {}

        std::unique_ptr<ByteStream> Open(std::u16string_view name, FileAccess access) override;
        bool Exists(std::u16string_view) const override { return true; }

    private:
        WrittenFile& written;
    };

    void Keep(std::string_view part);

    const std::string_view expected;
    std::size_t agreed = 0;
    // What is expected has line feeds alone.
    bool dropsReturns = false;
    std::string withoutReturns;
    // The bytes of the mark that are still to come.
    std::size_t markLeft;
    std::string bytes;
    Store store{*this};
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

// What a conversion to text makes of a content, without byte-order mark, header and version.
std::string WriteContent(LoadedContent& content);

// Whether a conversion to the same form makes of a content what it was read from, without header and version: the same
// bytes, or lines that mean the same.
bool IsWrittenAs(LoadedContent& content, FileArchiveType form, std::string_view fields);

// Whether two values mean the same to a reader: the same text, the same number in another spelling.
bool IsSameValue(std::string_view left, std::string_view right);

// Whether the lines of two texts have the same keys and values.
bool IsSameText(std::string_view left, std::string_view right);

} // namespace Vorn
