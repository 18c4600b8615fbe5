#include "engine/archive/binaryfilearchive.h"

#include "engine/archive/bytefilearchive_impl.h"

namespace Vorn {

template class ByteFileArchive<FileBytes>;

} // namespace Vorn
