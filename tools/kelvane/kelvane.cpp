#include "tools/kelvane/kelvane.h"

#include "engine/core/core.h"
#include "engine/string/utf8.h"
#include "engine/window/brushset.h"
#include "gs/entity/entitysystem.h"
#include "gs/render/particle/particlesimulationdefinitionsystem.h"
#include "tools/kelvane/savegame.h"

namespace Vorn {

namespace {

constexpr std::size_t kLeastArguments = 3;
constexpr int kTextureDirectory = 5;

struct Conversion {
    std::u16string_view source;
    std::u16string_view destination;
    FileArchiveType form;
};

// Runs `write` on the destination's archive and returns true if it opens.
template <class Write>
bool WriteDestination(Core& core, const Conversion& conversion, Write write) {
    FileArchiveSystem& archives = core.fileArchiveSystem;
    FileArchive* archive = archives.OpenForWrite(conversion.destination, false, conversion.form);
    if (archive == nullptr) {
        return false;
    }
    write(*archive);
    archives.Close(archive);
    return true;
}

// A mesh that was not found ends the process where it would be written, with the destination open.
void ConvertMesh(Core& core, const Conversion& conversion) {
    Mesh* mesh = core.meshSystem.GetMesh(conversion.source, {});
    WriteDestination(core, conversion, [&](Archive& archive) {
        if (mesh == nullptr) {
            EndAbnormally();
        }
        archive.Write(Mesh::Data::kLabel, mesh->data);
    });
    core.meshSystem.ReleaseMesh(mesh);
    core.meshSystem.FreeAll();
}

void ConvertBrushes(Core& core, const Conversion& conversion) {
    BrushSet brushSet(conversion.source);
    brushSet.Load(core.fileArchiveSystem);
    WriteDestination(core, conversion, [&](Archive& archive) {
        FieldIo io(archive, FieldIo::Direction::Write);
        brushSet.Fields(io);
    });
    brushSet.ReleaseTextures();
}

void ConvertEntity(Core& core, const Conversion& conversion) {
    EntitySystem entitySystem(core.fileArchiveSystem);
    const std::unique_ptr<EntityDef> definition = entitySystem.LoadEntityDef(conversion.source);
    if (definition != nullptr) {
        WriteDestination(core, conversion,
                         [&](Archive& archive) { entitySystem.WriteEntityDef(archive, *definition); });
    }
}

void ConvertParticle(Core& core, const Conversion& conversion) {
    ParticleSimulationDefinition definition;
    ParticleSimulationDefinitionSystem(core.fileArchiveSystem).Load(definition, conversion.source);
    definition.StripFilePaths();
    if (WriteDestination(core, conversion,
                         [&](Archive& archive) { archive.Write(ParticleSimulationDefinition::kLabel, definition); })) {
        definition.SetFileName(conversion.destination);
    }
}

void ConvertSaveGame(Core&, const Conversion& conversion) {
    StampSaveGame(conversion.source, conversion.destination);
}

struct ContentType {
    std::u16string_view name;
    void (*convert)(Core& core, const Conversion& conversion);
};

constexpr ContentType kContentTypes[] = {
    {u"mesh", ConvertMesh},     {u"MESH", ConvertMesh},         {u"brushes", ConvertBrushes},
    {u"entity", ConvertEntity}, {u"particle", ConvertParticle}, {u"saveGame", ConvertSaveGame},
};

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
    core.textureSystem.SetFolder(core.GetDirectory(kTextureDirectory));
    core.textureSystem.SetNameOnlyTextures(true);
    if (arguments.size() < kLeastArguments) {
        PrintUsage(output);
        return kUsageError;
    }
    const bool isText = arguments.size() > kLeastArguments && arguments[3] == u"txt";
    const Conversion conversion = {arguments[1], arguments[2],
                                   isText ? FileArchiveType::Text : FileArchiveType::Binary};
    for (const ContentType& type : kContentTypes) {
        if (type.name == arguments[0]) {
            type.convert(core, conversion);
            return kSuccess;
        }
    }
    PrintUnknownType(arguments[0], output);
    return kUsageError;
}

} // namespace Vorn
