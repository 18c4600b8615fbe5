#include "engine/archive/binaryfilearchive.h"

#include "engine/archive/bytefilearchive_impl.h"

namespace Vorn {

BinaryFileArchive::BinaryFileArchive(File* _file, bool _hasFloatBits)
    : ByteFileArchive(_file, _hasFloatBits, FileBytes{_file}) {}

BinaryFileArchive::~BinaryFileArchive() = default;

} // namespace Vorn
