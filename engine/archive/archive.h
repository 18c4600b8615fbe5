#pragma once

#include "engine/archive/archivevalues.h"

namespace Vorn {

class Archivable;
class FieldObserver;
class SingleLineArchivable;
struct FieldContext;

// The one interface between records and files. A record calls it for every field, in a fixed order; the same calls read
// or write every file form. A read that finds nothing reports it and leaves its destination untouched; nothing throws.
class Archive : public ValueOperations<ArchiveValues> {
public:
    static constexpr std::int32_t kNoVersion = -1;

    Archive() = default;
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    virtual ~Archive() = default;

    using ValueOperations::Read;
    using ValueOperations::Write;

    // By default the forms with a bit count forward to the Uint operations and ignore the count.
    virtual void Read(Label label, std::uint32_t& value, int bitCount);
    // `bufferSize` counts code units, terminator included. A longer text is reported and cut.
    virtual void Read(Label label, char16_t* buffer, int bufferSize) = 0;
    virtual void Read(Label label, SingleLineArchivable& value) = 0;
    virtual void Read(Label label, Archivable& value, std::int32_t version) = 0;
    virtual void Read(Label label, Archivable& value) = 0;

    virtual void Write(Label label, const std::uint32_t& value, int bitCount);
    virtual void Write(Label label, const char16_t* text, int bufferSize) = 0;
    virtual void Write(Label label, const SingleLineArchivable& value) = 0;
    virtual void Write(Label label, const Archivable& value) = 0;

    // The version of the file that is read, kNoVersion for an old file or one that is written.
    std::int32_t GetVersion() const { return version; }

    // May be set only once; a second call fires its check and still sets it.
    void SetVersion(std::int32_t _version);

    // What the records read and written through this archive need from outside; null until it is set. Not owned.
    const FieldContext* GetContext() const { return context; }
    void SetContext(const FieldContext* _context) { context = _context; }

    // Is called for the fields that are read, or null. Not owned.
    FieldObserver* GetObserver() const { return observer; }
    void SetObserver(FieldObserver* _observer) { observer = _observer; }

    // True after so many idle reads, with the reports that they caused, that no counted loop should continue: a damaged
    // count must not keep the process busy for hours.
    bool IsExhausted() const { return idleWork > kMaxIdleWork; }

    // The bytes of what is read, or at least those that were read so far; 0 for an archive that is no file.
    virtual std::uint64_t GetSourceSize() const { return 0; }

protected:
    // An idle read is one at the end of the file, or one whose line was read before. Each counts as 1, plus the cost of
    // what is reported from here to the next read, see GetReportCost.
    void CountIdleRead();
    // A read found something new.
    void EndIdleRead() {
        if (isIdle) [[unlikely]] {
            CountIdleReports();
            isIdle = false;
        }
    }

private:
    friend class ListRoom;

    static constexpr std::uint64_t kMaxIdleWork = 1000000;

    void CountIdleReports();

    std::int32_t version = kNoVersion;
    bool isIdle = false;
    std::uint64_t idleWork = 0;
    std::uint64_t reportedBefore = 0;
    std::uint64_t roomsOfLists = 0;
    const FieldContext* context = nullptr;
    FieldObserver* observer = nullptr;
};

// The check of a stored list that must have exactly as many elements as its array.
void CheckElementCount(std::int32_t elementCount, std::int32_t arraySize);

} // namespace Vorn
