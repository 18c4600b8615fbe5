#pragma once

#include "tools/kelvanekit/findingreport.h"
#include "tools/kelvanekit/namelists.h"
#include "tools/kelvanekit/sources.h"

#include <algorithm>
#include <functional>

namespace CLI {
class App;
}

namespace Vorn {

// The options that commands share. What they declare is filled in when the command line is parsed; `options` must live
// until then.

// An option that may stand several times, with one value each.
template <class Option>
void MakeRepeatable(Option* option) {
    using Policy = decltype(option->get_multi_option_policy());
    option->expected(1)->allow_extra_args(false)->multi_option_policy(Policy::TakeAll);
}

// An option with one of some names as its value.
void AddChoice(CLI::App& app, const char* option, const char* description, const std::vector<std::string>& names,
               const std::function<void(const std::string&)>& choose);

// The same for one of some rows with a name each.
template <class Row>
void AddNamedOption(CLI::App& app, const char* option, const char* description, std::span<const Row> rows,
                    const Row*& chosen) {
    std::vector<std::string> names;
    for (const Row& row : rows) {
        names.emplace_back(row.name);
    }
    AddChoice(app, option, description, names,
              [rows, &chosen](const std::string& name) { chosen = &*std::ranges::find(rows, name, &Row::name); });
}

// The type of content files, in place of that of their ending.
void AddTypeOption(CLI::App& app, std::optional<ContentKind>& type, const char* description);

// One file and its type.
void AddOneSourceOptions(CLI::App& app, SourceOptions& options);

// Files and folders, their types, and what is left out.
void AddSourceOptions(CLI::App& app, SourceOptions& options);

// Where names of other contents are looked up.
void AddNameOptions(CLI::App& app, NameLists& lists);

// The number of files that are worked on at a time, by default as many as there are processors.
void AddJobsOption(CLI::App& app, unsigned& jobs);

// The form of the findings, and which of them are shown.
void AddReportOptions(CLI::App& app, ReportOptions& options);

} // namespace Vorn
