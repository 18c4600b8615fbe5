#pragma once

#include "engine/core/reporting.h"
#include "engine/file/file.h"

namespace Vorn {

// Copies reports into a text file, which is not owned.
class FileLog final : public ReportLog {
public:
    explicit FileLog(File& _file) : file(_file) {}

    void Add(std::u16string_view text) override { file.PrintText(text); }

private:
    File& file;
};

} // namespace Vorn
