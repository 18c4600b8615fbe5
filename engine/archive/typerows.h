#pragma once

#include "engine/archive/fieldio.h"
#include "engine/datastructures/ondemand.h"

namespace Vorn {

// Tables that hold for each value of an enumeration its text and the fields that follow it in a record, in file order.
// Row i belongs to the value i; a field is a small function that reads or writes it.
template <class Values>
using FieldStep = void (*)(FieldIo& io, Values& values);

template <class Values, int kMaxSteps>
struct TypeRow {
    std::u16string_view text;
    FieldStep<Values> steps[kMaxSteps] = {};
};

// The row of a type; null for -1 and all other numbers without a row.
template <class Row, std::size_t N, class E>
const Row* FindRow(const Row (&rows)[N], E type) {
    const auto number = static_cast<std::int32_t>(type);
    return number >= 0 && number < static_cast<std::int32_t>(N) ? &rows[number] : nullptr;
}

// Transfers the fields that follow a type; none for -1.
template <class Row, std::size_t N, class E, class Values>
void RowFields(FieldIo& io, const Row (&rows)[N], E type, Values& values) {
    if (const Row* row = FindRow(rows, type)) {
        for (const auto step : row->steps) {
            if (step == nullptr) {
                break;
            }
            step(io, values);
        }
    }
}

// The same for values that are only created for types with fields.
template <class Row, std::size_t N, class E, class Values>
void RowFields(FieldIo& io, const Row (&rows)[N], E type, OnDemand<Values>& values) {
    const Row* row = FindRow(rows, type);
    if (row != nullptr && row->steps[0] != nullptr) {
        RowFields(io, rows, type, *values);
    }
}

} // namespace Vorn
