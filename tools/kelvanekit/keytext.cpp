#include "tools/kelvanekit/check/failedcheck.h"
#include "tools/kelvanekit/describe/keyrows.h"
#include "tools/kelvanekit/keyforms.h"

#include <algorithm>

namespace Vorn {

namespace {

constexpr std::size_t kColumns = 120;

// Words on as many lines as they need, behind an indentation.
void AppendWrapped(std::string& out, const std::string& words, std::size_t indentation) {
    std::size_t column = indentation;
    for (std::size_t begin = 0; begin < words.size();) {
        const std::size_t end = std::min(words.find(' ', begin), words.size());
        if (column + end - begin >= kColumns && column > indentation) {
            out += '\n' + std::string(indentation, ' ');
            column = indentation;
        }
        const bool isFirst = column == indentation;
        out += (isFirst ? "" : " ") + words.substr(begin, end - begin);
        column += end - begin + (isFirst ? 0 : 1);
        begin = end + 1;
    }
    out += '\n';
}

void PrintRows(std::string& out, const KeyModel& model, const std::vector<KeyRow>& rows, std::size_t mostTexts) {
    constexpr std::size_t kWidest = 44;
    std::size_t width = 0;
    const auto widthOf = [](const KeyRow& row) {
        return 2 * static_cast<std::size_t>(row.depth) + row.key->key.size();
    };
    for (const KeyRow& row : rows) {
        width = std::max(width, std::min(widthOf(row), kWidest));
    }
    for (const KeyRow& row : rows) {
        const std::size_t used = widthOf(row);
        out += "  " + std::string(2 * static_cast<std::size_t>(row.depth), ' ') + row.key->key;
        out += used > width ? '\n' + std::string(width + 4, ' ') : std::string(width - used + 2, ' ');
        AppendWrapped(out, RowInWords(model, row, mostTexts), width + 4);
    }
}

void PrintReports(std::string& out, const std::vector<ReportRow>& reports) {
    for (const auto& [report, path] : reports) {
        const std::string condition = ConditionInWords(report->when);
        out += "  ";
        AppendWrapped(out,
                      (path.empty() ? "" : "in " + path + ", ") + (condition.empty() ? "" : condition + ", ") +
                          CheckMessage(report->text) + (report->isPossible ? ", which depends on further values" : ""),
                      4);
    }
}

void PrintRecord(std::string& out, const KeyModel& model, std::int32_t index) {
    const RecordDescription& record = model.records[static_cast<std::size_t>(index)];
    out +=
        record.name + (record.type.empty() || record.type == record.name ? "" : ", a class of " + record.type) + "\n\n";
    constexpr std::size_t kMostTexts = 6;
    const RecordRows rows = RowsOf(model, index, RowDetail::OwnAndBlocks);
    PrintRows(out, model, rows.keys, kMostTexts);
    if (!rows.reports.empty()) {
        out += "\nReported is\n\n";
        PrintReports(out, rows.reports);
    }
    if (!record.usedBy.empty()) {
        out += "\nStands in\n\n";
        for (const KeyUse& use : record.usedBy) {
            out += "  " + model.records[static_cast<std::size_t>(use.record)].name +
                   (use.key.empty() ? "" : "." + use.key) + '\n';
        }
    }
}

void PrintChoices(std::string& out, const std::string& name, const std::vector<std::string>& texts) {
    out += name + "\n\n";
    for (const std::string& text : texts) {
        out += "  " + text + '\n';
    }
    out += "  Invalid\n";
}

// The keys of a path, with all that is in them and the texts that they may have.
void PrintPath(std::string& out, const KeyModel& model, std::int32_t record, const std::string& path) {
    std::vector<KeyRow> rows = RowsOf(model, record, RowDetail::All).keys;
    std::erase_if(rows, [&](const KeyRow& row) { return row.path != path && !row.path.starts_with(path + '.'); });
    const std::int32_t depth = rows.empty() ? 0 : rows.front().depth;
    for (KeyRow& row : rows) {
        row.depth = std::max(row.depth - depth, 0);
    }
    PrintRows(out, model, rows, kAllTexts);
    std::vector<std::string> printed;
    for (const KeyRow& row : rows) {
        const std::string& name = row.key->choices;
        if (!name.empty() && row.key->fixed.empty() && std::ranges::find(printed, name) == printed.end()) {
            printed.push_back(name);
            out += '\n';
            PrintChoices(out, name, model.choices.at(name));
        }
    }
}

void PrintOverview(std::string& out, const KeyModel& model) {
    const auto print = [&](const RecordDescription& record) {
        const std::size_t keys = RowsOf(model, FindRecord(model, record.name), RowDetail::OwnAndBlocks).keys.size();
        out += "  " + record.name + std::string(record.name.size() < 34 ? 34 - record.name.size() : 1, ' ') +
               std::to_string(keys) + (keys == 1 ? " key\n" : " keys\n");
    };
    out += "Types of files, and the classes of entity:\n\n";
    for (const RecordDescription& record : model.records) {
        if (!record.type.empty()) {
            print(record);
        }
    }
    out += "\nRecords and blocks that stand in several places:\n\n";
    for (const RecordDescription& record : model.records) {
        if (record.usedBy.size() > 1) {
            print(record);
        }
    }
}

} // namespace

void PrintKeysAsText(std::string& out, const KeyModel& model, const KeySelection& selection) {
    if (selection.isAll) {
        PrintOverview(out, model);
        return;
    }
    for (const std::int32_t record : selection.records) {
        if (selection.path.empty()) {
            PrintRecord(out, model, record);
        } else {
            PrintPath(out, model, record, selection.path);
        }
    }
}

} // namespace Vorn
