#include "tools/kelvanekit/check/contentcheck.h"

#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"
#include "engine/string/ascii.h"
#include "tools/kelvanekit/check/binarycheck.h"
#include "tools/kelvanekit/check/contentfindings.h"
#include "tools/kelvanekit/check/mendsearch.h"
#include "tools/kelvanekit/check/writtentext.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>
#include <tuple>

namespace Vorn {

namespace {

bool IsLabel(std::string_view key, std::u16string_view label) {
    return key.size() == label.size() && Ascii::EqualsEach(key.data(), label);
}

bool HasMark(std::string_view line) {
    const std::string header = ToUtf8(kTextMark);
    return line.substr(0, kHeaderLineCapacity - 1).find(header) != std::string_view::npos;
}

// Checks the text of a file: the header first, then quickly whether all is well, and if it is not, what is wrong.
class TextCheck {
public:
    TextCheck(ContentKind _kind, std::string_view bytes, const CheckOptions& _options)
        : kind(_kind), text(bytes), options(_options) {}

    Findings Run() {
        ReadHeader();
        if (findings.empty() && IsFlawless()) {
            return {};
        }
        if (IsForeign()) {
            Add(Code("not-content"), 0, "the file is no content: its first line has no TXT in it");
            return std::move(findings);
        }
        LoadedContent content(kind);
        TextReader reader(text, header, TextReader::Mode::Noting, options.names, FindMends());
        const bool isRead = reader.Read(content);
        std::ranges::move(findings, std::back_inserter(reader.GetFindings()));
        findings.clear();
        if (isRead) {
            NoteRelations(text, reader, content);
            NoteChanges(text, reader, content);
            NoteFailedChecks(text, reader);
        } else {
            NoteEnd(reader);
        }
        return Sorted(std::move(reader.GetFindings()));
    }

private:
    // Counts that were left open are those that were found.
    Mends FindMends() const {
        Mends mends = Vorn::FindMends(kind, text, header);
        const auto isOpen = [](const Mend& mend) { return mend.kind == Mend::Kind::OpenCount; };
        if (std::ranges::any_of(mends, isOpen)) {
            LoadedContent content(kind);
            TextReader reader(text, header, TextReader::Mode::Noting, nullptr, mends);
            reader.Read(content);
            for (Mend& mend : mends) {
                if (isOpen(mend) && static_cast<std::size_t>(mend.ask) < reader.Asks().size()) {
                    mend.kind = Mend::Kind::Count;
                    mend.value = reader.Asks()[static_cast<std::size_t>(mend.ask)].value;
                }
            }
        }
        return mends;
    }

    bool IsFlawless() {
        LoadedContent content(kind);
        TextReader reader(text, header, TextReader::Mode::Strict, options.names);
        if (!reader.Read(content) || reader.GetVersion() != kArchiveVersion || HasSuspectRelations(content)) {
            return false;
        }
        const char* fields = text.Start();
        for (int i = 0; i < 2 && fields != text.End(); ++i) {
            const void* lineFeed = std::memchr(fields, '\n', static_cast<std::size_t>(text.End() - fields));
            fields = lineFeed == nullptr ? text.End() : static_cast<const char*>(lineFeed) + 1;
        }
        const std::string_view source(fields, static_cast<std::size_t>(text.End() - fields));
        return IsSameText(source, WriteAsText(content, source.size()));
    }

    void ReadHeader() {
        const std::string_view first = FirstLine(text.Start());
        header.firstLine = 1;
        if (IsLabel(Trimmed(first), kTextHeader)) {
            return;
        }
        const std::string_view second = text.Line(1);
        const bool isVersionSecond = IsLabel(KeyOf(second), kVersionLabel);
        const bool isVersionFirst = IsLabel(KeyOf(first), kVersionLabel);
        if (IsLabel(Trimmed(first), kTextMark) && !isVersionSecond) {
            header.hasVersion = false;
            header.isOld = true;
        } else if (isVersionFirst && IsLabel(Trimmed(second), kTextHeader)) {
            Add(Code("swapped-lines"), 0, "the version stands in front of the line `TXT2`, and should follow it");
            header = {0, true, false, true};
        } else if (isVersionFirst || (!HasMark(first) && !isVersionSecond)) {
            Add(Code("missing-header"), 0, "the first line should be `TXT2`");
            header = {0, isVersionFirst};
        } else {
            Add(Code("missing-header"), 0,
                '`' + std::string(Trimmed(first).substr(0, 80)) + "` stands where `TXT2` belongs");
        }
    }

    static std::string_view FirstLine(const char* start) { return {start, std::strcspn(start, "\r\n")}; }

    // Whether nothing speaks for a content file: no header, no version, and not one of the first keys.
    bool IsForeign() const {
        if (header.firstLine != 0 || header.hasVersion) {
            return false;
        }
        LoadedContent content(kind);
        TextReader reader(text, header, TextReader::Mode::Probing, nullptr);
        reader.Read(content);
        const Mismatch& at = reader.GetMismatch();
        const auto isProbed = [&](std::int32_t line) {
            return std::ranges::any_of(
                at.probes, [&](const ProbedField& probe) { return IsLabel(KeyOf(text.Line(line)), probe.label); });
        };
        return at.line == 0 && !isProbed(0) && !isProbed(1) && !isProbed(2);
    }

    // Why a content could not be read to its end.
    void NoteEnd(TextReader& reader) {
        const Mismatch& at = reader.GetMismatch();
        const std::int32_t line = at.isAbnormalEnd ? std::max(at.line - 1, 0) : at.line;
        Finding& finding = reader.GetFindings().emplace_back();
        finding.code = at.isAbnormalEnd ? Code("ends-abnormally") : Code("unexpected-section");
        finding.place = {line + 1, 0, static_cast<std::int32_t>(text.Line(line).size())};
        finding.key = PathOf(reader.Asks(), static_cast<std::int32_t>(reader.Asks().size()) - 1);
        finding.message = at.isAbnormalEnd ? "a conversion ends abnormally here"
                                           : "the lines from here on do not agree with the keys: they are not checked";
    }

    void Add(const FindingCode* code, std::int32_t line, std::string message) {
        Finding& finding = findings.emplace_back();
        finding.code = code;
        finding.place = {line + 1, 0, static_cast<std::int32_t>(text.Line(line).size())};
        finding.message = std::move(message);
    }

    static Findings Sorted(Findings all) {
        std::ranges::stable_sort(
            all, {}, [](const Finding& finding) { return std::tuple(finding.place.line, finding.place.begin); });
        return all;
    }

    const ContentKind kind;
    const SourceText text;
    const CheckOptions& options;
    TextHeader header;
    Findings findings;
};

bool IsBinary(std::string_view bytes) {
    return bytes.size() >= kBinaryMarkSize && std::equal(kBinaryHeader, kBinaryHeader + kBinaryMarkSize,
                                                         reinterpret_cast<const unsigned char*>(bytes.data()));
}

} // namespace

Findings CheckContent(ContentKind kind, std::string_view bytes, const CheckOptions& options) {
    return IsBinary(bytes) ? CheckBinary(kind, bytes, options) : TextCheck(kind, bytes, options).Run();
}

} // namespace Vorn
