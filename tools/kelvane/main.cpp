#include "engine/core/abnormalend.h"
#include "engine/string/utf8.h"
#include "tools/kelvane/kelvane.h"

#include <csignal>
#include <new>
#include <vector>

namespace {

int Run(const std::vector<std::u16string>& arguments) {
    std::set_new_handler(Vorn::EndAbnormally);
    return Vorn::RunKelvane(arguments, stdout);
}

} // namespace

#ifdef _WIN32

int wmain(int argc, wchar_t** argv) {
    std::vector<std::u16string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.emplace_back(reinterpret_cast<const char16_t*>(argv[i]));
    }
    return Run(arguments);
}

#else

int main(int argc, char** argv) {
    // A reader of the reports that goes away must not stop a conversion.
    std::signal(SIGPIPE, SIG_IGN);
    std::vector<std::u16string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(Vorn::NameFromBytes(argv[i]));
    }
    return Run(arguments);
}

#endif
