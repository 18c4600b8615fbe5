#include "tools/kelvane/kelvane.h"

#include "engine/core/core.h"
#include "engine/string/utf8.h"
#include "tools/kelvane/conversion.h"
#include "tools/kelvane/savegame.h"

namespace Vorn {

namespace {

constexpr std::size_t kLeastArguments = 3;

// Save games have one form alone. The type "mesh" has a second name.
constexpr std::string_view kSaveGame = "saveGame";
constexpr std::string_view kOtherMeshName = "MESH";

void PrintUsage(std::FILE* output) {
    std::fputs("Usage: kelvane type src dest [format]\n"
               "\t-type can be mesh, particle, brushes, entity,saveGame\n"
               "\t-format can be txt, bin. defaults to bin and bin only for saveGame\n",
               output);
}

void PrintUnknownType(const std::u16string& type, std::FILE* output) {
#ifdef _WIN32
    std::fprintf(output, "%p is an unknown convert type", static_cast<const void*>(type.c_str()));
#else
    const std::string bytes = BytesFromName(type);
    std::fwrite(bytes.data(), 1, bytes.size(), output);
    std::fputs(" is an unknown convert type", output);
#endif
}

} // namespace

int RunKelvane(std::span<const std::u16string> arguments, std::FILE* output) {
    Core core;
    SetUpForConversions(core);
    if (arguments.size() < kLeastArguments) {
        PrintUsage(output);
        return kUsageError;
    }
    const bool isText = arguments.size() > kLeastArguments && arguments[3] == u"txt";
    const Conversion conversion = {arguments[1], arguments[2],
                                   isText ? FileArchiveType::Text : FileArchiveType::Binary};
    const std::string type = BytesFromName(arguments[0]);
    if (type == kSaveGame) {
        StampSaveGame(conversion.source, conversion.destination);
        return kSuccess;
    }
    if (const std::optional<ContentKind> kind =
            ContentKindNamed(type == kOtherMeshName ? NameOf(ContentKind::Mesh) : type)) {
        ConvertContent(core, *kind, conversion);
        return kSuccess;
    }
    PrintUnknownType(arguments[0], output);
    return kUsageError;
}

} // namespace Vorn
