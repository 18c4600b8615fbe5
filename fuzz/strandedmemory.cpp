#include "fuzz/strandedmemory.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VORN_HAS_LEAK_CHECK 1
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define VORN_HAS_LEAK_CHECK 1
#endif

#ifdef VORN_HAS_LEAK_CHECK

#include <cstddef>
#include <sanitizer/lsan_interface.h>

// Of the sanitizer's runtime; not every compiler brings the header.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));

namespace Vorn {

namespace {

// A fixed place, since the hooks must not allocate; what does not fit is taken for a leak.
constexpr int kMostBlocks = 1 << 16;

const volatile void* g_Blocks[kMostBlocks];
int g_BlockCount = 0;
bool g_Watching = false;

void OnMalloc(const volatile void* block, std::size_t) {
    if (g_Watching && g_BlockCount < kMostBlocks) {
        g_Blocks[g_BlockCount++] = block;
    }
}

void OnFree(const volatile void* block) {
    if (!g_Watching) {
        return;
    }
    for (int i = g_BlockCount - 1; i >= 0; --i) {
        if (g_Blocks[i] == block) {
            g_Blocks[i] = g_Blocks[--g_BlockCount];
            return;
        }
    }
}

} // namespace

StrandedMemory::StrandedMemory() {
    static const int installed = __sanitizer_install_malloc_and_free_hooks(OnMalloc, OnFree);
    g_BlockCount = 0;
    g_Watching = installed != 0;
}

StrandedMemory::~StrandedMemory() {
    g_Watching = false;
}

void StrandedMemory::Forgive() {
    g_Watching = false;
    for (int i = 0; i < g_BlockCount; ++i) {
        __lsan_ignore_object(const_cast<const void*>(g_Blocks[i]));
    }
}

} // namespace Vorn

#else

namespace Vorn {

StrandedMemory::StrandedMemory() = default;
StrandedMemory::~StrandedMemory() = default;
void StrandedMemory::Forgive() {}

} // namespace Vorn

#endif
