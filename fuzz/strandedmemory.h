#pragma once

namespace Vorn {

// Watches what is allocated during its life. An end that is caught instead of ending the process leaves memory behind
// that no destructor frees; Forgive takes it out of the leak check. Does nothing without AddressSanitizer.
class StrandedMemory {
public:
    StrandedMemory();
    StrandedMemory(const StrandedMemory&) = delete;
    StrandedMemory& operator=(const StrandedMemory&) = delete;
    ~StrandedMemory();

    void Forgive();
};

} // namespace Vorn
