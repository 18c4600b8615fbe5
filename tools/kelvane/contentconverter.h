#pragma once

#include "engine/archive/filearchive.h"
#include "tools/kelvane/contentkind.h"

#include <string>
#include <string_view>

namespace Vorn {

class ReportHandler;

enum class ConversionResult {
    Converted,
    // The converter would write no file: an entity type without a class, or too long a name.
    Refused,
    // The converter would end abnormally, or there is not enough memory.
    Ended
};

// Converts contents from memory to memory. The result is what the converter writes, and independent of earlier
// conversions. Each thread needs its own.
class ContentConverter {
public:
    // Converts the content of a file. The file name without folders is the name of an entity definition.
    ConversionResult Convert(ContentKind kind, std::string_view fileName, std::string_view source,
                             FileArchiveType form);

    // Gets what is reported; null, the default, for nobody. Not owned.
    void SetReportHandler(ReportHandler* _handler) { handler = _handler; }

    // The result of the last conversion.
    std::string_view Bytes() const { return destination; }

private:
    std::string destination;
    ReportHandler* handler = nullptr;
};

} // namespace Vorn
