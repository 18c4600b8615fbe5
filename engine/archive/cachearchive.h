#pragma once

#include "engine/archive/archivable.h"
#include "engine/file/filesystem.h"

#include <string>

namespace Vorn {

// Keeps a log of all write calls in a file of its own: for each a tag, the label and the value. Replay makes the same
// calls on another archive. It reads nothing: reads of Int, Uint, Value and Record fire the check "false", the others
// do nothing.
class CacheArchive final : public Archive {
public:
    explicit CacheArchive(FileSystem& _fileSystem) : fileSystem(_fileSystem) {}
    ~CacheArchive() override;

    // What is written until CloseWriteFile goes to this file alone. It is made writable first; the check
    // "bResult == TRUE" fires if that fails, also for a file that is not there yet. False, after a report, if the file
    // cannot be opened; then all writes are dropped.
    bool OpenWriteFile(std::u16string_view fileName);
    void CloseWriteFile();

    // Makes the calls that the file holds on `target`, up to its end or to an unknown tag. False, after a report, if
    // the file cannot be opened.
    bool Replay(std::u16string_view fileName, Archive& target);

    using Archive::Read;
    using Archive::Write;

    void Read(Label label, Color& value) override;
    void Read(Label label, Rectangle& value) override;
    void Read(Label label, Size& value) override;
    void Read(Label label, Point& value) override;
    void Read(Label label, Quad& value) override;
    void Read(Label label, Matrix44& value) override;
    void Read(Label label, Matrix33& value) override;
    void Read(Label label, Vector3& value) override;
    void Read(Label label, char16_t* buffer, int bufferSize) override;
    void Read(Label label, std::int64_t& value) override;
    void Read(Label label, Bool& value) override;
    void Read(Label label, double& value) override;
    void Read(Label label, float& value) override;
    void Read(Label label, std::int32_t& value) override;
    void Read(Label label, std::uint32_t& value) override;
    void Read(Label label, SingleLineArchivable& value) override;
    void Read(Label label, Archivable& value, std::int32_t version) override;
    void Read(Label label, Archivable& value) override;

    void Write(Label label, const Color& value) override;
    void Write(Label label, const Rectangle& value) override;
    void Write(Label label, const Size& value) override;
    void Write(Label label, const Point& value) override;
    void Write(Label label, const Quad& value) override;
    void Write(Label label, const Matrix44& value) override;
    void Write(Label label, const Matrix33& value) override;
    void Write(Label label, const Vector3& value) override;
    void Write(Label label, const char16_t* text, int bufferSize) override;
    void Write(Label label, const std::int64_t& value) override;
    void Write(Label label, const Bool& value) override;
    void Write(Label label, const double& value) override;
    void Write(Label label, const float& value) override;
    void Write(Label label, const std::int32_t& value) override;
    void Write(Label label, const std::uint32_t& value) override;
    void Write(Label label, const SingleLineArchivable& value) override;
    void Write(Label label, const Archivable& value) override;

private:
    class Player;
    class ArchivableNode;

    enum class Tag : std::uint32_t;

    void PutText(std::u16string_view text);
    void PutTag(Tag tag, Label label);
    template <class Value>
    void PutEntry(Tag tag, Label label, const Value& value);

    FileSystem& fileSystem;
    File* writeFile = nullptr;
};

} // namespace Vorn
