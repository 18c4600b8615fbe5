#include "fuzz/conversion.h"

#include "engine/core/abnormalend.h"
#include "engine/core/reporting.h"
#include "engine/string/utf8.h"
#include "fuzz/strandedmemory.h"
#include "tools/kelvane/kelvane.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

// Thrown where the real process would end, or go on for too long.
struct Stop {};

// Drops reports. A damaged count makes the converter report for seconds, which nothing is learnt from.
class FewReports final : public ReportHandler {
public:
    void Handle(const char*, int, std::u16string_view, bool) override {
        if (++count > kMostReports && std::uncaught_exceptions() == 0) {
            throw Stop();
        }
    }

private:
    static constexpr int kMostReports = 200;

    int count = 0;
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
    const bool converted = Run(source, text, u"txt") && Run(source, binary, u"bin") && fs::exists(binary);
    // A part of the sources is enough for this, and the same source gets the same checks each time. Angles are left
    // out: their degrees and radians may change the last bit with every conversion.
    const bool hasAngles = type == u"particle" || type == u"entity";
    const bool examined = converted && !hasAngles && bytes.size() % 4 == 0;
    const bool settled = !examined || !Run(binary, settledBinary, u"bin") || !Run(settledBinary, binary, u"bin") ||
                         Content(binary) == Content(settledBinary);
    fs::remove(binary);
    return settled;
}

// False for a conversion that was stopped. What it strands is no leak: the real process frees it by ending.
bool InProcessConversion::Run(const std::string& from, const std::string& to, std::u16string_view form) const {
    FewReports reports;
    g_Reporting.reportHandler = &reports;
    const CatchableEnd catchableEnd;
    const std::u16string arguments[] = {type, NameFromBytes(from), NameFromBytes(to), std::u16string(form)};
    StrandedMemory stranded;
    try {
        RunKelvane(arguments, stdout);
        return true;
    } catch (const Stop&) {
        stranded.Forgive();
        return false;
    }
}

} // namespace Vorn
