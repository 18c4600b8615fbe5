#pragma once

namespace Vorn {

// Where text is written: a run of 16-bit code units with its capacity, terminator included.
struct StringBuffer {
    char16_t* m_Buffer;
    int m_BufferSize;
};

} // namespace Vorn
