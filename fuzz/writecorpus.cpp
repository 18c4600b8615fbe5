#include "fuzz/corpus.h"
#include "tests/support/tempfolder.h"

#include <cstdio>

// Writes contents as single files: writecorpus FOLDER CONTENT..., each a folder or a file of cases.
int main(int argc, char** argv) {
    if (argc < 3) {
        std::puts("Usage: writecorpus FOLDER CONTENT...");
        return 2;
    }
    Vorn::Corpus corpus;
    for (int i = 2; i < argc; ++i) {
        corpus.Load(argv[i]);
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    for (std::size_t i = 0; i < corpus.all.size(); ++i) {
        Vorn::WriteBytes(folder / std::to_string(i), corpus.all[i]);
    }
    return 0;
}
