#include "fuzz/conversion.h"

#include <cstdint>
#include <cstdlib>

// The entry of libFuzzer; KELVANE_TYPE is the conversion type.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static Vorn::InProcessConversion conversion(KELVANE_TYPE);
    if (!conversion.Convert({reinterpret_cast<const char*>(bytes), size})) {
        std::abort();
    }
    return 0;
}
