#pragma once

#include "engine/archive/bytefilearchive.h"

namespace Vorn {

// The bytes of an open file.
struct FileBytes {
    File* file;

    int Take(void* elements, int elementSize, int count) { return file->TryRead(elements, elementSize, count); }
    const unsigned char* TakeWhole(std::size_t count) { return file->TakeWhole(count); }
    void Put(const void* elements, int elementSize, int count) { file->Write(elements, elementSize, count); }
    void ReportShort(int count, int result) { file->ReportShortRead(count, result); }
};

// The shipping form in a file.
class BinaryFileArchive final : public ByteFileArchive<FileBytes> {
public:
    BinaryFileArchive(File* _file, bool _hasFloatBits);
    ~BinaryFileArchive() override;
};

} // namespace Vorn
