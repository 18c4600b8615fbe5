#pragma once

#include "engine/archive/bytefilearchive.h"
#include "engine/archive/further/remotestorage.h"

namespace Vorn {

// The bytes of a remote storage area. A scalar past its end fires the check "false", does not move the place and leaves
// its destination unchanged; so does a text as a whole.
struct StorageBytes {
    RemoteStorage* storage;

    // Elements of that size from the current place to the end of the area.
    std::size_t Left(int elementSize) const;

    int Take(void* elements, int elementSize, int count);
    const unsigned char* TakeWhole(std::size_t) { return nullptr; }
    void Put(const void* elements, int elementSize, int count);
    void ReportShort(int count, int result);
};

// The shipping form in the memory of a remote storage facility, which it clears and whose place it rewinds when it is
// made. Has no file.
class SteamFileArchive final : public ByteFileArchive<StorageBytes> {
public:
    SteamFileArchive(RemoteStorage& _storage, bool _hasFloatBits);

    using ByteFileArchive::Read;
    using ByteFileArchive::Write;
    void Read(Label label, char16_t* buffer, int bufferSize) override;

private:
    RemoteStorage& storage;
};

} // namespace Vorn
