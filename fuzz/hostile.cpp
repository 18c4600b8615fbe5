#include "tests/support/tempfolder.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// Runs the converter on small sources that ask for very much: lines that wait, huge counts wherever a count stands, and
// distinct names: hostile CONVERTER. A run that takes more than kCpuSeconds, ten times what is allowed on a usual
// machine, or more memory than kMostMemory, is the failure. Ends of the converter are not.

namespace {

namespace fs = std::filesystem;

#ifdef NDEBUG
constexpr rlim_t kCpuSeconds = 20;
#else
constexpr rlim_t kCpuSeconds = 200;
#endif
[[maybe_unused]] constexpr rlim_t kMostMemory = rlim_t{3} << 30;
constexpr const char* kHugeCounts[] = {"980000", "4100000", "2147483647"};

struct Shape {
    std::string name;
    std::string type;
    std::string bytes;
};

std::string BinaryNumber(unsigned number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(number >> shift & 0xFF);
    }
    return bytes;
}

std::string ReadSample(const char* name) {
    return Vorn::ReadBytes(fs::path(KELVANE_SAMPLES) / name).value();
}

// Each count of a sample made huge, with nothing or with a line that waits behind it.
void AddHugeCounts(std::vector<Shape>& shapes, const char* type, const char* sample) {
    const std::string text = ReadSample(sample);
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
        const std::string_view line(text.data() + start, end - start);
        const std::size_t blank = line.find(' ', line.find_first_not_of('\t'));
        const std::string_view label = line.substr(0, blank);
        const bool isCount = label.find("ount") != std::string_view::npos ||
                             label.find("\tnum") != std::string_view::npos ||
                             label.find("Num") != std::string_view::npos || label.starts_with("num");
        if (blank != std::string_view::npos && isCount) {
            const std::string name =
                std::string(sample) + " " + std::string(label.substr(label.find_first_not_of('\t')));
            const std::string head = text.substr(0, start) + std::string(label) + " 2147483647\r\n";
            const std::string tail = shapes.size() % 2 == 0 ? "" : std::string(1000, 'w') + "\n";
            shapes.push_back({name + (tail.empty() ? "" : ", a waiting line"), type, head + tail});
        }
        start = end;
    }
}

void AddMeshes(std::vector<Shape>& shapes) {
    const std::string head = "TXT\nMeshData\nmaxDiffuseMipLevel 0\nhasValidTangents FALSE\nBoundingRadius 1\n"
                             "MaxBoundingExtents [ 1 1 1 ]\nMinBoundingExtents [ 0 0 0 ]\n";
    const std::string arrays[] = {"NumMaterials", "NumPoints", "NumVertices", "NumTriangles"};
    for (const char* count : kHugeCounts) {
        for (const std::string& huge : arrays) {
            std::string text = head;
            for (const std::string& array : arrays) {
                text += array + " " + (array == huge ? count : "0") + "\n";
            }
            shapes.push_back({"mesh " + huge + " " + count, "mesh", text});
        }
    }
}

void AddBrushes(std::vector<Shape>& shapes) {
    for (const char* count : kHugeCounts) {
        const std::string text = "TXT\nonlyLoadOnDemand FALSE\nbrushCount " + std::string(count) + "\n";
        shapes.push_back({"brushes " + std::string(count), "brushes", text});
    }
    shapes.push_back({"brushes of zeros", "brushes",
                      std::string("BIN\n\0", 5) + BinaryNumber(2000000) + std::string(1000000, '\0')});
}

void AddPlayers(std::vector<Shape>& shapes) {
    const std::string sample = ReadSample("entity/player_concord.entity");
    const std::string head = sample.substr(0, sample.find("raceRelationsModCount"));
    std::string names = head + "raceRelationsModCount 1\nraceRelationsModifier\nraceNameID \"r\"\nmodifierMin 0\n"
                               "modifierMax 1\nfactionRelationsModCount 9000\n";
    for (int i = 0; i < 9000; ++i) {
        names += "factionRelationsModifier\nfactionNameID \"f" + std::to_string(i) + "\"\notherFactionNameID \"o" +
                 std::to_string(i) + "\"\nmodifierMin 0\nmodifierMax 1\n";
    }
    shapes.push_back({"distinct names", "entity", names});
    std::string nested = head + "raceRelationsModCount 1000\n";
    for (int i = 0; i < 1000; ++i) {
        nested += "raceRelationsModifier\nraceNameID \"\"\nmodifierMin 0\nmodifierMax 1\nfactionRelationsModCount "
                  "100000\n";
    }
    shapes.push_back({"arrays inside an array", "entity", nested});
    const std::string list = sample.substr(0, sample.find("nameCount")) + "nameCount 2147483647\r\n";
    shapes.push_back(
        {"a last line that fires many checks", "entity", list + "name \"" + std::string(1000, 'x') + "\"\n"});
}

[[noreturn]] void BecomeConverter(const char* converter, const Shape& shape, const char* form) {
    const rlimit noCoreFile = {0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
    const rlimit cpu = {kCpuSeconds, kCpuSeconds};
    setrlimit(RLIMIT_CPU, &cpu);
#ifdef KELVANE_LIMIT_MEMORY
    const rlimit memory = {kMostMemory, kMostMemory};
    setrlimit(RLIMIT_AS, &memory);
#endif
    // What is written is not looked at.
    const bool isReady = std::freopen("/dev/null", "w", stderr) != nullptr;
    if (isReady) {
        execl(converter, converter, shape.type.c_str(), "source", "/dev/null", form, nullptr);
    }
    _exit(127);
}

bool Survives(const char* converter, const Shape& shape, const char* form) {
    Vorn::WriteBytes("source", shape.bytes);
    const pid_t child = fork();
    if (child == 0) {
        BecomeConverter(converter, shape, form);
    }
    int status = 0;
    waitpid(child, &status, 0);
    const bool ended = WIFEXITED(status) ? WEXITSTATUS(status) == 0 : WTERMSIG(status) == SIGABRT;
    if (!ended) {
        std::printf("%s to %s: status %x\n", shape.name.c_str(), form, static_cast<unsigned>(status));
    }
    return ended;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::puts("Usage: hostile CONVERTER");
        return 2;
    }
    const std::string converter = fs::absolute(argv[1]).string();
    const Vorn::TempFolder folder;
    fs::current_path(folder.Path());
    std::vector<Shape> shapes;
    AddMeshes(shapes);
    AddBrushes(shapes);
    AddPlayers(shapes);
    AddHugeCounts(shapes, "entity", "entity/buff_plasma_burn.entity");
    AddHugeCounts(shapes, "entity", "entity/researchsubject_charged_hulls.entity");
    int failures = 0;
    for (const Shape& shape : shapes) {
        const char* form = (&shape - shapes.data()) % 2 != 0 ? "txt" : "bin";
        failures += Survives(converter.c_str(), shape, form) ? 0 : 1;
    }
    fs::current_path("/");
    std::printf("%zu shapes, %d failures\n", shapes.size(), failures);
    return failures == 0 && !shapes.empty() ? 0 : 1;
}
