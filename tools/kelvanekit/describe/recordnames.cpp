#include "tools/kelvanekit/describe/recordnames.h"

#if __has_include(<cxxabi.h>)
#include <cxxabi.h>
#endif

#include <cstdlib>
#include <map>
#include <memory>
#include <set>

namespace Vorn {

namespace {

std::string ReadableName(const std::type_info& type) {
#if __has_include(<cxxabi.h>)
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr),
                                                           &std::free);
    if (name != nullptr) {
        return name.get();
    }
#endif
    return type.name();
}

// The name of a class without what it lies in and is made from, and without the letter of an interface.
std::string ClassName(const std::type_info& type) {
    std::string name;
    int depth = 0;
    for (const char letter : ReadableName(type)) {
        depth += letter == '<' ? 1 : letter == '>' ? -1 : 0;
        if (depth > 0 || letter == '>') {
            continue;
        }
        if (letter == ':' || letter == ' ') {
            name.clear();
        } else {
            name += letter;
        }
    }
    const auto isCapital = [&](std::size_t i) { return i < name.size() && name[i] >= 'A' && name[i] <= 'Z'; };
    return name.starts_with('I') && isCapital(1) ? name.substr(1) : name;
}

} // namespace

void NameRecords(KeyModel& model, std::size_t firstRecord, const std::vector<const std::type_info*>& types) {
    std::map<std::string, int> counts;
    std::set<std::string> taken;
    for (std::size_t i = 0; i < firstRecord; ++i) {
        taken.insert(model.records[i].name);
    }
    for (const std::type_info* type : types) {
        ++counts[ClassName(*type)];
    }
    for (std::size_t i = 0; i < types.size(); ++i) {
        RecordDescription& record = model.records[firstRecord + i];
        record.name = ClassName(*types[i]);
        const KeyUse& use = record.usedBy.front();
        if (counts[record.name] > 1 && !use.key.empty()) {
            record.name = use.key;
        }
        if (taken.contains(record.name)) {
            record.name = model.records[static_cast<std::size_t>(use.record)].name + '/' + record.name;
        }
        std::string unique = record.name;
        for (int number = 2; !taken.insert(unique).second; ++number) {
            unique = record.name + ' ' + std::to_string(number);
        }
        record.name = unique;
    }
}

} // namespace Vorn
