#include "tools/kelvanekit/namelists.h"

#include "engine/archive/filearchivesystem.h"
#include "engine/core/core.h"
#include "engine/file/nativefile.h"
#include "engine/string/utf8.h"
#include "engine/window/brushset.h"
#include "gs/entity/entitysystem.h"
#include "tools/kelvanekit/check/contentcheck.h"
#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/check/readscope.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/inputfile.h"
#include "tools/kelvanekit/sources.h"

#include <algorithm>

namespace Vorn {

namespace {

// One file of the platform, whatever the name it is asked for by: records cut long names.
class OneFile final : public FileStore {
public:
    explicit OneFile(const std::string& _name) : name(NameFromBytes(_name)) {}

    std::unique_ptr<ByteStream> Open(std::u16string_view, FileAccess access) override {
        return access == FileAccess::Read ? NativeFiles().Open(name, access) : nullptr;
    }
    bool Exists(std::u16string_view) const override { return true; }

private:
    const std::u16string name;
};

// What is wrong with a file is for its own check to say.
template <class Action>
void Quietly(Action action) {
    const DroppedReports reports;
    const CatchableEnd end;
    try {
        action();
    } catch (const AbnormalEnd&) {
        // What was found up to there counts.
    }
}

// The class of an entity definition, as the set of it alone; all where the file does not tell.
std::uint64_t EntityClassOf(const std::string& fileName) {
    EntityType type = EntityType::Invalid;
    Quietly([&] {
        OneFile file(fileName);
        Core core(file);
        FileArchiveSystem& archives = core.fileArchiveSystem;
        const ScopedArchive archive(archives, archives.OpenForRead(u"entity", false));
        if (archive) {
            FieldIo io(*archive, FieldIo::Direction::Read);
            EntitySystem::TypeField(io, type);
        }
    });
    return type == EntityType::Invalid ? KnownNames::kAnyClass : std::uint64_t{1} << static_cast<int>(type);
}

template <class Found>
void FindBrushes(const std::string& fileName, Found found) {
    Quietly([&] {
        OneFile file(fileName);
        Core core(file);
        core.textureSystem.SetNameOnlyTextures(true);
        BrushSet brushes(u"brushes");
        brushes.Load(core.fileArchiveSystem);
        for (const Brush& brush : brushes.GetBrushes()) {
            found(std::u16string(brush.GetName().View()));
        }
        brushes.ReleaseTextures();
    });
}

void AddRoot(const std::string& root, KnownNames& names, FindingReport& report) {
    SourceOptions options;
    options.names = {root};
    Sources sources = FindSources(options);
    for (std::string& problem : sources.problems) {
        report.AddProblem(std::move(problem));
    }
    for (const ContentKindRow& row : ContentKinds()) {
        // Names of a kind are looked up even if no file is of that kind.
        names.Add(NameKindOf(row.kind), {});
    }
    FindNames(sources.files, [&](const std::u16string& name, const SourceFile& file) { AddName(name, file, names); });
}

void AddList(const std::string& fileName, NameKind kind, KnownNames& names, FindingReport& report) {
    if (fileName.empty()) {
        return;
    }
    InputFile input;
    if (const std::string reason = input.Read(fileName); !reason.empty()) {
        report.AddProblem(fileName + ": " + reason);
        return;
    }
    names.Add(kind, {});
    const SourceText text(input.Bytes());
    for (std::int32_t line = 0; line < text.LineCount(); ++line) {
        names.Add(kind, ToUnits(Trimmed(text.Line(line))));
    }
}

} // namespace

NameKind NameKindOf(ContentKind kind) {
    switch (kind) {
    case ContentKind::Mesh:
        return NameKind::Mesh;
    case ContentKind::Particle:
        return NameKind::Particle;
    case ContentKind::Brushes:
        return NameKind::Brush;
    case ContentKind::Entity:
        return NameKind::Entity;
    }
    return NameKind::None;
}

void FindNames(const std::vector<SourceFile>& files, const NameFound& found) {
    for (const SourceFile& file : files) {
        if (file.kind == ContentKind::Brushes) {
            FindBrushes(file.name, [&](const std::u16string& name) { found(name, file); });
            continue;
        }
        const std::u16string name = NameFromBytes(file.name.substr(file.name.find_last_of("/\\") + 1));
        found(name.substr(0, name.rfind(u'.')), file);
    }
}

void AddName(const std::u16string& name, const SourceFile& file, KnownNames& names) {
    const std::uint64_t classes = file.kind == ContentKind::Entity ? EntityClassOf(file.name) : KnownNames::kAnyClass;
    names.Add(NameKindOf(file.kind), name, classes);
    if (file.kind != ContentKind::Brushes) {
        names.Add(NameKindOf(file.kind), name + NameFromBytes(file.name.substr(file.name.rfind('.'))), classes);
    }
}

ContentChecker MakeChecker(const NameLists& lists, FindingReport& report) {
    const auto names = std::make_shared<KnownNames>();
    if (!lists.root.empty()) {
        AddRoot(lists.root, *names, report);
    }
    AddList(lists.sounds, NameKind::Sound, *names, report);
    AddList(lists.strings, NameKind::StringId, *names, report);
    const bool isEmpty = lists.IsEmpty();
    return [names, isEmpty](ContentKind kind, std::string_view bytes) {
        return CheckContent(kind, bytes, {isEmpty ? nullptr : names.get()});
    };
}

} // namespace Vorn
