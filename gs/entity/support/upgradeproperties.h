#pragma once

#include "engine/archive/record.h"
#include "engine/datastructures/fixedarray.h"

#include <algorithm>

namespace Vorn {

// What a stage of an upgrade changes: a number for each `ValueType` and a switch for each `FlagType`. A file lists them
// in any order and number; of several entries of a type the last one is used, and one of an unknown type fires the
// check "i >= 0" and is dropped. What is written is in the order of the types, without numbers that are 0 and switches
// that are off.
template <class ValueType, class FlagType>
struct UpgradeProperties : Record {
    FixedArray<float, kEnumTable<ValueType>.rowCount> values;
    FixedArray<Bool, kEnumTable<FlagType>.rowCount> flags;

    void Fields(FieldIo& io) override {
        Listed<Value>(io, u"upgradePropertyCount", values, io.Records(u"upgradeProperty"));
        Listed<Flag>(io, u"upgradeBoolPropertyCount", flags,
                     [&](Flag& entry) { io.Enum(u"upgradeBoolProperty", entry.propertyType); });
    }

private:
    // An element as a file lists it.
    struct Value : Record {
        ValueType propertyType = ValueType::Invalid;
        float value = 0.0f;

        void Fields(FieldIo& io) override {
            io.Enum(u"propertyType", propertyType);
            io.Float(u"value", value);
        }
    };
    struct Flag {
        FlagType propertyType = FlagType::Invalid;
        Bool value = true;
    };

    template <class Entry, class T, int N, class Transfer>
    static void Listed(FieldIo& io, Label countLabel, FixedArray<T, N>& elements, Transfer transfer) {
        if (io.Reading()) {
            io.ReadEntries(io.ReadCount({countLabel, ListRule::Keyed, N}), [&](std::int32_t) {
                Entry entry;
                transfer(entry);
                elements[static_cast<int>(entry.propertyType)] = entry.value;
            });
            return;
        }
        const auto isListed = [](T element) { return element != T(); };
        io.WriteCount(countLabel, static_cast<std::int32_t>(std::count_if(elements.begin(), elements.end(), isListed)));
        for (int i = 0; i < N; ++i) {
            if (isListed(elements[i])) {
                Entry entry;
                entry.propertyType = static_cast<decltype(entry.propertyType)>(i);
                entry.value = elements[i];
                transfer(entry);
            }
        }
    }
};

} // namespace Vorn
