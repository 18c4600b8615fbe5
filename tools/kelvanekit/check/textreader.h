#pragma once

#include "engine/string/plainscan.h"
#include "tools/kelvanekit/check/fieldreader.h"
#include "tools/kelvanekit/check/linecursor.h"
#include "tools/kelvanekit/check/valuescan.h"

#include <array>

namespace Vorn {

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

// Runs a list of fields against the lines of a text file, with mends in place. Lines in exactly the written form are
// taken as they stand; every other one goes through ValueScan.
class TextReader final : public FieldReaderForm<TextReader> {
public:
    TextReader(const SourceText& _text, const TextHeader& _header, Mode _mode, const KnownNames* _names,
               const Mends& mends = {});

    // What was in the way, after a failed reading.
    Mismatch& GetMismatch() { return mismatch; }

    std::string_view ValueOf(const AskedField& field) const override;
    FindingPlace PlaceOf(const AskedField& field) const override;

    using FieldReaderForm::Read;
    void Read(Label label, char16_t* buffer, int bufferSize) override;

    // Reads one kind of value, for FieldReaderForm.
    void ReadOne(Label label, Color& value);
    void ReadOne(Label label, Rectangle& value);
    void ReadOne(Label label, std::int64_t& value);
    void ReadOne(Label label, Bool& value);
    void ReadOne(Label label, double& value);
    void ReadOne(Label label, float& value);
    void ReadOne(Label label, std::int32_t& value);
    void ReadOne(Label label, std::uint32_t& value);
    template <WordValue Value>
    void ReadOne(Label label, Value& value);
    template <class Word, std::size_t N>
    void ReadWords(Label label, FieldKind kind, std::array<Word, N>& words);
    bool BeginGroup(Label label, FieldKind kind);

private:
    void ReadAll(LoadedContent& content) override;
    void AtAbnormalEnd() override;
    bool OnEntry(std::int32_t entry) override;
    void OnListEnd() override;

    void ReadVersion();
    template <class Scan>
    bool TakePlain(Label label, FieldKind kind, Scan scan);
    bool FindLine(Label label, FieldKind kind);
    bool FollowAskMends(bool& isAccepted);
    bool IsKeyAhead(Label label, FieldKind kind);
    void TakeLine(Label label, FieldKind kind);
    void FollowLineMends();
    void UpdateStops();
    void NoteMismatch(Label label);
    void Mismatched(Label label, FieldKind kind);
    void Probe(Label label, FieldKind kind);
    template <class Scan>
    bool ReadSlowly(Label label, FieldKind kind, Scan scan);
    std::int32_t CountOf(std::int32_t given, bool isRead);
    bool IsChosen() const { return fieldMend != nullptr && fieldMend->kind == Mend::Kind::Choice; }
    void AddChoice(const EnumTable* table, std::int32_t value, bool isDoubtful);

    // What is noted in the mode for it.
    void NoteAsked(Label label, FieldKind kind, std::int32_t fieldLine);
    void NoteValue(ValueProblem& problem);
    bool NoteLine(std::string_view content);
    void NoteMissing(bool isHeader);
    bool NoteJoined(std::string_view key);
    void NoteTruncated();
    void NoteSkipped(std::int32_t count);
    void NoteSwapped();
    void NoteMisspelt(Label label, std::string_view key, bool isAttached);
    void NoteTruth(bool given);
    Finding& AddAt(const FindingCode* code, std::int32_t atLine, TextRange range, std::string key, std::string message);

    const SourceText& text;
    const TextHeader header;
    Mends askMends;
    std::size_t nextAskMend = 0;
    LineCursor cursor;

    // How many fields were asked for so far.
    std::int32_t askCount = 0;
    // Not taken as it stands, since there is a mend.
    std::int32_t stopAsk = kNone;
    bool isRestMissing = false;
    bool isProbing = false;
    bool isAtEnd = false;
    bool isEntryLabelWanted = false;

    // The line that was taken last, and where its value begins if it was not taken as it stood.
    std::int32_t takenLine = kNone;
    std::string_view takenText;
    std::size_t valueBegin = 0;
    // There is nothing to note of the line as a whole, from which findings of its value would follow.
    bool isLineSound = true;
    // What mends say of the field that is being read.
    const Mend* fieldMend = nullptr;
    bool isHeaderMissing = false;

    static constexpr std::size_t kLatest = 16;
    std::array<OpenList, kLatest> endedLists;
    std::size_t endedCount = 0;
    std::array<ReadChoice, kLatest> choices;
    std::size_t choiceCount = 0;
    ReadChoice firstChoice;

    Mismatch mismatch;
};

} // namespace Vorn
