#include "engine/archive/further/cachearchive.h"

#include "engine/archive/binaryfilearchive.h"
#include "engine/archive/bytefilearchive_impl.h"
#include "engine/core/report.h"
#include "engine/file/nativefile.h"

#include <algorithm>

namespace Vorn {

namespace {

// The kinds in the order of their tags; a text counts as one.
using TaggedKinds = ValueList<std::uint32_t, std::int32_t, float, double, Bool, std::int64_t, const char16_t*, Vector3,
                              Matrix33, Matrix44, Quad, Point, Size, Rectangle, Color>;

template <class Kind, class... Kinds>
constexpr std::uint32_t PlaceIn(ValueList<Kinds...>) {
    std::uint32_t place = 0;
    bool found = false;
    ((found = found || std::is_same_v<Kind, Kinds>, place += found ? 0 : 1), ...);
    return place;
}

} // namespace

enum class CacheArchive::Tag : std::uint32_t { RecordStart, RecordEnd, FirstValue };

template <class Kind>
constexpr CacheArchive::Tag CacheArchive::TagOf() {
    return static_cast<Tag>(static_cast<std::uint32_t>(Tag::FirstValue) + PlaceIn<Kind>(TaggedKinds()));
}

// Reads entries from a file and repeats their calls.
class CacheArchive::Player {
public:
    explicit Player(File* _file) : file(_file), values(_file, false) {}

    // Plays entries up to the end of their record. Nesting that is deeper than in any record ends the replay.
    void PlayRecord(Archive& target);

private:
    static constexpr int kMaxDepth = 256;

    bool TakeTag(Tag& tag) { return !isStopped && file->TryRead(&tag, sizeof tag, 1) == 1; }
    std::u16string TakeText();
    void PlayEntry(Tag tag, Archive& target);
    template <class Value>
    void PlayValue(Label label, Archive& target);
    template <class... Values>
    void PlayValueOf(ValueList<Values...> list, Tag tag, Label label, Archive& target);

    File* file;
    BinaryFileArchive values;
    int depth = 0;
    bool isStopped = false;
};

// A record whose entries come next in the file.
class CacheArchive::ArchivableNode final : public Archivable {
public:
    explicit ArchivableNode(Player& _player) : player(_player) {}

    using Archivable::Read;

    void Read(Archive&) override { CheckAssert(false, "false"); }
    void Write(Archive& archive) const override { player.PlayRecord(archive); }

private:
    Player& player;
};

void CacheArchive::Player::PlayRecord(Archive& target) {
    Tag tag;
    ++depth;
    isStopped = isStopped || depth > kMaxDepth;
    while (TakeTag(tag) && tag != Tag::RecordEnd) {
        PlayEntry(tag, target);
    }
    --depth;
}

// A count of code units, then the units and a terminator, up to the end of the file.
std::u16string CacheArchive::Player::TakeText() {
    std::uint32_t count = 0;
    values.Read({}, count);
    std::u16string text;
    char16_t units[256];
    int taken = 1;
    for (std::uint64_t left = std::uint64_t{count} + 1; left > 0 && taken > 0; left -= static_cast<unsigned>(taken)) {
        taken =
            file->TryRead(units, sizeof units[0], static_cast<int>(std::min<std::uint64_t>(left, std::size(units))));
        text.append(units, static_cast<std::size_t>(taken));
    }
    text.resize(std::min<std::size_t>(text.size(), count));
    return text;
}

template <class Value>
void CacheArchive::Player::PlayValue(Label label, Archive& target) {
    Value value{};
    values.Read({}, value);
    target.Write(label, value);
}

template <class... Values>
void CacheArchive::Player::PlayValueOf(ValueList<Values...>, Tag tag, Label label, Archive& target) {
    ((tag == TagOf<Values>() ? PlayValue<Values>(label, target) : void()), ...);
}

void CacheArchive::Player::PlayEntry(Tag tag, Archive& target) {
    if (tag > TagOf<Color>()) {
        isStopped = true;
        return;
    }
    const std::u16string labelText = TakeText();
    const Label label = std::u16string_view(labelText);
    if (tag == Tag::RecordStart) {
        target.Write(label, ArchivableNode(*this));
    } else if (tag == TagOf<const char16_t*>()) {
        const std::u16string text = TakeText();
        target.Write(label, text.c_str(), static_cast<int>(text.size()) + 1);
    } else {
        PlayValueOf(ArchiveValues(), tag, label, target);
    }
}

CacheArchive::CacheArchive(FileSystem& _fileSystem) : fileSystem(_fileSystem) {}

CacheArchive::~CacheArchive() {
    CheckAssert(writeFile == nullptr, "writeFile == NULL");
    CloseWriteFile();
}

bool CacheArchive::OpenWriteFile(std::u16string_view fileName) {
    CloseWriteFile();
    CheckAssert(MakeWritable(fileName), "bResult == TRUE");
    writeFile = fileSystem.Open(fileName, FileAccess::Write, FileTranslation::Binary);
    return writeFile != nullptr;
}

void CacheArchive::CloseWriteFile() {
    if (writeFile != nullptr) {
        fileSystem.Close(writeFile);
        writeFile = nullptr;
    }
}

bool CacheArchive::Replay(std::u16string_view fileName, Archive& target) {
    File* file = fileSystem.Open(fileName, FileAccess::Read, FileTranslation::Binary);
    if (file == nullptr) {
        return false;
    }
    Player(file).PlayRecord(target);
    fileSystem.Close(file);
    return true;
}

void CacheArchive::PutText(std::u16string_view text) {
    constexpr char16_t kTerminator = u'\0';
    BinaryFileArchive(writeFile, false).Write({}, static_cast<std::uint32_t>(text.size()));
    writeFile->Write(text.data(), sizeof(char16_t), static_cast<int>(text.size()));
    writeFile->Write(&kTerminator, sizeof kTerminator, 1);
}

void CacheArchive::PutTag(Tag tag, Label label) {
    BinaryFileArchive(writeFile, false).Write({}, static_cast<std::uint32_t>(tag));
    PutText(label);
}

template <class Value>
void CacheArchive::ReadValue(Label, Value&) {
    CheckAssert(!(kIsOneOf<Value, std::int32_t, std::uint32_t>), "false");
}

template <class Value>
void CacheArchive::WriteValue(Label label, const Value& value) {
    if (writeFile != nullptr) {
        PutTag(TagOf<Value>(), label);
        BinaryFileArchive(writeFile, false).Write({}, value);
    }
}

void CacheArchive::Read(Label, char16_t*, int) {}

void CacheArchive::Read(Label, SingleLineArchivable&) {
    CheckAssert(false, "false");
}

void CacheArchive::Read(Label, Archivable&, std::int32_t) {
    CheckAssert(false, "false");
}

void CacheArchive::Read(Label, Archivable&) {
    CheckAssert(false, "false");
}

void CacheArchive::Write(Label label, const char16_t* text, int) {
    if (writeFile != nullptr) {
        PutTag(TagOf<const char16_t*>(), label);
        PutText(text);
    }
}

void CacheArchive::Write(Label label, const Archivable& value) {
    if (writeFile != nullptr) {
        PutTag(Tag::RecordStart, label);
        value.Write(*this);
        BinaryFileArchive(writeFile, false).Write({}, static_cast<std::uint32_t>(Tag::RecordEnd));
    }
}

} // namespace Vorn
