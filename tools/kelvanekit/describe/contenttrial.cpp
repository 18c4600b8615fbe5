#include "tools/kelvanekit/describe/contenttrial.h"

#include "engine/archive/archiveform_impl.h"
#include "gs/entity/entitytypes.h"
#include "tools/kelvanekit/check/readscope.h"
#include "tools/kelvanekit/check/sourcetext.h"

#include <algorithm>

namespace Vorn {

namespace {

// Notes the colours that are written, and no reports.
class ColorArchive final : public ArchiveForm<ColorArchive>, public ReportHandler {
public:
    using ArchiveForm::Read;
    using ArchiveForm::Write;

    void Read(Label, char16_t*, int) override {}
    void Write(Label, const char16_t*, int) override {}

    template <class Value>
    void ReadValue(Label, Value&) {}
    template <class Value>
    void WriteValue(Label, const Value& value) {
        if constexpr (std::is_same_v<Value, Color>) {
            colors.push_back(value.ToUInt());
        }
    }

    void Handle(const char*, int, std::u16string_view, bool) override {}

    std::vector<std::uint32_t> colors;
};

} // namespace

std::vector<ContentForm> ContentForms() {
    std::vector<ContentForm> forms;
    for (const ContentKindRow& row : ContentKinds()) {
        if (row.kind != ContentKind::Entity) {
            forms.push_back({row.kind, std::string(row.name), {}});
            continue;
        }
        // The type is what such a file begins with.
        ContentForm form = {row.kind, {}, {}};
        const std::uint64_t place =
            Try(form, {}, DescribingArchive::kFilePlace, ListAnswer::Empty).value().fields.front().place;
        for (std::int32_t type = 0; type < kEntityTypeTable.rowCount; ++type) {
            const EntityTypeRow* entityType = FindEntityType(static_cast<EntityType>(type));
            if (entityType->make != nullptr) {
                forms.push_back({row.kind, ToUtf8(entityType->text), {{place, type}}});
            }
        }
    }
    return forms;
}

std::optional<Trial> Try(const ContentForm& form, Answers answers, std::uint64_t place, ListAnswer listAnswer,
                         std::uint64_t triedPlace, bool isDeep) {
    for (;;) {
        LoadedContent content(form.kind);
        DescribingArchive archive(answers, listAnswer, place, isDeep);
        if (archive.Describe(content)) {
            return Trial{std::move(answers), std::move(archive.Fields()), {}};
        }
        const DescribedField& last = archive.LastChoice();
        const std::vector<std::int32_t> values = last.Values();
        const auto nextValue = std::ranges::upper_bound(values, last.value);
        if (last.place == triedPlace || nextValue == values.end()) {
            return std::nullopt;
        }
        answers = With(std::move(answers), last.place, *nextValue);
    }
}

std::set<std::uint64_t> FindDroppedColors(const ContentForm& form) {
    const auto trial = Try(form, form.fixed, DescribingArchive::kEverywhere, ListAnswer::OneEntry);
    LoadedContent content(form.kind);
    DescribingArchive archive(trial->answers, ListAnswer::OneEntry, DescribingArchive::kEverywhere);
    archive.Describe(content);
    ColorArchive written;
    const HandlerScope scope(&written);
    content.Write(written);
    DescribedFields read = std::move(archive.Fields());
    std::erase_if(read, [](const DescribedField& field) { return field.kind != FieldKind::Color; });
    std::set<std::uint64_t> dropped;
    for (std::size_t i = 0; i < std::min(read.size(), written.colors.size()); ++i) {
        if (written.colors[i] != DescribingArchive::kMarkedColor) {
            dropped.insert(read[i].place);
        }
    }
    return dropped;
}

} // namespace Vorn
