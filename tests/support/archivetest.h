#pragma once

#include "engine/archive/fieldio.h"
#include "tests/support/enginetest.h"

#include <functional>

namespace Vorn {

// A record's list of fields, as far as a test needs one.
using Fields = std::function<void(FieldIo& io)>;

// Runs lists of fields against files of both forms.
class ArchiveTest : public FileTest {
protected:
    // The bytes after the header and the version of a file that `fields` wrote.
    std::string Written(FileArchiveType form, const Fields& fields, bool hasFloatBits = false);

    // Reads a file of these bytes and returns its check sum.
    std::uint32_t Read(std::string_view bytes, const Fields& fields, bool hasFloatBits = false);

    // Headers of old files, which have no version.
    static constexpr std::string_view kTextHeader = "TXT\n";
    static constexpr std::string_view kBinaryHeader = "BIN\n";
};

} // namespace Vorn
