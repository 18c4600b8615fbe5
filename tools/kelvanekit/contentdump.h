#pragma once

#include "tools/kelvanekit/contentfile.h"
#include "tools/kelvanekit/outputstream.h"

namespace Vorn {

// A field as it is shown.
struct DumpedField {
    // The line from 1, or the byte of a binary file; kNone if it is missing.
    std::int64_t place;
    // Those of a binary file.
    std::string_view bytes;
    std::string_view kind;
    std::string key;
    std::string_view value;
};

// A form of the output, of which each part may be empty.
struct DumpForm {
    std::string_view name;
    // Appends what stands in front of the fields, a field, and a finding.
    void (*begin)(std::string& out, const ContentFile& content);
    void (*field)(std::string& out, const ContentFile& content, const DumpedField& field);
    void (*finding)(std::string& out, const ContentFile& content, const Finding& finding);
};

std::span<const DumpForm> DumpForms();

// Shows all fields of a content in the order in which they are read, each finding behind the field at its place.
void DumpContent(const ContentFile& content, const DumpForm& form, OutputStream& output);

} // namespace Vorn
