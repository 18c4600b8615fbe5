#include "tools/kelvanekit/command.h"
#include "tools/kelvanekit/findingcodes.h"
#include "tools/kelvanekit/findingreport.h"

#include <CLI/CLI.hpp>

namespace Vorn {

namespace {

struct CheckArguments {
    std::string explain;
};

int Explain(const std::string& name, OutputStream& output, OutputStream& errors) {
    const FindingCode* code = FindCode(name);
    if (code == nullptr) {
        errors.Write("kelvane-kit: " + UnknownCode(name) + '\n');
        return kNotDone;
    }
    output.Write(std::string(code->name) + " (" + std::string(NameOf(code->severity)) + ")\n\n");
    output.Write(code->explanation);
    return kNothingFound;
}

} // namespace

CommandRun DeclareCheck(CLI::App& app) {
    const auto arguments = std::make_shared<CheckArguments>();
    app.add_option("--explain", arguments->explain, "Tell more about a code")->required()->type_name("CODE");
    return
        [arguments](OutputStream& output, OutputStream& errors) { return Explain(arguments->explain, output, errors); };
}

} // namespace Vorn
