#pragma once

#include "engine/core/reporting.h"
#include "engine/datastructures/fixedvector.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace Vorn {

// Creates objects in a block of memory for SIZE of them, allocated at the first use. When the block is full, that is
// logged, and further objects are allocated one by one.
template <class T, int SIZE>
class Pool {
public:
    Pool() = default;
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    template <class... Arguments>
    T* Make(Arguments&&... arguments) {
        Slot* slot = TakeSlot();
        if (slot == nullptr) {
            LogLine(u"Pool of %d objects is used up.\n", SIZE);
            return new T(std::forward<Arguments>(arguments)...);
        }
        return ::new (static_cast<void*>(slot)) T(std::forward<Arguments>(arguments)...);
    }

    void Destroy(T* object) {
        auto* slot = reinterpret_cast<Slot*>(object);
        if (slots == nullptr || std::less<>()(slot, slots.get()) || !std::less<>()(slot, slots.get() + SIZE)) {
            delete object;
            return;
        }
        std::destroy_at(object);
        freeSlots.Append(slot);
    }

private:
    struct Slot {
        alignas(T) std::byte bytes[sizeof(T)];
    };

    Slot* TakeSlot() {
        if (freeSlots.Size() > 0) {
            Slot* slot = freeSlots[freeSlots.Size() - 1];
            freeSlots.RemoveLast();
            return slot;
        }
        if (slots == nullptr) {
            slots = std::make_unique_for_overwrite<Slot[]>(SIZE);
        }
        return usedSlots < SIZE ? &slots[static_cast<std::size_t>(usedSlots++)] : nullptr;
    }

    std::unique_ptr<Slot[]> slots;
    int usedSlots = 0;
    FixedVector<Slot*, SIZE> freeSlots;
};

} // namespace Vorn
