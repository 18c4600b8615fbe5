#include "fuzz/conversion.h"

#include "engine/core/abnormalend.h"
#include "engine/core/core.h"
#include "engine/core/reporting.h"
#include "engine/file/nativefile.h"
#include "engine/string/utf8.h"
#include "fuzz/strandedmemory.h"
#include "tools/kelvane/conversion.h"
#include "tools/kelvane/kelvane.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <random>
#include <utility>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

// Thrown where the real process would end, or go on for too long.
struct Stop {};

// Drops reports. A damaged count makes the converter report for seconds, which little is learnt from.
class FewReports final : public ReportHandler {
public:
    explicit FewReports(int _most) : most(_most) {}

    void Handle(const char*, int, std::u16string_view, bool) override {
        if (++count > most && std::uncaught_exceptions() == 0) {
            throw Stop();
        }
    }

private:
    int most;
    int count = 0;
};

// Files of the platform whose reads fail behind so many bytes.
class FailingFiles final : public FileStore {
public:
    explicit FailingFiles(std::size_t _sound) : sound(_sound) {}

    std::unique_ptr<ByteStream> Open(std::u16string_view name, FileAccess access) override {
        std::unique_ptr<ByteStream> stream = NativeFiles().Open(name, access);
        return stream != nullptr ? std::make_unique<Stream>(std::move(stream), sound) : nullptr;
    }
    bool Exists(std::u16string_view name) const override { return NativeFiles().Exists(name); }

private:
    class Stream final : public ByteStream {
    public:
        Stream(std::unique_ptr<ByteStream> _stream, std::size_t _sound) : stream(std::move(_stream)), sound(_sound) {}

        std::ptrdiff_t Read(void* bytes, std::size_t count) override {
            const std::ptrdiff_t result = sound == 0 ? -1 : stream->Read(bytes, std::min(count, sound));
            sound -= static_cast<std::size_t>(std::max<std::ptrdiff_t>(result, 0));
            return result;
        }
        bool Write(const void* bytes, std::size_t count) override { return stream->Write(bytes, count); }
        bool Close() override { return stream->Close(); }

    private:
        std::unique_ptr<ByteStream> stream;
        std::size_t sound;
    };

    std::size_t sound;
};

// Being the oldest guard it comes last, when the written bytes are safe.
class CatchableEnd final : public EndGuard {
public:
    void BeforeAbnormalEnd() override { throw Stop(); }
};

std::string MakeFolder() {
    const fs::path inMemory = "/dev/shm";
    const fs::path parent = fs::is_directory(inMemory) ? inMemory : fs::temp_directory_path();
    std::random_device random;
    fs::path folder;
    do {
        folder = parent / ("kelvane-fuzz-" + std::to_string(random()));
    } while (!fs::create_directory(folder));
    return folder.string();
}

std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

InProcessConversion::InProcessConversion(std::string_view _type)
    : type(NameFromBytes(_type)), folder(MakeFolder()), source(folder + "/source"), text(folder + "/text"),
      binary(folder + "/binary"), settledBinary(folder + "/settled") {}

InProcessConversion::~InProcessConversion() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

bool InProcessConversion::Convert(std::string_view bytes) {
    std::ofstream(source, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    // What is done beyond the two conversions follows from the bytes, so that the same source gets the same each time.
    const std::size_t choice = std::hash<std::string_view>()(bytes);
    constexpr std::size_t kFarOnes = 256;
    mostReports = choice % kFarOnes == 0 ? kManyReports : kFewReports;
    const bool converted = Run(source, text, u"txt") && Run(source, binary, u"bin") && fs::exists(binary);
    // Angles are left out: their degrees and radians may change the last bit with every conversion.
    const bool hasAngles = type == u"particle" || type == u"entity";
    const bool examined = converted && !hasAngles && choice % 4 == 1;
    const bool settled = !examined || !Run(binary, settledBinary, u"bin") || !Run(settledBinary, binary, u"bin") ||
                         Content(binary) == Content(settledBinary);
    if (choice % 16 == 2) {
        RunWithFailingReads(choice / 16 % (bytes.size() + 1));
    }
    if (choice % 64 == 3 && type == u"mesh") {
        RunWithSearch();
    }
    fs::remove(binary);
    return settled;
}

// False for a conversion that was stopped. What it strands is no leak: the real process frees it by ending.
template <class Conversion>
bool InProcessConversion::Guarded(Conversion convert) const {
    FewReports reports(mostReports);
    g_Reporting.reportHandler = &reports;
    const CatchableEnd catchableEnd;
    StrandedMemory stranded;
    try {
        convert();
        return true;
    } catch (const Stop&) {
        stranded.Forgive();
        return false;
    }
}

bool InProcessConversion::Run(const std::string& from, const std::string& to, std::u16string_view form) const {
    const std::u16string arguments[] = {type, NameFromBytes(from), NameFromBytes(to), std::u16string(form)};
    return Guarded([&] { RunKelvane(arguments, stdout); });
}

void InProcessConversion::RunWithFailingReads(std::size_t soundBytes) const {
    const std::u16string from = NameFromBytes(source);
    const std::u16string to = NameFromBytes(text);
    if (const std::optional<ContentKind> kind = ContentKindNamed(BytesFromName(type))) {
        FailingFiles files(soundBytes);
        Guarded([&] {
            Core core(files);
            SetUpForConversions(core);
            ConvertContent(core, *kind, {from, to, FileArchiveType::Text});
        });
    }
}

// The search looks two levels up from the working folder.
void InProcessConversion::RunWithSearch() const {
    const fs::path before = fs::current_path();
    const fs::path data = fs::path(folder) / "DataSource" / "Mesh";
    fs::create_directories(data);
    fs::copy_file(source, data / "hull.mesh", fs::copy_options::overwrite_existing);
    fs::create_directories(fs::path(folder) / "tools" / "bin");
    fs::current_path(fs::path(folder) / "tools" / "bin");
    Run("art/hull.dds", text, u"txt");
    fs::current_path(before);
}

} // namespace Vorn
