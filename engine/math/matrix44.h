#pragma once

#include "engine/math/matrix.h"

namespace Vorn {

struct Matrix44 : SquareMatrix<4> {
    float& operator()(int row, int column) {
        return *Element(row, column, "(0 <= row) && (row < 4)", "(0 <= column) && (column < 4)");
    }
};

} // namespace Vorn
