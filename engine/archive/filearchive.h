#pragma once

#include "engine/archive/archivable.h"
#include "engine/file/file.h"

namespace Vorn {

enum class FileArchiveType : std::int32_t { Unknown = -1, Text = 0, Binary = 1, Steam = 2 };

// An archive on a file, which it does not own. FileArchiveSystem closes the file.
class FileArchive : public Archive {
public:
    FileArchive(File* _file, bool _hasFloatBits) : file(_file), hasFloatBits(_hasFloatBits) {}

    File* GetFile() const { return file; }

    std::uint64_t GetSourceSize() const override { return file != nullptr ? file->GetSourceSize() : 0; }

    // The sum of all that was read, a fingerprint of the content; 0 before the first read, wraps in 32 bits.
    std::uint32_t GetCheckSum() const { return checkSum; }

protected:
    File* file;
    bool hasFloatBits;
    std::uint32_t checkSum = 0;
};

} // namespace Vorn
