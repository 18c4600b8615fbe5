#pragma once

#include "engine/core/abnormalend.h"
#include "engine/core/reporting.h"
#include "engine/string/plainscan.h"
#include "tools/kelvanekit/check/knownnames.h"
#include "tools/kelvanekit/check/loadedcontent.h"
#include "tools/kelvanekit/check/mend.h"
#include "tools/kelvanekit/check/valuescan.h"

#include <array>

namespace Vorn {

// Stands for the key of a matrix' row.
inline constexpr Label kRowLabel = u"[";

// What the first line of a text file tells.
struct TextHeader {
    // The line of the first field, the version counted as one.
    std::int32_t firstLine = 0;
    bool hasVersion = true;
    // There is no version, and there should be none.
    bool isOld = false;
    // The first two lines stand in the wrong order.
    bool isSwapped = false;
};

// A check of a record that failed.
struct FailedCheck {
    std::string expression;
    // The last one ahead of the check.
    std::int32_t ask = kNone;
};

// Runs a list of fields against the lines of a text file, with mends in place. Lines in exactly the written form are
// taken as they stand; every other one goes through ValueScan.
class TextReader final : public Archive, private FieldObserver, private ReportHandler {
public:
    enum class Mode : std::uint8_t {
        // Ends at the first thing that is not as it should be.
        Strict,
        // Ends at the first key that does not fit, and finds what could be done about it.
        Probing,
        // Notes every field and every finding. Keys must fit.
        Noting
    };

    // Names are not looked up where `_names` is null.
    TextReader(const SourceText& _text, const TextHeader& _header, Mode _mode, const KnownNames* _names,
               const Mends& mends = {});

    // True if the content was read to its end.
    bool Read(LoadedContent& content);

    // What was in the way, after a false.
    Mismatch& GetMismatch() { return mismatch; }

    // What was noted.
    const AskedFields& Asks() const { return asks; }
    bool HasVersion() const { return header.hasVersion; }
    Findings& GetFindings() { return findings; }
    const std::vector<FailedCheck>& FailedChecks() const { return failedChecks; }

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

    // Nothing is written.
    void Write(Label, const Color&) override {}
    void Write(Label, const Rectangle&) override {}
    void Write(Label, const Size&) override {}
    void Write(Label, const Point&) override {}
    void Write(Label, const Quad&) override {}
    void Write(Label, const Matrix44&) override {}
    void Write(Label, const Matrix33&) override {}
    void Write(Label, const Vector3&) override {}
    void Write(Label, const char16_t*, int) override {}
    void Write(Label, const std::int64_t&) override {}
    void Write(Label, const Bool&) override {}
    void Write(Label, const double&) override {}
    void Write(Label, const float&) override {}
    void Write(Label, const std::int32_t&) override {}
    void Write(Label, const std::uint32_t&) override {}
    void Write(Label, const SingleLineArchivable&) override {}
    void Write(Label, const Archivable&) override {}

private:
    // Leaves the list of fields.
    struct Stop {};

    void OnEnum(const EnumTable& table) override { nextTable = &table; }
    void OnName(NameKind kind) override { nextName = kind; }
    void OnDegrees() override { nextIsDegrees = true; }
    void OnList(const ListShape& shape) override;
    bool OnEntry(std::int32_t entry) override;
    void OnListEnd() override;
    void Handle(const char* file, int line, std::u16string_view text, bool isFailure) override;

    void ReadVersion();
    void ReadToEnd(LoadedContent& content);
    template <class Scan>
    bool TakePlain(Label label, FieldKind kind, Scan scan);
    bool FindLine(Label label, FieldKind kind);
    bool IsKeyAhead(Label label, FieldKind kind);
    void TakeLine(Label label, FieldKind kind);
    void ApplyLineMends();
    void GoTo(std::int32_t newLine);
    void UpdateStops();
    std::string_view LineAhead() const;
    void NoteMismatch(Label label);
    void Mismatched(Label label, FieldKind kind);
    void Probe(Label label, FieldKind kind);
    template <class Scan>
    bool ReadSlowly(Label label, FieldKind kind, Scan scan);
    template <std::size_t N>
    void ReadInts(Label label, FieldKind kind, std::array<std::int32_t, N>& values);
    template <std::size_t N>
    void ReadFloats(Label label, FieldKind kind, std::array<float, N>& values);
    template <std::size_t N>
    void ReadRows(Label label, FieldKind kind, float (&rows)[N][N]);
    template <class ReadRecord>
    void ReadGroup(Label label, FieldKind kind, ReadRecord readRecord);
    std::int32_t CountOf(std::int32_t given, bool isRead);
    void TakeChoice(StringBuffer buffer, const EnumTable& table, bool isRead);
    void AddChoice(const EnumTable* table, std::int32_t value, bool isDoubtful);
    bool IsListFlawed() const;

    // What is noted in the mode for it.
    void NoteField(Label label, FieldKind kind, std::int32_t fieldLine);
    void NoteValue(ValueProblem& problem);
    void NoteLine(std::string_view content);
    void NoteMissing(bool isHeader);
    void NoteTruncated();
    void NoteSkipped(std::int32_t count);
    void NoteSwapped();
    void NoteMisspelt(Label label, std::string_view key);
    void NoteChoice(std::u16string_view given, const EnumTable& table, std::int32_t row);
    void NoteCount(const OpenList& list);
    void NoteNegativeCount(std::int32_t count);
    void NoteName(std::u16string_view name);
    Finding& Add(const FindingCode* code, std::int32_t atLine, TextRange range, std::string key, std::string message);
    TextRange ValueRange() const;
    std::string CurrentPath() const { return PathOf(asks, static_cast<std::int32_t>(asks.size()) - 1); }
    std::int32_t ParentAsk() const { return records.empty() ? kNone : records.back(); }

    const SourceText& text;
    const TextHeader header;
    const Mode mode;
    const KnownNames* const names;
    Mends askMends;
    Mends lineMends;
    std::size_t nextAskMend = 0;
    std::size_t nextLineMend = 0;

    // The next line, and where it begins.
    const char* cursor;
    std::int32_t line;
    // How many fields were asked for so far.
    std::int32_t askCount = 0;
    // Ahead of these nothing is taken as it stands, since there is a mend.
    std::int32_t stopLine = kNone;
    std::int32_t stopAsk = kNone;
    std::int32_t swapLine = kNone;
    bool isSwapDone = false;
    bool isRestMissing = false;
    bool isProbing = false;
    bool isAtEnd = false;
    bool isEntryLabelWanted = false;

    // The line that was taken last and where its value begins, if it was not taken as it stood.
    std::int32_t takenLine = kNone;
    const char* takenStart = nullptr;
    std::string_view takenText;
    std::size_t valueBegin = 0;
    bool isValueClean = true;
    // What mends say of the field that is being read.
    const Mend* fieldMend = nullptr;
    bool isHeaderMissing = false;
    // Something was not as it should be.
    bool isUnclean = false;

    const EnumTable* nextTable = nullptr;
    NameKind nextName = NameKind::None;
    bool nextIsDegrees = false;
    bool nextIsCount = false;
    ListShape nextList{};
    std::int32_t nextCapacity = 0;
    std::vector<OpenList> lists;
    static constexpr std::size_t kLatest = 16;
    std::array<OpenList, kLatest> endedLists;
    std::size_t endedCount = 0;
    std::array<ReadChoice, kLatest> choices;
    std::size_t choiceCount = 0;
    ReadChoice firstChoice;

    Mismatch mismatch;
    std::int32_t depth = 0;
    // The asks of the records around.
    std::vector<std::int32_t> records;
    AskedFields asks;
    Findings findings;
    std::vector<FailedCheck> failedChecks;
};

} // namespace Vorn
