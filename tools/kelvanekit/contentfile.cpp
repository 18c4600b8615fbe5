#include "tools/kelvanekit/contentfile.h"

namespace Vorn {

std::string ContentFile::Open(const SourceOptions& options) {
    Sources sources = FindSources(options);
    if (!sources.problems.empty()) {
        return sources.problems[0];
    }
    const bool isNamed =
        !sources.files.empty() && (sources.files[0].isStandardInput || sources.files[0].name == options.names[0]);
    if (!isNamed) {
        return options.names[0] + ": it is a folder";
    }
    file = std::move(sources.files[0]);
    const std::string reason = file.isStandardInput ? input.ReadStandardInput() : input.Read(file.name);
    if (!reason.empty()) {
        return file.name + ": " + reason;
    }
    if (input.Bytes().empty()) {
        return {};
    }
    reading = std::make_unique<ContentReading>(file.kind, input.Bytes(), nullptr);
    if (!reading->ReadFields(true)) {
        return file.name + ": " + reading->TakeFindings()[0].message;
    }
    findings = reading->TakeFindings();
    return {};
}

} // namespace Vorn
