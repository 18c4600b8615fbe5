#include "tools/kelvanekit/check/contentdiff.h"
#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/commandoptions.h"
#include "tools/kelvanekit/contentfile.h"
#include "tools/kelvanekit/visibletext.h"

#include <CLI/CLI.hpp>

namespace Vorn {

namespace {

struct DiffArguments {
    std::string before;
    std::string after;
    std::optional<ContentKind> type;
};

// A file that is read in part is compared as far as it could be read.
void Warn(const ContentFile& content, OutputStream& errors) {
    const auto count = std::ranges::count_if(
        content.GetFindings(), [](const Finding& finding) { return finding.code->severity == Severity::Error; });
    if (count > 0) {
        std::string text = "kelvane-kit: ";
        AppendVisible(text, content.File().name);
        errors.Write(text + " has errors, so that differences may be missing; try 'kelvane-kit check'\n");
    }
}

int Diff(const DiffArguments& arguments, OutputStream& output, OutputStream& errors) {
    // A file that one of the two sides lacks has no name that tells its type.
    const std::optional<ContentKind> named = ContentKindOfFile(arguments.before);
    const std::optional<ContentKind> type = arguments.type ? arguments.type
                                            : named        ? named
                                                           : ContentKindOfFile(arguments.after);
    ContentFile before;
    ContentFile after;
    for (const auto& [content, name] : {std::pair(&before, &arguments.before), std::pair(&after, &arguments.after)}) {
        SourceOptions options;
        options.names = {*name};
        options.type = type;
        if (const std::string problem = content->Open(options); !problem.empty()) {
            std::string text = "kelvane-kit: ";
            AppendVisible(text, problem);
            errors.Write(text + '\n');
            return kNotDone;
        }
        Warn(*content, errors);
    }
    bool isEqual = true;
    CompareFields(before.Fields(), after.Fields(), [&](const FieldDifference& difference) {
        std::string line;
        AppendVisible(line, difference.path + ": ");
        if (difference.before == nullptr || difference.after == nullptr) {
            line += difference.before == nullptr ? "added " : "removed ";
            AppendVisible(line, difference.before == nullptr ? *difference.after : *difference.before);
        } else {
            AppendVisible(line, *difference.before);
            line += " -> ";
            AppendVisible(line, *difference.after);
        }
        while (line.ends_with(' ')) {
            line.pop_back();
        }
        output.Write(line + '\n');
        isEqual = false;
    });
    return isEqual ? kNothingFound : kFindings;
}

} // namespace

CommandRun DeclareDiff(CLI::App& app) {
    const auto arguments = std::make_shared<DiffArguments>();
    app.add_option("BEFORE", arguments->before, "A content file of either form, or an empty file")
        ->type_name("")
        ->required();
    app.add_option("AFTER", arguments->after, "The file that it became")->type_name("")->required();
    AddTypeOption(app, arguments->type, "The type of both files, whatever their ending");
    return [arguments](OutputStream& output, OutputStream& errors) { return Diff(*arguments, output, errors); };
}

} // namespace Vorn
