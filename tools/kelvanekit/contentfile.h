#pragma once

#include "tools/kelvanekit/check/contentreading.h"
#include "tools/kelvanekit/inputfile.h"
#include "tools/kelvanekit/sources.h"

namespace Vorn {

// One content file with all its fields and their values, whatever is wrong with it.
class ContentFile {
public:
    // Reads the one file that is named. The reason why it cannot be read, or an empty text.
    std::string Open(const SourceOptions& options);

    const SourceFile& File() const { return file; }
    std::string_view Bytes() const { return input.Bytes(); }

    // Null for an empty file, which has no fields.
    ContentReading* Reading() const { return reading.get(); }
    const FieldReader* Fields() const { return reading != nullptr ? &reading->Reader() : nullptr; }
    const Findings& GetFindings() const { return findings; }

private:
    SourceFile file;
    InputFile input;
    std::unique_ptr<ContentReading> reading;
    Findings findings;
};

} // namespace Vorn
