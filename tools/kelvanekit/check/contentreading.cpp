#include "tools/kelvanekit/check/contentreading.h"

#include "engine/archive/archiveheader.h"
#include "engine/archive/archiveversion.h"
#include "tools/kelvanekit/check/binaryreader.h"
#include "tools/kelvanekit/check/contentcheck.h"
#include "tools/kelvanekit/check/contentfindings.h"
#include "tools/kelvanekit/check/mendsearch.h"
#include "tools/kelvanekit/findings/findingcodes.h"

#include <algorithm>
#include <tuple>

namespace Vorn {

namespace {

// Where the fields of a binary file begin, behind its version.
constexpr std::size_t kBinaryFields = sizeof kBinaryHeader + sizeof kArchiveVersion;

bool HasMark(std::string_view line) {
    const std::string header = ToUtf8(kTextMark);
    return line.substr(0, kHeaderLineCapacity - 1).find(header) != std::string_view::npos;
}

std::string_view FirstLine(const char* start) {
    return {start, std::strcspn(start, "\r\n")};
}

// Whether lines end in a carriage return alone, so that the whole file is one line.
bool HasReturnsAlone(const SourceText& text) {
    const std::string_view first = FirstLine(text.Start());
    const char* end = first.data() + first.size();
    return end + 1 < text.End() && *end == '\r' && end[1] != '\n' && text.LineCount() == 1;
}

} // namespace

ContentReading::ContentReading(ContentKind _kind, std::string_view _bytes, const KnownNames* _names)
    : kind(_kind), bytes(_bytes), names(_names) {
    if (!IsBinaryContent(bytes)) {
        text.emplace(bytes);
        ReadHeader();
    }
}

bool ContentReading::IsFlawless() const {
    LoadedContent read(kind);
    if (IsBinary()) {
        BinaryReader strict(bytes, FieldReader::Mode::Strict, names);
        return strict.Read(read) &&
               IsKept(strict, read, FileArchiveType::Binary, bytes.substr(std::min(bytes.size(), kBinaryFields)));
    }
    if (!findings.empty()) {
        return false;
    }
    const char* fields = text->Start();
    for (int i = 0; i < 2 && fields != text->End(); ++i) {
        const void* lineFeed = std::memchr(fields, '\n', static_cast<std::size_t>(text->End() - fields));
        fields = lineFeed == nullptr ? text->End() : static_cast<const char*>(lineFeed) + 1;
    }
    TextReader strict(*text, header, FieldReader::Mode::Strict, names);
    return strict.Read(read) &&
           IsKept(strict, read, FileArchiveType::Text, {fields, static_cast<std::size_t>(text->End() - fields)});
}

// Whether a content that was read without a finding is written as it is.
bool ContentReading::IsKept(const FieldReader& strict, LoadedContent& read, FileArchiveType form,
                            std::string_view fields) const {
    return strict.GetVersion() == kArchiveVersion && !HasSuspectRelations(read) && IsWrittenAs(read, form, fields);
}

bool ContentReading::ReadFields(bool keepsValues) {
    if (IsBinary()) {
        reader = std::make_unique<BinaryReader>(bytes, FieldReader::Mode::Noting, names);
    } else if (IsForeign()) {
        findings.clear();
        NoteForeign();
        return false;
    } else {
        reader = std::make_unique<TextReader>(*text, header, FieldReader::Mode::Noting, names, FindMends());
        if (keepsValues) {
            reader->KeepValues();
        }
    }
    isRead = reader->Read(content.emplace(kind));
    return true;
}

std::string_view ContentReading::BytesOf(std::int32_t ask) const {
    return static_cast<const BinaryReader&>(*reader).BytesOf(ask);
}

Findings ContentReading::TakeFindings() {
    if (reader != nullptr) {
        std::ranges::move(findings, std::back_inserter(reader->GetFindings()));
        std::string gained;
        if (isRead) {
            NoteRelations(*reader, *content);
            gained = NoteChanges(*reader, *content);
        } else if (!IsBinary()) {
            NoteEnd();
        }
        NoteVersion(*reader, gained);
        if (isRead) {
            NoteFailedChecks(*reader);
        }
        findings = std::move(reader->GetFindings());
        JoinMoved(findings);
    }
    std::ranges::stable_sort(findings, {}, [](const Finding& finding) {
        return std::tuple(finding.place.line, finding.place.offset, finding.place.begin);
    });
    return std::move(findings);
}

void ContentReading::ReadHeader() {
    const std::string_view first = FirstLine(text->Start());
    header.firstLine = 1;
    if (first.size() + 1 >= kHeaderLineCapacity) {
        Add(Code("line-too-long"), 0,
            "the first line has " + std::to_string(first.size()) + " bytes: the rest of it counts as another line");
    }
    if (IsLabel(Trimmed(first), kTextHeader)) {
        return;
    }
    const std::string_view second = text->Line(1);
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
        findings.back().help = isVersionFirst ? "" : "a file begins with `TXT2` and the line of its version";
        header = {0, isVersionFirst};
    } else {
        Add(Code("missing-header"), 0, Quoted(Trimmed(first).substr(0, 80)) + " stands where `TXT2` belongs");
    }
}

// Whether nothing speaks for a content file: no header, no version, and not one of the first keys.
bool ContentReading::IsForeign() const {
    if (HasReturnsAlone(*text)) {
        return true;
    }
    if (header.firstLine != 0 || header.hasVersion) {
        return false;
    }
    LoadedContent probed(kind);
    TextReader probing(*text, header, FieldReader::Mode::Probing, nullptr);
    if (probing.Read(probed)) {
        return false;
    }
    const Mismatch& at = probing.GetMismatch();
    const auto isProbed = [&](std::int32_t line) {
        return std::ranges::any_of(
            at.probes, [&](const ProbedField& probe) { return IsLabel(KeyOf(text->Line(line)), probe.label); });
    };
    return at.line == 0 && !isProbed(0) && !isProbed(1) && !isProbed(2);
}

void ContentReading::NoteForeign() {
    constexpr std::size_t kLookedAt = 64;
    if (bytes.empty()) {
        Add(Code("not-content"), 0, "the file is empty");
        findings.back().help = "`kelvane-kit new` makes a file to begin with";
    } else if (bytes.substr(0, kLookedAt).find('\0') != std::string_view::npos) {
        Add(Code("not-content"), 0, "the file is no text that can be read: perhaps it is UTF-16 without a mark");
        findings.back().help = "save it as UTF-8";
    } else if (HasReturnsAlone(*text)) {
        Add(Code("not-content"), 0, "the lines end in a carriage return alone: the whole file counts as one line");
        findings.back().help = "save it with line feeds at the ends of lines";
    } else {
        Add(Code("not-content"), 0, "the file is no content: its first line is not `TXT2`");
    }
}

// Counts that were left open are those that were found.
Mends ContentReading::FindMends() const {
    Mends mends = Vorn::FindMends(kind, *text, header);
    const auto isOpen = [](const Mend& mend) { return mend.kind == Mend::Kind::OpenCount; };
    if (std::ranges::any_of(mends, isOpen)) {
        LoadedContent counted(kind);
        TextReader counting(*text, header, FieldReader::Mode::Noting, nullptr, mends);
        counting.Read(counted);
        for (Mend& mend : mends) {
            if (isOpen(mend) && static_cast<std::size_t>(mend.ask) < counting.Asks().size()) {
                mend.kind = Mend::Kind::Count;
                mend.value = counting.Asks()[static_cast<std::size_t>(mend.ask)].value;
            }
        }
    }
    return mends;
}

// Why a content could not be read to its end.
void ContentReading::NoteEnd() {
    const Mismatch& at = static_cast<TextReader&>(*reader).GetMismatch();
    const std::int32_t line = at.isAbnormalEnd ? std::max(at.line - 1, 0) : at.line;
    Finding& finding = reader->GetFindings().emplace_back();
    finding.code = at.isAbnormalEnd ? Code("ends-abnormally") : Code("unexpected-section");
    finding.place = {line + 1, 0, static_cast<std::int32_t>(text->Line(line).size())};
    finding.key = PathOf(reader->Asks(), static_cast<std::int32_t>(reader->Asks().size()) - 1);
    finding.message = at.isAbnormalEnd ? "a conversion ends abnormally here"
                                       : "the lines from here on do not agree with the keys: they are not checked";
}

void ContentReading::Add(const FindingCode* code, std::int32_t line, std::string message) {
    Finding& finding = findings.emplace_back();
    finding.code = code;
    finding.place = {line + 1, 0, static_cast<std::int32_t>(text->Line(line).size())};
    finding.message = std::move(message);
}

} // namespace Vorn
