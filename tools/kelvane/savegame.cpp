#include "tools/kelvane/savegame.h"

#include "engine/file/nativefile.h"

#include <memory>

namespace Vorn {

namespace {

constexpr long long kStampOffset = 4;
constexpr unsigned char kStampedVersion = 40;

enum class CopyResult { Nothing, Copied, Failed };

CopyResult CopyBytes(NativeFile& input, NativeFile& output) {
    constexpr std::size_t kBlock = 65536;
    const auto block = std::make_unique_for_overwrite<unsigned char[]>(kBlock);
    CopyResult result = CopyResult::Nothing;
    for (;;) {
        const std::ptrdiff_t count = input.Read(block.get(), kBlock);
        if (count <= 0) {
            return result;
        }
        if (!output.Write(block.get(), static_cast<std::size_t>(count))) {
            return CopyResult::Failed;
        }
        result = CopyResult::Copied;
    }
}

} // namespace

void StampSaveGame(std::u16string_view source, std::u16string_view destination) {
    // Both are opened before the first byte is copied: a save copied onto itself is truncated and becomes empty.
    NativeFile input;
    const bool hasInput = input.Open(source, FileAccess::Read);
    NativeFile output;
    if (!output.Open(destination, FileAccess::Write) || !hasInput) {
        return;
    }
    if (CopyBytes(input, output) == CopyResult::Copied && output.Seek(kStampOffset)) {
        output.Write(&kStampedVersion, 1);
    }
}

} // namespace Vorn
