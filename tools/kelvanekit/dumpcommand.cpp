#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/commandoptions.h"
#include "tools/kelvanekit/contentdump.h"
#include "tools/kelvanekit/contentfile.h"
#include "tools/kelvanekit/visibletext.h"

#include <CLI/CLI.hpp>

namespace Vorn {

namespace {

struct DumpArguments {
    SourceOptions sources;
    const DumpForm* form = &DumpForms().front();
};

int Dump(const DumpArguments& arguments, OutputStream& output, OutputStream& errors) {
    ContentFile content;
    if (const std::string problem = content.Open(arguments.sources); !problem.empty()) {
        std::string text = "kelvane-kit: ";
        AppendVisible(text, problem);
        errors.Write(text + '\n');
        return kNotDone;
    }
    DumpContent(content, *arguments.form, output);
    return kNothingFound;
}

} // namespace

CommandRun DeclareDump(CLI::App& app) {
    const auto arguments = std::make_shared<DumpArguments>();
    AddOneSourceOptions(app, arguments->sources);
    AddNamedOption(app, "--format", "The form of the output [columns]", DumpForms(), arguments->form);
    return [arguments](OutputStream& output, OutputStream& errors) { return Dump(*arguments, output, errors); };
}

} // namespace Vorn
