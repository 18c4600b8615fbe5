#pragma once

#include "engine/core/report.h"
#include "engine/datastructures/scratchelement.h"

namespace Vorn {

// A square matrix of floats, row after row, all 0 at first. An access outside fires the checks that the two kinds below
// name and returns a scratch element.
template <int N>
struct SquareMatrix {
    float rows[N][N] = {};

protected:
    float* Element(int row, int column, const char* rowCheck, const char* columnCheck) {
        const bool rowValid = 0 <= row && row < N;
        const bool columnValid = 0 <= column && column < N;
        CheckAssert(rowValid, rowCheck);
        CheckAssert(columnValid, columnCheck);
        return rowValid && columnValid ? &rows[row][column] : &ScratchElement<float>();
    }
};

} // namespace Vorn
