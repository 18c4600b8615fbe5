// Measures conversions of synthetic meshes by a built converter: meshratios KELVANE [VERTICES...]
//
// A line a mesh: whole processes against bare loops over the same numbers, the time of the index lists, and the peak of
// memory beyond the arrays of the record. With valgrind the first line has the instructions for each float.

#include "bench/syntheticmesh.h"
#include "engine/string/utf8.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace Vorn;

namespace fs = std::filesystem;

constexpr int kFloatsPerVertex = 13;
constexpr int kRuns = 9;

template <class Action>
double Seconds(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

template <class Action>
double BestSeconds(Action action) {
    double best = Seconds(action);
    for (int i = 1; i < kRuns; ++i) {
        best = std::min(best, Seconds(action));
    }
    return best;
}

// All numbers of a mesh, in the order of a file: the floats of its vertices, and its indices.
struct Numbers {
    explicit Numbers(const Mesh::Data& data) {
        for (const Mesh::Vertex& v : data.vertices) {
            floats.insert(floats.end(), {v.position.x, v.position.y, v.position.z, v.normal.x, v.normal.y, v.normal.z,
                                         v.tangent.x, v.tangent.y, v.tangent.z, v.u0, v.v0, v.u1, v.v1});
        }
        for (const Mesh::Triangle& t : data.triangles) {
            indices.insert(indices.end(), {t.iVertex0, t.iVertex1, t.iVertex2, t.iMaterial});
        }
        for (const auto& list : data.cachedVertexIndices) {
            indices.insert(indices.end(), list.begin(), list.end());
        }
    }

    std::string Print() const {
        std::string text((floats.size() + indices.size()) * 64, '\0');
        char* out = text.data();
        for (const float value : floats) {
            out = std::to_chars(out, out + 63, value, std::chars_format::fixed, 6).ptr;
            *out++ = ' ';
        }
        for (const std::uint32_t value : indices) {
            out = std::to_chars(out, out + 63, value).ptr;
            *out++ = ' ';
        }
        text.resize(static_cast<std::size_t>(out - text.data()));
        return text;
    }

    void Parse(const std::string& text) {
        const char* cursor = text.data();
        const char* end = cursor + text.size();
        for (float& value : floats) {
            cursor = std::from_chars(cursor, end, value).ptr + 1;
        }
        for (std::uint32_t& value : indices) {
            cursor = std::from_chars(cursor, end, value).ptr + 1;
        }
    }

    std::vector<float> floats;
    std::vector<std::uint32_t> indices;
};

struct Conversion {
    double seconds = 1e9;
    double peakMegabytes = 0.0;
};

Conversion Convert(const std::string& kelvane, const fs::path& source, const fs::path& destination, const char* form) {
    std::string arguments[] = {kelvane, "mesh", source, destination, form};
    char* argv[] = {arguments[0].data(), arguments[1].data(), arguments[2].data(),
                    arguments[3].data(), arguments[4].data(), nullptr};
    Conversion best;
    for (int i = 0; i < kRuns; ++i) {
        rusage usage = {};
        int status = 1;
        // Truncating a large file would take as long as a part of the conversion.
        fs::remove(destination);
        const double seconds = Seconds([&] {
            // The peak of a process counts from its fork, so this one must be small by then.
            const pid_t process = fork();
            if (process == 0) {
                execv(kelvane.c_str(), argv);
                _exit(1);
            }
            wait4(process, &status, 0, &usage);
        });
        if (status != 0) {
            std::fprintf(stderr, "%s failed on %s\n", kelvane.c_str(), source.c_str());
            std::exit(1);
        }
        best.seconds = std::min(best.seconds, seconds);
        best.peakMegabytes = static_cast<double>(usage.ru_maxrss) / 1024.0;
    }
    return best;
}

double ArrayMegabytes(const Mesh::Data& data) {
    std::size_t bytes = static_cast<std::size_t>(data.vertices.Size()) * sizeof(Mesh::Vertex) +
                        static_cast<std::size_t>(data.triangles.Size()) * sizeof(Mesh::Triangle);
    for (const auto& list : data.cachedVertexIndices) {
        bytes += static_cast<std::size_t>(list.Size()) * sizeof(std::int32_t);
    }
    return static_cast<double>(bytes) / 1048576.0;
}

// User-space instructions of a conversion by callgrind, 0 without it.
double Instructions(const std::string& kelvane, const fs::path& source, const fs::path& destination, const char* form) {
    const std::string command = "valgrind --tool=callgrind --callgrind-out-file=/dev/null '" + kelvane + "' mesh '" +
                                source.string() + "' '" + destination.string() + "' " + form +
                                " 2>&1 | sed -n 's/,//g; s/.*Collected : //p'";
    char line[64] = "0";
    if (std::FILE* output = popen(command.c_str(), "r")) {
        if (std::fgets(line, sizeof line, output) == nullptr) {
            line[0] = '\0';
        }
        pclose(output);
    }
    return std::strtod(line, nullptr);
}

class Measurement {
public:
    Measurement(std::string _kelvane, const fs::path& _folder) : kelvane(std::move(_kelvane)), folder(_folder) {}

    void Instructions() {
        constexpr int kVertices = 20000;
        Write(kVertices);
        constexpr double kFloats = static_cast<double>(kVertices) * kFloatsPerVertex;
        std::printf("%d vertices: %.0f instructions a float to binary, %.0f to text\n", kVertices,
                    ::Instructions(kelvane, folder / "txt", folder / "out", "bin") / kFloats,
                    ::Instructions(kelvane, folder / "bin", folder / "out", "txt") / kFloats);
    }

    void Times(int vertices) {
        Write(vertices);
        const Conversion toBinary = Convert(kelvane, folder / "txt", folder / "out", "bin");
        const Conversion toText = Convert(kelvane, folder / "bin", folder / "out", "txt");
        Core core;
        Mesh::Data data;
        data.Load(core.fileArchiveSystem, NameFromBytes((folder / "bin").string()));
        Numbers numbers(data);
        std::string text;
        const double print = BestSeconds([&] { text = numbers.Print(); });
        const double parse = BestSeconds([&] { numbers.Parse(text); });
        const double lists = BestSeconds([&] { data.ComputeCachedVertexIndices(); });
        std::printf("%d vertices: to binary %.2f of from_chars (%.0f ms), to text %.2f of to_chars (%.0f ms), lists "
                    "%.1f ms, memory beyond the arrays %.1f and %.1f MiB\n",
                    vertices, toBinary.seconds / parse, toBinary.seconds * 1e3, toText.seconds / print,
                    toText.seconds * 1e3, lists * 1e3, toBinary.peakMegabytes - ArrayMegabytes(data),
                    toText.peakMegabytes - ArrayMegabytes(data));
    }

private:
    void Write(int vertices) {
        Core core;
        Mesh::Data data;
        FillSyntheticMesh(data, vertices, 1);
        WriteMesh(core, NameFromBytes((folder / "txt").string()), FileArchiveType::Text, data);
        WriteMesh(core, NameFromBytes((folder / "bin").string()), FileArchiveType::Binary, data);
    }

    const std::string kelvane;
    const fs::path folder;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("Usage: meshratios kelvane [vertices...]\n", stderr);
        return 2;
    }
    std::vector<int> sizes = {20000, 200000, 2000000};
    if (argc > 2) {
        sizes.clear();
        std::transform(argv + 2, argv + argc, std::back_inserter(sizes),
                       [](const char* size) { return std::atoi(size); });
    }
    const fs::path folder = fs::temp_directory_path() / ("meshratios-" + std::to_string(getpid()));
    fs::create_directory(folder);
    Measurement measurement(argv[1], folder);
    measurement.Instructions();
    for (const int size : sizes) {
        measurement.Times(std::max(size, kLeastSyntheticVertices));
    }
    fs::remove_all(folder);
    return 0;
}
