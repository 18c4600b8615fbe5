#include "fuzz/conversion.h"
#include "fuzz/corpus.h"
#include "fuzz/damage.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace Vorn {

namespace {

// What is larger is damaged at random only.
constexpr std::size_t kSmallContent = 2000;
constexpr std::size_t kMostFlips = 2500;

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

// Converts all contents, then systematic and random damage of them: replay TYPE TIMES SEED CONTENT..., each a folder or
// a file of cases.
// A crash, a sanitizer report or a binary form that does not settle is the failure. Seed 0 takes a new one.
int main(int argc, char** argv) {
    if (argc < 5) {
        std::puts("Usage: replay TYPE TIMES SEED CONTENT...");
        return 2;
    }
    unsigned long long seed = std::strtoull(argv[3], nullptr, 10);
    if (seed == 0) {
        seed = std::random_device()();
    }
    std::printf("seed %llu\n", seed);
    Vorn::Corpus corpus;
    for (int i = 4; i < argc; ++i) {
        corpus.Load(argv[i]);
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
