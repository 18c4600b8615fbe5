#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/commandoptions.h"
#include "tools/kelvanekit/describe/newcontent.h"
#include "tools/kelvanekit/findings/nearest.h"

#include <CLI/CLI.hpp>

namespace Vorn {

namespace {

struct NewArguments {
    std::string type;
    std::string className;
    std::vector<std::string> values;
};

ContentForm FindForm(const NewArguments& arguments) {
    const std::vector<ContentForm> forms = ContentForms();
    const std::optional<ContentKind> kind = ContentKindNamed(arguments.type);
    std::vector<std::string_view> names;
    for (const ContentForm& form : forms) {
        const bool hasClasses = !form.fixed.empty();
        if (form.kind == kind && form.name == (hasClasses ? arguments.className : arguments.type) &&
            (hasClasses || arguments.className.empty())) {
            return form;
        }
        names.push_back(form.kind == kind ? std::string_view(form.name) : NameOf(form.kind));
    }
    if (!kind) {
        throw CLI::ValidationError("no type '" + arguments.type + "'" + DidYouMean(arguments.type, names));
    }
    throw CLI::ValidationError("no class '" + arguments.className + "' of " + arguments.type +
                               DidYouMean(arguments.className, names));
}

std::vector<WantedValue> WantedValues(const std::vector<std::string>& values) {
    std::vector<WantedValue> wanted;
    for (const std::string& value : values) {
        const std::size_t sign = value.find('=');
        if (sign == std::string::npos) {
            throw CLI::ValidationError("--with", "'" + value + "' is not KEY=TEXT");
        }
        wanted.push_back({value.substr(0, sign), value.substr(sign + 1)});
    }
    return wanted;
}

} // namespace

CommandRun DeclareNew(CLI::App& app) {
    const auto arguments = std::make_shared<NewArguments>();
    app.add_option("TYPE", arguments->type, "The type of the content")->required()->type_name("");
    app.add_option("CLASS", arguments->className, "The class, for a type that has classes")->type_name("");
    MakeRepeatable(app.add_option("--with", arguments->values,
                                  "Give a key this value, and add the keys that depend on it; can be repeated")
                       ->type_name("KEY=TEXT"));
    return [arguments](OutputStream& output, OutputStream&) {
        try {
            output.Write(MakeContent(FindForm(*arguments), WantedValues(arguments->values)));
        } catch (const WantedProblem& problem) {
            throw CLI::ValidationError("--with", problem.text);
        }
        return kNothingFound;
    };
}

} // namespace Vorn
