#pragma once

#include "engine/archive/bytefilearchive.h"
#include "engine/archive/remotestorage.h"

namespace Vorn {

// The bytes of a remote storage area. An access past its end fires the check "false", moves nothing and leaves its
// destination.
struct StorageBytes {
    RemoteStorage* storage;

    int Take(void* elements, int elementSize, int count);
    const unsigned char* TakeWhole(std::size_t) { return nullptr; }
    void Put(const void* elements, int elementSize, int count);
    void ReportShort(int count, int result);
};

// The shipping form in the memory of a remote storage facility, which it clears and whose place it rewinds when it is
// made. Has no file.
class SteamFileArchive final : public ByteFileArchive<StorageBytes> {
public:
    SteamFileArchive(RemoteStorage& storage, bool _hasFloatBits);
};

} // namespace Vorn
