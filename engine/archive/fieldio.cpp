#include "engine/archive/fieldio.h"

#include "engine/archive/record.h"
#include "engine/core/reporting.h"

namespace Vorn {

namespace {

using EnumText = FixedString<256>;

constexpr float kRadiansPerDegree = 0.017453292f;
constexpr float kDegreesPerRadian = 57.295776f;

} // namespace

void FieldIo::EnumNumber(Label label, std::int32_t& value, const EnumTable& table) {
    EnumText text;
    if (FieldObserver* observer = archive.GetObserver()) [[unlikely]] {
        observer->OnEnum(table);
    }
    if (reading) {
        String(label, text);
        value = EnumFromText(text.View(), table);
        return;
    }
    const std::u16string_view row = EnumToText(value, table);
    CheckAssert(row.data() != nullptr, "s != NULL");
    text.Assign(row);
    String(label, text);
}

void FieldIo::Degrees(Label label, float& radians) {
    if (FieldObserver* observer = archive.GetObserver()) [[unlikely]] {
        observer->OnDegrees();
    }
    if (reading) {
        float degrees = 0.0f;
        archive.Read(label, degrees);
        radians = degrees * kRadiansPerDegree;
    } else {
        archive.Write(label, radians * kDegreesPerRadian);
    }
}

void FieldIo::Block(Vorn::Record& block) {
    if (FieldObserver* observer = archive.GetObserver()) [[unlikely]] {
        observer->OnBlock(block);
        block.Fields(*this);
        observer->OnBlockEnd();
        return;
    }
    block.Fields(*this);
}

void FieldIo::ReportTooMany(Label countLabel, std::int32_t count, std::int32_t allowed) {
    ReportError(u"%s exceeds the maximum allowed. %d requested but only %d allowed. If a larger number is needed bug a "
                u"programmer!\n",
                countLabel, count, allowed);
}

std::int32_t FieldIo::ReadCount(const ListShape& list, std::int32_t start) {
    if (FieldObserver* observer = archive.GetObserver()) [[unlikely]] {
        observer->OnList(list);
    }
    auto count = static_cast<std::uint32_t>(start);
    archive.Read(list.countLabel, count);
    return static_cast<std::int32_t>(count);
}

void FieldIo::WriteCount(Label label, std::int32_t count) {
    archive.Write(label, static_cast<std::uint32_t>(count));
}

} // namespace Vorn
