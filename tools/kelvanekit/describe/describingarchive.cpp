#include "tools/kelvanekit/describe/describingarchive.h"

#include "engine/archive/archiveform_impl.h"
#include "engine/archive/archiveversion.h"
#include "engine/archive/record.h"
#include "tools/kelvanekit/check/readscope.h"
#include "tools/kelvanekit/check/sourcetext.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Vorn {

namespace {

using Role = DescribedField::Role;

// FNV-1a, unit by unit.
template <class Units>
std::uint64_t Hash(std::uint64_t hash, const Units& units) {
    for (const auto unit : units) {
        hash = (hash ^ static_cast<std::uint64_t>(unit)) * 0x100000001B3;
    }
    return hash;
}

constexpr std::uint64_t kHashStart = 0xCBF29CE484222325;

std::uint64_t HashNumbers(std::initializer_list<std::uint64_t> numbers) {
    return Hash(kHashStart, numbers);
}

std::uint64_t HashPointer(const void* pointer) {
    return static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(pointer));
}

std::uint64_t LikenessOf(const DescribedField& field) {
    const std::uint64_t traits =
        HashNumbers({static_cast<std::uint64_t>(field.role), static_cast<std::uint64_t>(field.kind),
                     static_cast<std::uint64_t>(field.name), static_cast<std::uint64_t>(field.rule),
                     field.isDegrees ? 1U : 0U, HashPointer(field.table), static_cast<std::uint64_t>(field.limit),
                     field.type == nullptr ? 0 : field.type->hash_code(), field.fields, field.classes});
    return Hash(Hash(Hash(traits, field.label), field.start), field.report);
}

// The whole number next to a number, away from 0, so that it compares to other whole numbers as the number does.
std::int32_t WholeOf(float number) {
    constexpr float kLargest = 1e9f;
    const float whole = number < 0.0f ? std::floor(number) : std::ceil(number);
    return static_cast<std::int32_t>(std::clamp(whole, -kLargest, kLargest));
}

} // namespace

DescribingArchive::DescribingArchive(const Answers& _answers, ListAnswer _listAnswer, std::uint64_t _notedPlace,
                                     bool _isDeep)
    : answers(_answers), listAnswer(_listAnswer), notedPlace(_notedPlace), isDeep(_isDeep) {
    SetVersion(kArchiveVersion);
    SetObserver(this);
}

bool DescribingArchive::Describe(LoadedContent& content) {
    const CatchableEnd catchableEnd;
    const HandlerScope scope(this);
    scopes.push_back({kFilePlace, kHashStart, notedPlace == kFilePlace || notedPlace == kEverywhere, false});
    try {
        content.Read(*this);
        if (scopes.back().isNoted && listAnswer == ListAnswer::OneEntry) {
            // Some values are reported when they are written.
            SetObserver(nullptr);
            content.Write(*this);
        }
        return true;
    } catch (const AbnormalEnd&) {
        return false;
    }
}

std::uint64_t DescribingArchive::PlaceOf(std::uint64_t part) const {
    return HashNumbers({scopes.back().place, part});
}

// What the observer was given for the next field belongs to this one.
DescribedField DescribingArchive::TakeNext(Label label, FieldKind kind) {
    DescribedField field = std::exchange(next, {});
    field.label = label;
    field.kind = kind;
    field.place = PlaceOf(Hash(kHashStart, label));
    return field;
}

std::int32_t DescribingArchive::Choose(DescribedField& field, std::int32_t start) {
    const Answer* answer = FindAnswer(answers, field.place);
    field.value = answer == nullptr ? start : answer->value;
    lastChoice = field;
    return field.value;
}

void DescribingArchive::Note(DescribedField field) {
    Scope& scope = scopes.back();
    if (scope.isRepeated && notedPlace != kEverywhere && !isDeep) {
        return;
    }
    field.likeness = LikenessOf(field);
    scope.fields = HashNumbers({scope.fields, field.likeness});
    if (scope.isNoted) {
        fields.push_back(std::move(field));
    }
}

template <class Value>
void DescribingArchive::ReadValue(Label label, Value& value) {
    DescribedField field = TakeNext(label, kKindOf<Value>);
    if constexpr (std::is_same_v<Value, std::uint32_t>) {
        if (field.role == Role::List) {
            const bool isOne = listAnswer == ListAnswer::OneEntry;
            value = static_cast<std::uint32_t>(Choose(field, field.rule == ListRule::Exact ? field.limit : isOne));
            const std::uint64_t place = field.place;
            Note(std::move(field));
            scopes.push_back({place, scopes.back().fields, scopes.back().isNoted, scopes.back().isRepeated});
            return;
        }
    }
    field.start.assign(reinterpret_cast<const char*>(&value), sizeof value);
    if constexpr (std::is_same_v<Value, Color>) {
        if (listAnswer == ListAnswer::OneEntry) {
            value = Color::FromUInt(kMarkedColor);
        }
    } else if constexpr (std::is_same_v<Value, Bool>) {
        value = Choose(field, value ? 1 : 0) != 0;
    } else if constexpr (kIsOneOf<Value, std::int32_t, std::uint32_t>) {
        value = static_cast<Value>(Choose(field, static_cast<std::int32_t>(value)));
    } else if constexpr (std::is_same_v<Value, Point>) {
        if (const Answer* answer = FindAnswer(answers, field.place)) {
            value = {answer->value, answer->value};
        }
        field.value = value.x;
    } else if constexpr (std::is_same_v<Value, Rectangle>) {
        if (const Answer* answer = FindAnswer(answers, field.place)) {
            value = Rectangle::FromExtent(answer->value, answer->value, answer->value, answer->value);
        }
        field.value = value.left;
    } else if constexpr (std::is_same_v<Value, float>) {
        const Answer* answer = FindAnswer(answers, field.place);
        if (answer != nullptr) {
            value = static_cast<float>(answer->value);
        }
        field.value = WholeOf(value);
    }
    Note(std::move(field));
}

void DescribingArchive::Read(Label label, char16_t* buffer, int bufferSize) {
    DescribedField field = TakeNext(label, FieldKind::Text);
    field.limit = field.limit == 0 ? bufferSize : field.limit;
    if (field.table == nullptr) {
        field.start = ToUtf8(TextIn(buffer, bufferSize));
    } else {
        const std::int32_t row = Choose(field, kInvalidEnum);
        StringBuffer out = {buffer, bufferSize};
        Copy(out, EnumToText(row, *field.table));
    }
    Note(std::move(field));
}

void DescribingArchive::Read(Label label, SingleLineArchivable& value) {
    next.name = value.GetNameKind();
    next.classes = value.GetNameClasses();
    value.Read(label, *this);
}

void DescribingArchive::BeginRecord(Label label, const std::type_info& type, std::uint64_t place) {
    DescribedField record;
    record.label = label;
    record.type = &type;
    record.place = place;
    records.push_back(std::move(record));
    const bool isNoted = notedPlace == place || notedPlace == kEverywhere || (isDeep && scopes.back().isNoted);
    scopes.push_back({place, kHashStart, isNoted, scopes.back().isRepeated});
}

void DescribingArchive::EndRecord(Role role) {
    DescribedField record = std::move(records.back());
    records.pop_back();
    record.role = role;
    record.fields = scopes.back().fields;
    scopes.pop_back();
    Note(std::move(record));
}

template <class ReadRecord>
void DescribingArchive::ReadGroup(Label label, const Archivable& value, ReadRecord readRecord) {
    BeginRecord(label, typeid(value), PlaceOf(Hash(kHashStart, label)));
    readRecord();
    EndRecord(Role::Field);
}

void DescribingArchive::Read(Label label, Archivable& value, std::int32_t _version) {
    ReadGroup(label, value, [&] { value.Read(*this, _version); });
}

void DescribingArchive::Read(Label label, Archivable& value) {
    ReadGroup(label, value, [&] { value.Read(*this); });
}

void DescribingArchive::OnBlock(const Record& block) {
    BeginRecord({}, typeid(block), PlaceOf(typeid(block).hash_code()));
}

void DescribingArchive::OnList(const ListShape& shape) {
    next.role = Role::List;
    next.rule = shape.rule;
    next.limit = shape.limit;
}

bool DescribingArchive::OnEntry(std::int32_t entry) {
    if (entry > 0) {
        scopes.back().isRepeated = true;
        scopes.back().place = PlaceOf(static_cast<std::uint64_t>(entry));
    }
    return true;
}

void DescribingArchive::OnListEnd() {
    const std::uint64_t inside = scopes.back().fields;
    scopes.pop_back();
    scopes.back().fields = inside;
    DescribedField end;
    end.role = Role::ListEnd;
    Note(std::move(end));
}

// The records may be asked in turn as if their files were of different versions. Each question is answered by itself.
void DescribingArchive::OnVersion(std::int32_t threshold) {
    if (threshold <= kNoVersion) {
        return;
    }
    DescribedField field;
    field.role = Role::Version;
    field.limit = threshold;
    field.place = PlaceOf(static_cast<std::uint64_t>(threshold));
    const bool isNew = Choose(field, 1) != 0;
    Note(std::move(field));
    SetVersion(kNoVersion);
    SetVersion(isNew ? kArchiveVersion : threshold - 1);
}

void DescribingArchive::Handle(const char*, int, std::u16string_view text, bool) {
    DescribedField report;
    report.role = Role::Report;
    report.type = records.empty() ? nullptr : records.back().type;
    report.report = Trimmed(ToUtf8(text));
    Note(std::move(report));
}

} // namespace Vorn
