#include "tools/kelvane/contentconverter.h"

#include "engine/archive/fieldcontext.h"
#include "engine/core/abnormalend.h"
#include "engine/core/core.h"
#include "engine/core/reporting.h"
#include "engine/file/path.h"
#include "engine/string/utf8.h"
#include "tools/kelvane/conversion.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace Vorn {

namespace {

class MemorySource final : public ByteStream {
public:
    explicit MemorySource(std::string_view _bytes) : bytes(_bytes) {}

    std::ptrdiff_t Read(void* destination, std::size_t count) override {
        const std::size_t taken = std::min(count, bytes.size());
        std::memcpy(destination, bytes.data(), taken);
        bytes.remove_prefix(taken);
        return static_cast<std::ptrdiff_t>(taken);
    }
    bool Write(const void*, std::size_t) override { return false; }
    bool Close() override { return true; }

private:
    std::string_view bytes;
};

class MemoryDestination final : public ByteStream {
public:
    explicit MemoryDestination(std::string& _bytes) : bytes(_bytes) {}

    std::ptrdiff_t Read(void*, std::size_t) override { return -1; }
    bool Write(const void* source, std::size_t count) override {
        bytes.append(static_cast<const char*>(source), count);
        return true;
    }
    bool Close() override { return true; }

private:
    std::string& bytes;
};

// The source and the destination as the only files that there are.
class MemoryFiles final : public FileStore {
public:
    MemoryFiles(std::u16string_view _sourceName, std::string_view _source, std::string& _destination)
        : sourceName(_sourceName), source(_source), destination(_destination) {}

    std::unique_ptr<ByteStream> Open(std::u16string_view name, FileAccess access) override {
        if (access == FileAccess::Read) {
            return name == sourceName ? std::make_unique<MemorySource>(source) : nullptr;
        }
        isWritten = true;
        return std::make_unique<MemoryDestination>(destination);
    }
    bool Exists(std::u16string_view name) const override { return name == sourceName; }

    bool IsWritten() const { return isWritten; }

private:
    std::u16string_view sourceName;
    std::string_view source;
    std::string& destination;
    bool isWritten = false;
};

// Thrown where the converter would end abnormally.
struct AbnormalEnd {};

class ThrowingEnd final : public EndGuard {
public:
    void BeforeAbnormalEnd() override { throw AbnormalEnd(); }
};

// Gives the reports of this thread to a handler, or to nobody, while it lives.
class GivenReports final : public ReportHandler {
public:
    explicit GivenReports(ReportHandler* handler) : previous(std::exchange(g_Reporting, {})) {
        g_Reporting.reportHandler = handler != nullptr ? handler : this;
    }
    GivenReports(const GivenReports&) = delete;
    GivenReports& operator=(const GivenReports&) = delete;
    ~GivenReports() override { g_Reporting = previous; }

    void Handle(const char*, int, std::u16string_view, bool) override {}

private:
    Reporting previous;
};

} // namespace

// A new core for each conversion costs less than half a microsecond.
ConversionResult ContentConverter::Convert(ContentKind kind, std::string_view fileName, std::string_view source,
                                           FileArchiveType form) {
    const std::u16string path = NameFromBytes(fileName);
    const std::u16string_view name = FileNameOf(path);
    destination.clear();
    const GivenReports reports(handler);
    const ThrowingEnd end;
    try {
        MemoryFiles files(name, source, destination);
        Core core(files);
        SetUpForConversions(core);
        // Searching for meshes and sounds would only cause reports.
        core.context.meshes = nullptr;
        core.context.reportsSounds = false;
        ConvertContent(core, kind, {name, u"destination", form});
        return files.IsWritten() ? ConversionResult::Converted : ConversionResult::Refused;
    } catch (const AbnormalEnd&) {
    } catch (const std::bad_alloc&) {
    }
    return ConversionResult::Ended;
}

} // namespace Vorn
