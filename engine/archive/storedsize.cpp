#include "engine/archive/storedsize.h"

#include "engine/archive/archiveform_impl.h"
#include "engine/core/reporting.h"

#include <utility>

namespace Vorn {

namespace {

// Writes nowhere and counts the bytes.
class SizeArchive final : public ArchiveForm<SizeArchive> {
public:
    explicit SizeArchive(const FieldContext* _context) { SetContext(_context); }

    using ArchiveForm::Read;
    using ArchiveForm::Write;

    void Read(Label, char16_t*, int) override {}
    void Write(Label, const char16_t*, int) override { size += sizeof(std::uint32_t); }

    template <class Value>
    void ReadValue(Label, Value&) {}
    template <class Value>
    void WriteValue(Label, const Value&) {
        static_assert(sizeof(Bool) == 1);
        size += sizeof(Value);
    }

    std::uint64_t GetSize() const { return size; }

private:
    std::uint64_t size = 0;
};

class ChecksOff {
public:
    ChecksOff() = default;
    ChecksOff(const ChecksOff&) = delete;
    ChecksOff& operator=(const ChecksOff&) = delete;
    ~ChecksOff() { g_Reporting.debugChecksOff = before; }

private:
    bool before = std::exchange(g_Reporting.debugChecksOff, true);
};

} // namespace

std::uint64_t StoredSize(const Archivable& value, const FieldContext* context) {
    const ChecksOff checksOff;
    SizeArchive archive(context);
    value.Write(archive);
    return archive.GetSize();
}

std::uint64_t StoredSize(const SingleLineArchivable& value, const FieldContext* context) {
    const ChecksOff checksOff;
    SizeArchive archive(context);
    value.Write({}, archive);
    return archive.GetSize();
}

} // namespace Vorn
