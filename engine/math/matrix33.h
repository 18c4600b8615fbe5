#pragma once

#include "engine/math/matrix.h"
#include "engine/math/vector3.h"

namespace Vorn {

struct Matrix33 : SquareMatrix<3> {
    float& operator()(int row, int column) {
        return *Element(row, column, "(0 <= row) && (row < 3)", "(0 <= column) && (column < 3)");
    }

    // Zero for a row outside, after its check.
    Vector3 Row(int row) const {
        const bool valid = row >= 0 && row < 3;
        CheckAssert(valid, "(row >= 0) && (row < 3)");
        return valid ? Vector3{rows[row][0], rows[row][1], rows[row][2]} : Vector3{};
    }
};

} // namespace Vorn
