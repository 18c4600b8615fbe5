#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/commandoptions.h"
#include "tools/kelvanekit/describe/describekeys.h"
#include "tools/kelvanekit/describe/keyrows.h"
#include "tools/kelvanekit/findings/nearest.h"
#include "tools/kelvanekit/keyforms.h"

#include <CLI/CLI.hpp>

namespace Vorn {

namespace {

struct KeysArguments {
    std::string name;
    std::string find;
    const KeyForm* form = nullptr;
};

// The record and the path in it that a name stands for.
KeySelection Select(const KeyModel& model, const std::string& name) {
    KeySelection selection;
    if (name.empty()) {
        selection.isAll = true;
        for (std::size_t i = 0; i < model.records.size(); ++i) {
            selection.records.push_back(static_cast<std::int32_t>(i));
        }
        return selection;
    }
    const std::size_t dot = std::min(name.find('.'), name.size());
    const std::int32_t record = FindRecord(model, name.substr(0, dot));
    std::vector<std::string_view> names;
    for (const RecordDescription& known : model.records) {
        names.push_back(known.name);
    }
    if (record == kNone) {
        throw CLI::ValidationError("no type, class or record '" + name.substr(0, dot) + "'" +
                                   DidYouMean(name.substr(0, dot), names));
    }
    selection.records = {record};
    if (dot == name.size()) {
        return selection;
    }
    selection.path = name.substr(dot + 1);
    names.clear();
    const std::vector<KeyRow> rows = RowsOf(model, record, RowDetail::All).keys;
    for (const KeyRow& row : rows) {
        names.push_back(row.path);
    }
    if (std::ranges::find(names, selection.path) == names.end()) {
        throw CLI::ValidationError("no key '" + selection.path + "' in " + name.substr(0, dot) +
                                   DidYouMean(selection.path, names));
    }
    return selection;
}

// Each place of the keys with this in their name, capitals or not. The exit status.
int Find(const KeyModel& model, const std::string& part, OutputStream& output, OutputStream& errors) {
    const std::string wanted = CLI::detail::to_lower(part);
    bool isFound = false;
    for (std::size_t i = 0; i < model.records.size(); ++i) {
        const RecordDescription& record = model.records[i];
        if (record.type.empty() && record.usedBy.size() == 1) {
            continue;
        }
        for (const KeyRow& row : RowsOf(model, static_cast<std::int32_t>(i), RowDetail::Own).keys) {
            if (CLI::detail::to_lower(row.key->key).find(wanted) != std::string::npos) {
                const std::string condition = ConditionInWords(row.when);
                output.Write(record.name + '.' + row.path + ": " + KindInWords(model, *row.key) +
                             (condition.empty() ? "" : "; " + condition) + '\n');
                isFound = true;
            }
        }
    }
    if (!isFound) {
        errors.Write("no key has '" + part + "' in its name\n");
    }
    return isFound ? kNothingFound : kFindings;
}

int Keys(const KeysArguments& arguments, OutputStream& output, OutputStream& errors) {
    // As text, only whole records are shown with their reports.
    const bool isText = arguments.form == &KeyForms().front();
    const bool isRecord = !arguments.name.empty() && arguments.name.find('.') == std::string::npos;
    const bool hasReports = arguments.find.empty() && arguments.form->hasReports && (!isText || isRecord);
    const KeyModel model = DescribeKeys(hasReports ? ReportDetail::All : ReportDetail::None);
    if (!arguments.find.empty()) {
        return Find(model, arguments.find, output, errors);
    }
    std::string out;
    arguments.form->print(out, model, Select(model, arguments.name));
    output.Write(out);
    return kNothingFound;
}

} // namespace

CommandRun DeclareKeys(CLI::App& app) {
    const auto arguments = std::make_shared<KeysArguments>();
    arguments->form = &KeyForms().front();
    app.add_option("NAME", arguments->name, "A type, a class, a record, or one of these and keys: Frigate.hasLevels")
        ->type_name("");
    app.add_option("--find", arguments->find, "Show each place of the keys with this in their name")->type_name("KEY");
    AddNamedOption(app, "--format", "The form of the reference [text]", KeyForms(), arguments->form);
    return [arguments](OutputStream& output, OutputStream& errors) { return Keys(*arguments, output, errors); };
}

} // namespace Vorn
