#include "tools/kelvanekit/keypage.h"

#include "tools/kelvanekit/check/failedcheck.h"

#include <algorithm>
#include <set>

namespace Vorn {

namespace {

std::string JoinedBy(const std::vector<std::string>& parts, const char* separator) {
    std::string text;
    for (const std::string& part : parts) {
        text += (text.empty() ? "" : separator) + part;
    }
    return text;
}

class PagePrinter {
public:
    PagePrinter(KeyPage& _page, const KeyModel& _model) : page(_page), model(_model) {}

    void PrintRecord(std::int32_t index) {
        const RecordDescription& record = model.records[static_cast<std::size_t>(index)];
        const RecordRows rows = RowsOf(model, index, RowDetail::Own);
        page.Section(record.name, record.type.empty()          ? "stands in several places"
                                  : record.type == record.name ? "a type of files"
                                                               : "a class of the type " + record.type);
        page.BeginTable();
        for (const KeyRow& row : rows.keys) {
            page.Row(record.name, row, KindOf(*row.key), page.Text(ConditionInWords(row.when)));
        }
        page.EndTable();
        for (const auto& [report, path] : rows.reports) {
            page.Paragraph(ReportInWords(*report, path));
        }
        PrintUses(record);
    }

    // The enumerations that were named, or all of them.
    void PrintChoices(bool isAll) {
        for (const auto& [name, texts] : model.choices) {
            if (isAll || choices.contains(name)) {
                PrintChoice(name, texts);
            }
        }
    }

private:
    void PrintChoice(const std::string& name, const std::vector<std::string>& texts) {
        page.Section(name, "the texts of an enumeration");
        std::vector<std::string> words;
        for (const std::string& text : texts) {
            words.push_back(page.Code(text));
        }
        page.Paragraph(JoinedBy(words, ", ") + "; " + page.Code("Invalid") + " is none of them");
    }

    // In words, with a link to what it names.
    std::string KindOf(const KeyDescription& key) {
        std::string words = page.Text(KindInWords(model, key));
        std::string target = key.fixed.empty() ? key.choices : "";
        choices.insert(target);
        if (key.record != kNone && HasSection(model.records[static_cast<std::size_t>(key.record)])) {
            target = model.records[static_cast<std::size_t>(key.record)].name;
        }
        const std::string shown = page.Text(target);
        const std::size_t place = words.rfind(shown);
        if (!target.empty() && place != std::string::npos) {
            words.replace(place, shown.size(), page.Link(target, shown));
        }
        if (key.isList || key.start.empty() || !key.fixed.empty()) {
            return words;
        }
        std::string start = key.start;
        std::ranges::replace(start, '\n', ' ');
        return words + "; default " + page.Code(start);
    }

    std::string ReportInWords(const KeyReport& report, const std::string& path) const {
        const std::string condition = ConditionInWords(report.when);
        std::string words = path.empty() ? "Reported" : "Reported in " + page.Code(path);
        words += condition.empty() ? "" : ' ' + page.Text(condition);
        words += ": " + page.Text(CheckMessage(report.text));
        return report.isPossible ? words + ", which depends on further values" : words;
    }

    // The records with a section that have this one, each once.
    void PrintUses(const RecordDescription& record) {
        std::vector<std::string> uses;
        for (const KeyUse& use : record.usedBy) {
            std::int32_t user = use.record;
            while (!HasSection(model.records[static_cast<std::size_t>(user)])) {
                user = model.records[static_cast<std::size_t>(user)].usedBy.front().record;
            }
            const std::string& name = model.records[static_cast<std::size_t>(user)].name;
            std::string link = page.Link(name, page.Text(name));
            if (std::ranges::find(uses, link) == uses.end()) {
                uses.push_back(std::move(link));
            }
        }
        if (!uses.empty()) {
            page.Paragraph("Used by " + JoinedBy(uses, ", "));
        }
    }

    KeyPage& page;
    const KeyModel& model;
    std::set<std::string> choices;
};

} // namespace

bool HasSection(const RecordDescription& record) {
    return !record.type.empty() || record.usedBy.size() != 1;
}

void PrintKeyPage(KeyPage& page, const KeyModel& model, const KeySelection& selection) {
    PagePrinter printer(page, model);
    page.Begin(model, selection);
    for (const std::int32_t index : WithParts(model, selection.records)) {
        if (HasSection(model.records[static_cast<std::size_t>(index)]) || index == selection.records.front()) {
            printer.PrintRecord(index);
        }
    }
    printer.PrintChoices(selection.isAll);
    page.End();
}

} // namespace Vorn
