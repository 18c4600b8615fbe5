#pragma once

#include "engine/archive/archiveform.h"
#include "engine/core/reporting.h"
#include "tools/kelvanekit/check/loadedcontent.h"
#include "tools/kelvanekit/describe/describedfield.h"

namespace Vorn {

// How lists are answered that nothing else is said of.
enum class ListAnswer : std::uint8_t { Empty, OneEntry };

// Runs a list of fields without a file and notes what it asks for. Each read leaves the value that the field holds; a
// choice is answered as it is asked to. Of a list, the first entry is noted.
class DescribingArchive final : public ArchiveForm<DescribingArchive>, private FieldObserver, private ReportHandler {
public:
    // Stands for the file itself among the places of records.
    static constexpr std::uint64_t kFilePlace = 1;
    // What colours are answered with where lists have an entry, so that they are known when they are written again.
    static constexpr std::uint32_t kMarkedColor = 0x12345678;
    // Stands for all records.
    static constexpr std::uint64_t kEverywhere = 0;

    // Notes the fields of the record at a place, and those of records in it if `_isDeep` is set.
    DescribingArchive(const Answers& _answers, ListAnswer _listAnswer, std::uint64_t _notedPlace, bool _isDeep = false);

    // False if the list of fields ends the process.
    bool Describe(LoadedContent& content);

    DescribedFields& Fields() { return fields; }
    // The choice that was asked for last.
    const DescribedField& LastChoice() const { return lastChoice; }

    using ArchiveForm::Read;
    using ArchiveForm::Write;

    void Read(Label label, char16_t* buffer, int bufferSize) override;
    void Read(Label label, SingleLineArchivable& value) override;
    void Read(Label label, Archivable& value, std::int32_t version) override;
    void Read(Label label, Archivable& value) override;
    void Write(Label, const char16_t*, int) override {}

    template <class Value>
    void ReadValue(Label label, Value& value);
    template <class Value>
    void WriteValue(Label, const Value&) {}

private:
    // A record, a block or a list that is being read.
    struct Scope {
        std::uint64_t place;
        std::uint64_t fields = 0;
        bool isNoted = false;
        // Whether entries behind the first are being read.
        bool isRepeated = false;
    };

    void OnEnum(const EnumTable& table) override { next.table = &table; }
    void OnName(NameKind kind) override { next.name = kind; }
    void OnCapacity(std::int32_t capacity) override { next.limit = capacity; }
    void OnDegrees() override { next.isDegrees = true; }
    void OnList(const ListShape& shape) override;
    bool OnEntry(std::int32_t entry) override;
    void OnListEnd() override;
    void OnVersion(std::int32_t threshold) override;
    void OnBlock(const Record& block) override;
    void OnBlockEnd() override { EndRecord(DescribedField::Role::Block); }
    void Handle(const char* file, int line, std::u16string_view text, bool isFailure) override;

    std::int32_t Choose(DescribedField& field, std::int32_t start);
    void Note(DescribedField field);
    void BeginRecord(Label label, const std::type_info& type, std::uint64_t place);
    void EndRecord(DescribedField::Role role);
    template <class ReadRecord>
    void ReadGroup(Label label, const Archivable& value, ReadRecord readRecord);
    DescribedField TakeNext(Label label, FieldKind kind);
    std::uint64_t PlaceOf(std::uint64_t part) const;

    const Answers& answers;
    const ListAnswer listAnswer;
    const std::uint64_t notedPlace;
    const bool isDeep;
    DescribedFields fields;
    DescribedField next;
    DescribedField lastChoice;
    std::vector<Scope> scopes;
    // The records and blocks around, in their order.
    DescribedFields records;
};

} // namespace Vorn
