// Measures the archives in both forms and directions, beside the bare number conversions of the library.
//
// The loops over numbers come in pairs: `.../Archive` and `.../Library` do the same numbers, and the ratio of their
// times is what counts. `main` prints the ratios of one run at the end.

#include "engine/archive/filearchivesystem.h"
#include "engine/archive/record.h"
#include "engine/core/core.h"
#include "engine/file/filesystem.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace Vorn;

constexpr int kLines = 20000;
constexpr std::u16string_view kFileName = u"/dev/shm/kelvane-bench";

// Written as files have them: coordinates of a few hundred units, with six decimals.
const std::vector<Vector3>& Vectors() {
    static const std::vector<Vector3> vectors = [] {
        std::mt19937 random(1);
        std::uniform_real_distribution<float> coordinate(-500.0f, 500.0f);
        std::vector<Vector3> made(kLines);
        for (Vector3& vector : made) {
            vector = {coordinate(random), coordinate(random), coordinate(random)};
        }
        return made;
    }();
    return vectors;
}

struct Named : Record {
    FixedString<256> name;

    void Fields(FieldIo& io) override { io.String(u"name", name); }
};

struct Nested : Record {
    Named inner;

    void Fields(FieldIo& io) override { io.Record(u"inner", inner); }
};

template <class Transfer>
void Write(Core& core, FileArchiveType form, Transfer transfer) {
    FileArchive* archive = core.fileArchiveSystem.OpenForWrite(kFileName, false, form);
    for (int i = 0; i < kLines; ++i) {
        transfer(*archive, i);
    }
    core.fileArchiveSystem.Close(archive);
}

template <class Transfer>
void Read(Core& core, Transfer transfer) {
    FileArchive* archive = core.fileArchiveSystem.OpenForRead(kFileName, false);
    for (int i = 0; i < kLines; ++i) {
        transfer(*archive, i);
    }
    core.fileArchiveSystem.Close(archive);
}

template <class Value>
void MeasureWrite(benchmark::State& state, FileArchiveType form, const Value& value) {
    Core core;
    for (auto _ : state) {
        Write(core, form, [&](Archive& archive, int) { archive.Write(u"value", value); });
    }
    state.SetItemsProcessed(state.iterations() * kLines);
}

template <class Value>
void MeasureRead(benchmark::State& state, FileArchiveType form, Value value) {
    Core core;
    Write(core, form, [&](Archive& archive, int) { archive.Write(u"value", value); });
    for (auto _ : state) {
        Read(core, [&](Archive& archive, int) { archive.Read(u"value", value); });
    }
    state.SetItemsProcessed(state.iterations() * kLines);
}

void WriteVectorsByArchive(benchmark::State& state) {
    Core core;
    for (auto _ : state) {
        Write(core, FileArchiveType::Text,
              [](Archive& archive, int i) { archive.Write(u"Position", Vectors()[static_cast<std::size_t>(i)]); });
    }
}

void ReadVectorsByArchive(benchmark::State& state) {
    Core core;
    Vector3 vector;
    Write(core, FileArchiveType::Text,
          [](Archive& archive, int i) { archive.Write(u"Position", Vectors()[static_cast<std::size_t>(i)]); });
    for (auto _ : state) {
        Read(core, [&](Archive& archive, int) { archive.Read(u"Position", vector); });
    }
}

// Prints three numbers and returns the end.
char* PrintVector(char* out, const Vector3& vector) {
    for (const float number : {vector.x, vector.y, vector.z}) {
        out = std::to_chars(out, out + 64, number, std::chars_format::fixed, 6).ptr;
        *out++ = ' ';
    }
    return out;
}

void WriteVectorsByLibrary(benchmark::State& state) {
    std::vector<char> text(kLines * 3 * 64);
    for (auto _ : state) {
        char* out = text.data();
        for (const Vector3& vector : Vectors()) {
            out = PrintVector(out, vector);
        }
        benchmark::DoNotOptimize(out);
    }
}

void ReadVectorsByLibrary(benchmark::State& state) {
    std::vector<char> text(kLines * 3 * 64);
    char* end = text.data();
    for (const Vector3& vector : Vectors()) {
        end = PrintVector(end, vector);
    }
    for (auto _ : state) {
        for (const char* p = text.data(); p != end; ++p) {
            float number = 0;
            p = std::from_chars(p, end, number).ptr;
            benchmark::DoNotOptimize(number);
        }
    }
}

BENCHMARK(ReadVectorsByArchive);
BENCHMARK(ReadVectorsByLibrary);
BENCHMARK(WriteVectorsByArchive);
BENCHMARK(WriteVectorsByLibrary);

template <class Value>
void RegisterBoth(const std::string& name, const Value& value) {
    for (const FileArchiveType form : {FileArchiveType::Text, FileArchiveType::Binary}) {
        const std::string suffix = name + (form == FileArchiveType::Text ? "/Text" : "/Binary");
        benchmark::RegisterBenchmark(("Read" + suffix).c_str(),
                                     [=](benchmark::State& state) { MeasureRead(state, form, value); });
        benchmark::RegisterBenchmark(("Write" + suffix).c_str(),
                                     [=](benchmark::State& state) { MeasureWrite(state, form, value); });
    }
}

// Keeps the times of the pairs beside the usual table.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            times[run.benchmark_name()] = run.GetAdjustedRealTime();
        }
    }

    void PrintRatio(const char* what, const std::string& archive, const std::string& library) const {
        const auto first = times.find(archive);
        const auto second = times.find(library);
        if (first != times.end() && second != times.end()) {
            std::printf("%s: %.2f\n", what, first->second / second->second);
        }
    }

private:
    std::map<std::string, double> times;
};

} // namespace

int main(int argc, char** argv) {
    Nested nested;
    nested.inner.name.Assign(u"HUDIcon:Frigate007");
    RegisterBoth("Float", 123.456f);
    RegisterBoth("Uint", std::uint32_t{4711});
    RegisterBoth("Nested", nested);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatio("A Vector3 line read, against from_chars of its numbers", "ReadVectorsByArchive",
                        "ReadVectorsByLibrary");
    reporter.PrintRatio("A Vector3 line written, against to_chars of its numbers", "WriteVectorsByArchive",
                        "WriteVectorsByLibrary");
    std::remove("/dev/shm/kelvane-bench");
}
