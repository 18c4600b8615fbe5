#pragma once

#include "engine/archive/archiveform.h"
#include "engine/core/reporting.h"
#include "engine/string/stringlibrary.h"
#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/check/loadedcontent.h"
#include "tools/kelvanekit/check/mend.h"
#include "tools/kelvanekit/check/writtentext.h"
#include "tools/kelvanekit/findings/finding.h"

#include <array>

namespace Vorn {

// Two fields of a record whose keys differ in `Min` and `Max` alone, the first with the larger value.
struct CrossedBounds {
    std::int32_t minimum;
    std::int32_t maximum;
};

// A check of a record that failed.
struct FailedCheck {
    std::string expression;
    // The last one ahead of the check.
    std::int32_t ask = kNone;
};

// Runs a list of fields against the bytes of a file: the base of the readers of both forms. It follows which fields
// are asked for, and notes where each lies and what is wrong with it.
class FieldReader : public Archive, protected FieldObserver, private ReportHandler {
public:
    enum class Mode : std::uint8_t {
        // Ends at the first thing that is not as it should be.
        Strict,
        // Ends at the first key that does not fit, and finds what could be done about it.
        Probing,
        // Notes every field and every finding. Keys must fit.
        Noting
    };

    // True if the content was read to its end; in the mode Strict, if nothing is wrong besides.
    bool Read(LoadedContent& content);

    // Keeps all values that are read, as the text form writes them.
    void KeepValues() { kept = std::make_unique<KeptValues>(); }
    std::string_view KeptValue(const AskedField& field) const { return kept->At(field.kept); }

    // What was noted.
    const AskedFields& Asks() const { return asks; }
    Findings& GetFindings() { return findings; }
    const std::vector<FailedCheck>& FailedChecks() const { return failedChecks; }
    const std::vector<CrossedBounds>& AllCrossedBounds() const { return crossedBounds; }
    // Whether the first ask is the version.
    bool HasVersion() const { return hasVersion; }
    // The process would end abnormally at the last field.
    bool EndsAbnormally() const { return endsAbnormally; }

    // The value of a field that is not missing, and where it lies; of a group, its line.
    virtual std::string_view ValueOf(const AskedField& field) const = 0;
    virtual FindingPlace PlaceOf(const AskedField& field) const = 0;

    // Notes something at a field. A file of damaged bytes ends with the last finding that there is room for.
    Finding& Add(const FindingCode* code, std::int32_t ask, std::string message);

    using Archive::Read;
    using Archive::Write;

    // Nothing is written.
    void Write(Label, const char16_t*, int) override {}
    template <class Value>
    void WriteValue(Label, const Value&) {}

protected:
    // Leaves the list of fields.
    struct Stop {};

    // Names are not looked up where `_names` is null.
    FieldReader(Mode _mode, const KnownNames* _names) : mode(_mode), names(_names) { SetObserver(this); }

    virtual void ReadAll(LoadedContent& content) = 0;
    virtual void AtAbnormalEnd() {}

    void OnEnum(const EnumTable& table) override { nextTable = &table; }
    void OnName(NameKind kind) override { nextName = kind; }
    void OnDegrees() override { nextIsDegrees = true; }
    void OnList(const ListShape& shape) override {
        nextIsCount = true;
        nextList = shape;
    }
    bool OnEntry(std::int32_t entry) override;
    void OnListEnd() override { lists.pop_back(); }

    void NoteField(Label label, FieldKind kind, std::int32_t line, std::int64_t offset);
    void NoteChoice(std::u16string_view given, const EnumTable& table, std::int32_t row);
    void NoteCount(const OpenList& list);
    void NoteNegativeCount(std::int32_t count);
    void NoteName(std::u16string_view name);
    struct Choice {
        const EnumTable* table;
        std::int32_t row;
        bool isKnown;
    };
    Choice TakeChoice(StringBuffer buffer, bool isRead, const Mend* mend);
    bool IsListFlawed() const;
    bool IsNoting() const { return mode == Mode::Noting; }
    std::int32_t LastAsk() const { return static_cast<std::int32_t>(asks.size()) - 1; }
    std::int32_t ParentAsk() const { return records.empty() ? kNone : records.back(); }
    std::string CurrentPath() const { return PathOf(asks, LastAsk()); }
    void Spoil() { isUnclean = isUnclean || mode == Mode::Strict; }
    // Follows a number that may be the minimum or maximum of another.
    void FollowBound(Label label, double value);
    template <class Value>
    void Keep(const Value& value) {
        if (kept != nullptr) [[unlikely]] {
            asks.back().kept = kept->Keep(value);
        }
    }
    void KeepText(StringBuffer text);

    // Runs what reads the fields of a group.
    template <class ReadFields>
    void InGroup(ReadFields readFields) {
        if (IsNoting()) {
            records.push_back(LastAsk());
        }
        ++depth;
        const std::int32_t around = std::exchange(group, ++lastGroup);
        readFields();
        group = around;
        --depth;
        if (IsNoting()) {
            records.pop_back();
        }
    }

    const Mode mode;
    const KnownNames* const names;
    bool hasVersion = true;
    // Something was not as it should be.
    bool isUnclean = false;
    // The value that was read last is in its form.
    bool isValueClean = true;
    bool endsAbnormally = false;

    // What was said of the next field.
    const EnumTable* nextTable = nullptr;
    NameKind nextName = NameKind::None;
    std::uint64_t nextClasses = 0;
    bool nextIsDegrees = false;
    bool nextIsCount = false;
    ListShape nextList{};
    std::int32_t nextCapacity = 0;

    std::vector<OpenList> lists;
    std::int32_t depth = 0;
    // The number of the record that is read.
    std::int32_t group = 0;
    std::int32_t lastGroup = 0;
    // The asks of the records around.
    std::vector<std::int32_t> records;
    AskedFields asks;
    Findings findings;
    std::size_t mostFindings = static_cast<std::size_t>(-1);

private:
    void Handle(const char* file, int line, std::u16string_view text, bool isFailure) override;

    struct Bound {
        Label label;
        std::size_t place;
        bool isMinimum;
        double value;
        std::int32_t group;
        std::int32_t entry;
        std::int32_t ask;
    };

    // The latest ones.
    std::array<Bound, 8> bounds{};
    std::size_t boundCount = 0;
    std::vector<CrossedBounds> crossedBounds;
    Finding surplus;
    std::vector<FailedCheck> failedChecks;
    std::unique_ptr<KeptValues> kept;
};

// What the readers of both forms do with records and matrices. `Form` has BeginGroup, which tells whether the fields
// of a group are read, ReadWords and ReadOne.
template <class Form>
class FieldReaderForm : public ArchiveForm<Form, FieldReader> {
    using Base = ArchiveForm<Form, FieldReader>;

public:
    using Base::Base;
    using Base::Read;
    using Base::Write;

    void Read(Label label, SingleLineArchivable& value) override {
        this->nextName = value.GetNameKind();
        this->nextClasses = value.GetNameClasses();
        value.Read(label, *this);
        this->nextName = NameKind::None;
        this->nextClasses = 0;
    }
    void Read(Label label, Archivable& value, std::int32_t _version) override {
        if (Own().BeginGroup(label, FieldKind::Record)) {
            this->InGroup([&] { value.Read(*this, _version); });
        }
    }
    void Read(Label label, Archivable& value) override {
        if (Own().BeginGroup(label, FieldKind::Record)) {
            this->InGroup([&] { value.Read(*this); });
        }
    }

    template <MatrixValue Value>
    void ReadValue(Label label, Value& value) {
        using Row = std::conditional_t<std::is_same_v<Value, Matrix33>, Vector3, Quad>;
        if (!Own().BeginGroup(label, kKindOf<Value>)) {
            return;
        }
        this->InGroup([&] {
            for (auto& row : value.rows) {
                auto words = std::to_array(row);
                Own().ReadWords(kRowLabel, FieldKind::Row, words);
                std::ranges::copy(words, row);
                this->Keep(FromWords<Row>(words));
            }
        });
    }
    template <class Value>
    void ReadValue(Label label, Value& value) {
        Own().ReadOne(label, value);
        if constexpr (kIsOneOf<Value, float, std::int32_t, std::uint32_t>) {
            this->FollowBound(label, static_cast<double>(value));
        }
        this->Keep(value);
    }

private:
    Form& Own() { return static_cast<Form&>(*this); }
};

} // namespace Vorn
