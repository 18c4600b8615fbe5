#include "engine/archive/cachearchive.h"

#include "engine/archive/binaryfilearchive.h"
#include "engine/core/report.h"
#include "engine/file/nativefile.h"

#include <algorithm>

namespace Vorn {

enum class CacheArchive::Tag : std::uint32_t {
    RecordStart,
    RecordEnd,
    Uint,
    Int,
    Float,
    Double,
    Bool,
    Int64,
    String,
    Vector3,
    Matrix33,
    Matrix44,
    Quad,
    Point,
    Size,
    Rectangle,
    Color
};

// Reads entries from a file and makes their calls.
class CacheArchive::Player {
public:
    explicit Player(File* _file) : file(_file), values(_file, false) {}

    // Plays entries up to the end of the record that they stand in. Deeper nesting than any record has ends the replay.
    void PlayRecord(Archive& target);

private:
    static constexpr int kMaxDepth = 256;

    bool TakeTag(Tag& tag) { return !isStopped && file->TryRead(&tag, sizeof tag, 1) == 1; }
    std::u16string TakeText();
    void PlayEntry(Tag tag, Archive& target);
    template <class Value>
    void PlayValue(Label label, Archive& target);

    File* file;
    BinaryFileArchive values;
    int depth = 0;
    bool isStopped = false;
};

// Stands for a record whose entries come next in the file.
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

// A count of code units, then the units and a terminator, as far as the file goes.
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

void CacheArchive::Player::PlayEntry(Tag tag, Archive& target) {
    if (tag > Tag::Color) {
        isStopped = true;
        return;
    }
    const std::u16string labelText = TakeText();
    const Label label = std::u16string_view(labelText);
    switch (tag) {
    case Tag::RecordStart:
        return target.Write(label, ArchivableNode(*this));
    case Tag::RecordEnd:
        return;
    case Tag::Uint:
        return PlayValue<std::uint32_t>(label, target);
    case Tag::Int:
        return PlayValue<std::int32_t>(label, target);
    case Tag::Float:
        return PlayValue<float>(label, target);
    case Tag::Double:
        return PlayValue<double>(label, target);
    case Tag::Bool:
        return PlayValue<Vorn::Bool>(label, target);
    case Tag::Int64:
        return PlayValue<std::int64_t>(label, target);
    case Tag::String: {
        const std::u16string text = TakeText();
        return target.Write(label, text.c_str(), static_cast<int>(text.size()) + 1);
    }
    case Tag::Vector3:
        return PlayValue<Vorn::Vector3>(label, target);
    case Tag::Matrix33:
        return PlayValue<Vorn::Matrix33>(label, target);
    case Tag::Matrix44:
        return PlayValue<Vorn::Matrix44>(label, target);
    case Tag::Quad:
        return PlayValue<Vorn::Quad>(label, target);
    case Tag::Point:
        return PlayValue<Vorn::Point>(label, target);
    case Tag::Size:
        return PlayValue<Vorn::Size>(label, target);
    case Tag::Rectangle:
        return PlayValue<Vorn::Rectangle>(label, target);
    case Tag::Color:
        return PlayValue<Vorn::Color>(label, target);
    }
}

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
void CacheArchive::PutEntry(Tag tag, Label label, const Value& value) {
    if (writeFile != nullptr) {
        PutTag(tag, label);
        BinaryFileArchive(writeFile, false).Write({}, value);
    }
}

void CacheArchive::Read(Label, Color&) {}

void CacheArchive::Read(Label, Rectangle&) {}

void CacheArchive::Read(Label, Size&) {}

void CacheArchive::Read(Label, Point&) {}

void CacheArchive::Read(Label, Quad&) {}

void CacheArchive::Read(Label, Matrix44&) {}

void CacheArchive::Read(Label, Matrix33&) {}

void CacheArchive::Read(Label, Vector3&) {}

void CacheArchive::Read(Label, char16_t*, int) {}

void CacheArchive::Read(Label, std::int64_t&) {}

void CacheArchive::Read(Label, Bool&) {}

void CacheArchive::Read(Label, double&) {}

void CacheArchive::Read(Label, float&) {}

void CacheArchive::Read(Label, std::int32_t&) {
    CheckAssert(false, "false");
}

void CacheArchive::Read(Label, std::uint32_t&) {
    CheckAssert(false, "false");
}

void CacheArchive::Read(Label, SingleLineArchivable&) {
    CheckAssert(false, "false");
}

void CacheArchive::Read(Label, Archivable&, std::int32_t) {
    CheckAssert(false, "false");
}

void CacheArchive::Read(Label, Archivable&) {
    CheckAssert(false, "false");
}

void CacheArchive::Write(Label label, const Color& value) {
    PutEntry(Tag::Color, label, value);
}

void CacheArchive::Write(Label label, const Rectangle& value) {
    PutEntry(Tag::Rectangle, label, value);
}

void CacheArchive::Write(Label label, const Size& value) {
    PutEntry(Tag::Size, label, value);
}

void CacheArchive::Write(Label label, const Point& value) {
    PutEntry(Tag::Point, label, value);
}

void CacheArchive::Write(Label label, const Quad& value) {
    PutEntry(Tag::Quad, label, value);
}

void CacheArchive::Write(Label label, const Matrix44& value) {
    PutEntry(Tag::Matrix44, label, value);
}

void CacheArchive::Write(Label label, const Matrix33& value) {
    PutEntry(Tag::Matrix33, label, value);
}

void CacheArchive::Write(Label label, const Vector3& value) {
    PutEntry(Tag::Vector3, label, value);
}

void CacheArchive::Write(Label label, const char16_t* text, int) {
    if (writeFile != nullptr) {
        PutTag(Tag::String, label);
        PutText(text);
    }
}

void CacheArchive::Write(Label label, const std::int64_t& value) {
    PutEntry(Tag::Int64, label, value);
}

void CacheArchive::Write(Label label, const Bool& value) {
    PutEntry(Tag::Bool, label, value);
}

void CacheArchive::Write(Label label, const double& value) {
    PutEntry(Tag::Double, label, value);
}

void CacheArchive::Write(Label label, const float& value) {
    PutEntry(Tag::Float, label, value);
}

void CacheArchive::Write(Label label, const std::int32_t& value) {
    PutEntry(Tag::Int, label, value);
}

void CacheArchive::Write(Label label, const std::uint32_t& value) {
    PutEntry(Tag::Uint, label, value);
}

void CacheArchive::Write(Label label, const SingleLineArchivable& value) {
    value.Write(label, *this);
}

void CacheArchive::Write(Label label, const Archivable& value) {
    if (writeFile != nullptr) {
        PutTag(Tag::RecordStart, label);
        value.Write(*this);
        BinaryFileArchive(writeFile, false).Write({}, static_cast<std::uint32_t>(Tag::RecordEnd));
    }
}

} // namespace Vorn
