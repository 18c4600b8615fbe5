// Writes a synthetic mesh to a file: generatemesh VERTICES SEED DEST [txt]

#include "bench/syntheticmesh.h"
#include "engine/string/utf8.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv) {
    using namespace Vorn;

    const int vertexCount = argc > 3 ? std::atoi(argv[1]) : 0;
    if (vertexCount < kLeastSyntheticVertices) {
        std::fprintf(stderr, "Usage: generatemesh vertices seed dest [txt]\n\t-vertices is at least %d\n",
                     kLeastSyntheticVertices);
        return 2;
    }
    Core core;
    Mesh::Data data;
    FillSyntheticMesh(data, vertexCount, std::strtoull(argv[2], nullptr, 10));
    const bool isText = argc > 4 && std::strcmp(argv[4], "txt") == 0;
    WriteMesh(core, NameFromBytes(argv[3]), isText ? FileArchiveType::Text : FileArchiveType::Binary, data);
    return 0;
}
