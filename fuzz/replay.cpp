#include "fuzz/conversion.h"
#include "fuzz/damage.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace Vorn {

namespace {

namespace fs = std::filesystem;

// What is larger is damaged at random only.
constexpr std::size_t kSmallContent = 2000;
constexpr std::size_t kMostFlips = 2500;

struct Corpus {
    std::vector<std::string> all;
    // Those that nothing is wrong with.
    std::vector<std::string> sound;
};

void LoadFolder(const char* folder, Corpus& corpus) {
    std::vector<fs::path> paths;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && entry.path().string().find(".reports") == std::string::npos) {
            paths.push_back(entry.path());
        }
    }
    std::sort(paths.begin(), paths.end());
    for (const fs::path& path : paths) {
        std::ifstream file(path, std::ios::binary);
        corpus.all.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        if (path.extension() != ".source") {
            corpus.sound.push_back(corpus.all.back());
        }
    }
}

class Replay {
public:
    explicit Replay(const char* type) : conversion(type) {
        std::printf("A source that crashes is left at %s\n", conversion.SourcePath().c_str());
        std::fflush(stdout);
    }

    void Convert(const std::string& bytes) {
        ++count;
        if (!conversion.Convert(bytes)) {
            std::printf("The binary form does not settle; the source is left at %s\n", conversion.SourcePath().c_str());
            std::fflush(stdout);
            std::abort();
        }
    }

    // The largest content below the limit of each form, which has the most to damage.
    void DamageSystematically(const std::vector<std::string>& sound) {
        for (const bool binary : {false, true}) {
            const std::string* largest = nullptr;
            for (const std::string& content : sound) {
                if (content.size() < kSmallContent && content.starts_with("BIN2") == binary &&
                    (largest == nullptr || content.size() > largest->size())) {
                    largest = &content;
                }
            }
            for (const std::string& damaged : SystematicDamage(largest != nullptr ? *largest : "", kMostFlips)) {
                Convert(damaged);
            }
        }
    }

    void DamageAtRandom(const std::vector<std::string>& corpus, unsigned long long seed, long times) {
        Random random(seed);
        for (long i = 0; i < times; ++i) {
            Convert(Damage(corpus[random() % corpus.size()], corpus, random));
        }
    }

    long Count() const { return count; }

private:
    InProcessConversion conversion;
    long count = 0;
};

} // namespace

} // namespace Vorn

// Converts every file of the folders, then systematic and random damage of them: replay TYPE TIMES SEED FOLDER...
// A crash, a sanitizer report or a binary form that does not settle is the failure. Seed 0 takes a new one.
int main(int argc, char** argv) {
    if (argc < 5) {
        std::puts("Usage: replay TYPE TIMES SEED FOLDER...");
        return 2;
    }
    unsigned long long seed = std::strtoull(argv[3], nullptr, 10);
    if (seed == 0) {
        seed = std::random_device()();
    }
    std::printf("seed %llu\n", seed);
    Vorn::Corpus corpus;
    for (int i = 4; i < argc; ++i) {
        Vorn::LoadFolder(argv[i], corpus);
    }
    if (corpus.all.empty()) {
        std::puts("nothing to replay");
        return 2;
    }
    Vorn::Replay replay(argv[1]);
    std::for_each(corpus.all.begin(), corpus.all.end(), [&](const std::string& content) { replay.Convert(content); });
    replay.DamageSystematically(corpus.sound);
    replay.DamageAtRandom(corpus.all, seed, std::strtol(argv[2], nullptr, 10));
    std::printf("%ld sources converted\n", replay.Count());
    return 0;
}
