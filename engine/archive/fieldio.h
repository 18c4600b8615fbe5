#pragma once

#include "engine/archive/archivable.h"
#include "engine/archive/enumtable.h"
#include "engine/archive/fieldcontext.h"
#include "engine/archive/fieldobserver.h"
#include "engine/archive/listroom.h"
#include "engine/archive/storedsize.h"
#include "engine/datastructures/dynamicarray.h"
#include "engine/datastructures/dynamicvector.h"
#include "engine/datastructures/fixedarray.h"
#include "engine/datastructures/fixedvector.h"
#include "engine/string/fixedstring.h"

#include <algorithm>

namespace Vorn {

class Record;

// What a record lists its fields with: one call a field, which reads or writes it, depending on the direction. The
// calls are named after the kinds and are not overloaded, so that a changed type of a member cannot change a file
// unnoticed.
class FieldIo {
public:
    enum class Direction : bool { Read, Write };

    FieldIo(Archive& _archive, Direction direction) : archive(_archive), reading(direction == Direction::Read) {}
    FieldIo(const FieldIo&) = delete;
    FieldIo& operator=(const FieldIo&) = delete;

    bool Reading() const { return reading; }
    bool Writing() const { return !reading; }

    // The context of the archive.
    const FieldContext& Context() const { return *archive.GetContext(); }

    // Whether the fields that version `threshold` introduced are present: always when writing, and in files of that
    // version or later when reading.
    bool Since(std::int32_t threshold) const {
        if (FieldObserver* observer = archive.GetObserver()) [[unlikely]] {
            observer->OnVersion(threshold);
        }
        return !reading || archive.GetVersion() >= threshold;
    }
    // Whether a file older than version `threshold` is read; a file without a version is older than all.
    bool Before(std::int32_t threshold) const { return !Since(threshold); }

    void Color(Label label, Vorn::Color& value) { Transfer(label, value); }
    void Rectangle(Label label, Vorn::Rectangle& value) { Transfer(label, value); }
    void Size(Label label, Vorn::Size& value) { Transfer(label, value); }
    void Point(Label label, Vorn::Point& value) { Transfer(label, value); }
    void Quad(Label label, Vorn::Quad& value) { Transfer(label, value); }
    void Matrix44(Label label, Vorn::Matrix44& value) { Transfer(label, value); }
    void Matrix33(Label label, Vorn::Matrix33& value) { Transfer(label, value); }
    void Vector3(Label label, Vorn::Vector3& value) { Transfer(label, value); }
    void Int64(Label label, std::int64_t& value) { Transfer(label, value); }
    void Bool(Label label, Vorn::Bool& value) { Transfer(label, value); }
    void Double(Label label, double& value) { Transfer(label, value); }
    void Float(Label label, float& value) { Transfer(label, value); }
    void Int(Label label, std::int32_t& value) { Transfer(label, value); }
    void Uint(Label label, std::uint32_t& value) { Transfer(label, value); }
    void Value(Label label, SingleLineArchivable& value) { Transfer(label, value); }

    // The capacity of the field is that of its member.
    template <int N>
    void String(Label label, FixedString<N>& text, NameKind kind = NameKind::None) {
        if (FieldObserver* observer = archive.GetObserver(); observer != nullptr && kind != NameKind::None)
            [[unlikely]] {
            observer->OnName(kind);
        }
        if (reading) {
            archive.Read(label, text.Buffer().m_Buffer, N);
        } else {
            archive.Write(label, text.Units(), N);
        }
    }

    // The next text is kept by a member of a smaller capacity than that of the field, and cut to it.
    void CutTo(std::int32_t capacity) const {
        if (FieldObserver* observer = archive.GetObserver()) [[unlikely]] {
            observer->OnCapacity(capacity);
        }
    }

    // A number in memory, its text in every file. A missing or unknown text gives -1, whatever the field held.
    template <class E>
    void Enum(Label label, E& value, const EnumTable& table) {
        auto number = static_cast<std::int32_t>(value);
        EnumNumber(label, number, table);
        value = static_cast<E>(number);
    }
    template <class E>
    void Enum(Label label, E& value) {
        static_assert(kEnumTable<E>.rowCount > 0, "the enumeration has no table");
        Enum(label, value, kEnumTable<E>);
    }
    void EnumNumber(Label label, std::int32_t& value, const EnumTable& table);

    // An angle in radians that every file holds in degrees, converted in 32 bits both ways. The two factors are not
    // exact inverses, so a conversion may change the last bits. A missing angle is 0.
    void Degrees(Label label, float& radians);

    // A nested group of fields under a label of its own.
    void Record(Label label, Archivable& value) { Transfer(label, value); }

    // A record whose fields are at this level, without a label.
    void Block(Vorn::Record& block);

    // The entry of a list whose elements are one field under one label each: `io.BoundedList(u"NumWeapons", weapons,
    // io.Records(u"Weapon"))`.
    auto Records(Label label) {
        return [this, label](Archivable& element) { Record(label, element); };
    }
    auto Values(Label label) {
        return [this, label](SingleLineArchivable& element) { Value(label, element); };
    }
    auto Strings(Label label) {
        return [this, label](auto& element) { String(label, element); };
    }
    auto Names(Label label, NameKind kind) {
        return [this, label, kind](auto& element) { String(label, element, kind); };
    }
    auto Enums(Label label) {
        return [this, label](auto& element) { Enum(label, element); };
    }
    auto Floats(Label label) {
        return [this, label](float& element) { Float(label, element); };
    }
    auto Uints(Label label) {
        return [this, label](std::uint32_t& element) { Uint(label, element); };
    }

    // Lists are a count under `countLabel` and then the elements, each transferred by `entry`. A missing count, 0 and
    // every negative number make an empty list; reading replaces what the list held. The verbs differ in what they do
    // with a count that is too large.

    // Keeps as many elements as the list has room for. A surplus is reported once, before the elements are read, and is
    // read and dropped, so that the fields after it are read at their places.
    template <template <class, int> class List, class T, int N, class Entry>
    void BoundedList(Label countLabel, List<T, N>& list, Entry entry) {
        if (reading) {
            const std::int32_t count = ReadCount({countLabel, ListRule::Bounded, N});
            if (count > N) {
                ReportTooMany(countLabel, count, N);
            }
            ReadLimited(count, list, entry, [] {});
        } else {
            WriteList(countLabel, list, entry);
        }
    }

    // Like BoundedList, but each surplus element only fires the vector's own check before it is read and dropped.
    template <class T, int N, class Entry>
    void CappedList(Label countLabel, FixedVector<T, N>& list, Entry entry) {
        if (reading) {
            ReadLimited(ReadCount({countLabel, ListRule::Capped, N}), list, entry,
                        [] { CheckAssert(false, "m_CurrentSize < MAX_SIZE"); });
        } else {
            WriteList(countLabel, list, entry);
        }
    }

    // Grows entry by entry, however large the count is.
    template <class T, class Entry>
    void GrowingList(Label countLabel, DynamicVector<T>& list, Entry entry) {
        TransferGrowing({countLabel, ListRule::Growing}, list, entry);
    }

    // Like GrowingList; the record that it belongs to reports more than `limit` elements.
    template <class T, class Entry>
    void ReportedList(Label countLabel, std::int32_t limit, DynamicVector<T>& list, Entry entry) {
        TransferGrowing({countLabel, ListRule::Reported, limit}, list, entry);
    }

    // A growing list that reserves memory for the whole count at once. Too much ends the process, see ListRoom.
    template <class T, class Entry>
    void ReservedList(Label countLabel, DynamicVector<T>& list, Entry entry, ListRule rule = ListRule::Reserved) {
        if (reading) {
            list.Clear();
            const std::int32_t count = ReadCount({countLabel, rule});
            const ListRoom room = MakeRoom<T>(count);
            if (room.GetLikelyCount() > list.Capacity()) {
                list.Reserve(room.GetLikelyCount());
            }
            ReadEntries(count, [&](std::int32_t) { entry(list.Append()); });
        } else {
            WriteList(countLabel, list, entry);
        }
    }

    // A reserved list that its owner fills anew before it is written.
    template <class T, class Entry>
    void DerivedList(Label countLabel, DynamicVector<T>& list, Entry entry) {
        ReservedList(countLabel, list, entry, ListRule::Derived);
    }

    // An array that is sized at once from the count and keeps its size, even if the file holds fewer elements. A
    // missing or negative count fires "newSize >= 0" and leaves the array empty. Too large a count ends the process,
    // see ListRoom.
    template <class T, class Entry>
    void SizedList(Label countLabel, DynamicArray<T>& array, Entry entry) {
        TransferSized<T>(countLabel, array, entry, [](std::int32_t count) {
            CheckAssert(count >= 0, "newSize >= 0");
            return std::max(count, 0);
        });
    }

    // A sized list whose elements are plain, each one nested under `label` with the fields that the record `Archived`
    // lists for it. A missing or negative count ends the process after its check: such an array must not become empty
    // by mistake.
    template <class Archived, class T>
    void PlainList(Label countLabel, Label label, DynamicArray<T>& array) {
        TransferSized<Archived>(
            countLabel, array, [&](T& element) { PlainRecord<Archived>(label, element); },
            [](std::int32_t count) { return count; });
    }

    // A fixed array, which has no count: each element has a label of its own, as an entry of the kind that `entries`
    // makes: `io.LabelledArray(kDamageLabels, damage, &FieldIo::Floats)`.
    template <class T, int N, class Entries>
    void LabelledArray(const Label (&labels)[N], FixedArray<T, N>& array, Entries entries) {
        for (int i = 0; i < N; ++i) {
            (this->*entries)(labels[i])(array[i]);
        }
    }

    // Accounts for the memory of a list of `count` elements like T.
    template <class T>
    ListRoom MakeRoom(std::int32_t count) {
        const bool isMeasured = count > ListRoom::kShort || ListRoom::IsInside(archive);
        return ListRoom(archive, count, isMeasured ? StoredSize(T(), archive.GetContext()) : 1);
    }

    // Reads the count of a list that has rules of its own.
    std::int32_t ReadCount(const ListShape& list, std::int32_t start = 0);
    void WriteCount(Label label, std::int32_t count);

    // The same for both directions: returns the count of the file, or writes `size`.
    std::int32_t Count(const ListShape& list, std::int32_t size, std::int32_t start = 0) {
        if (reading) {
            return ReadCount(list, start);
        }
        WriteCount(list.countLabel, size);
        return size;
    }

    // Calls `entry` with 0 to count - 1, and stops early once the archive is exhausted.
    template <class Entry>
    void ReadEntries(std::int32_t count, Entry entry) {
        FieldObserver* const observer = archive.GetObserver();
        for (std::int32_t i = 0; i < count && !archive.IsExhausted(); ++i) {
            if (observer != nullptr && !observer->OnEntry(i)) [[unlikely]] {
                break;
            }
            entry(i);
        }
        if (observer != nullptr) [[unlikely]] {
            observer->OnListEnd();
        }
    }

private:
    // An element that knows whether it was read.
    template <class Archived>
    class ReadElement final : public Archivable {
    public:
        using Archivable::Read;

        void Read(Archive& _archive) override {
            wasRead = true;
            element.Read(_archive);
        }
        void Write(Archive& _archive) const override { element.Write(_archive); }

        Archived element;
        bool wasRead = false;
    };

    template <class T>
    void Transfer(Label label, T& value) {
        if (reading) {
            archive.Read(label, value);
        } else {
            archive.Write(label, static_cast<const T&>(value));
        }
    }

    template <class T, class Entry>
    void TransferGrowing(const ListShape& shape, DynamicVector<T>& list, Entry entry) {
        if (reading) {
            list.Clear();
            ReadEntries(ReadCount(shape), [&](std::int32_t) { entry(list.Append()); });
        } else {
            WriteList(shape.countLabel, list, entry);
        }
    }

    // `Stored` is the type of an element as files hold it; `sizeOf` returns the array's size for a count.
    template <class Stored, class T, class Entry, class SizeOf>
    void TransferSized(Label countLabel, DynamicArray<T>& array, Entry entry, SizeOf sizeOf) {
        if (reading) {
            const std::int32_t count = ReadCount({countLabel, ListRule::Sized}, -1);
            const ListRoom room = MakeRoom<Stored>(count);
            array.Resize(sizeOf(count));
            ReadEntries(count, [&](std::int32_t i) { entry(array[i]); });
        } else {
            WriteList(countLabel, array, entry);
        }
    }

    // A plain element that is missing in the file is not stored, so that its memory stays untouched.
    template <class Archived, class T>
    void PlainRecord(Label label, T& element) {
        ReadElement<Archived> archived;
        T& fields = archived.element;
        if (!reading) {
            fields = element;
        }
        Record(label, archived);
        if (reading && archived.wasRead) {
            element = fields;
        }
    }

    template <template <class, int> class List, class T, int N, class Entry, class OnSurplus>
    void ReadLimited(std::int32_t count, List<T, N>& list, Entry entry, OnSurplus onSurplus) {
        list.Clear();
        ReadEntries(count, [&](std::int32_t i) {
            if (i < N) {
                entry(list.Append());
            } else {
                onSurplus();
                entry(ScratchElement<T>());
            }
        });
    }

    template <class List, class Entry>
    void WriteList(Label countLabel, List& list, Entry entry) {
        WriteCount(countLabel, list.Size());
        for (auto& element : list) {
            entry(element);
        }
    }

    static void ReportTooMany(Label countLabel, std::int32_t count, std::int32_t allowed);

    Archive& archive;
    const bool reading;
};

} // namespace Vorn
