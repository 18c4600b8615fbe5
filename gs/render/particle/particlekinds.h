#pragma once

#include "engine/archive/enumtable.h"

#include <memory>

namespace Vorn {

class ParticleSimulationDefinition;

// A kind of emitter or affector: its text in files and the function that creates its class, null for a text without a
// class. The number of the row is the value of the type.
template <class Part>
struct ParticleKind {
    std::u16string_view text;
    std::unique_ptr<Part> (*make)(ParticleSimulationDefinition& definition, typename Part::Type type);
};

template <class Part, class Class>
std::unique_ptr<Part> MakePart(ParticleSimulationDefinition& definition, typename Part::Type type) {
    return std::make_unique<Class>(definition, type);
}

// Null for a type without a class.
template <class Part, std::size_t N>
std::unique_ptr<Part> MakeOfKind(const ParticleKind<Part> (&kinds)[N], ParticleSimulationDefinition& definition,
                                 typename Part::Type type) {
    const auto row = static_cast<std::size_t>(type);
    return row < N && kinds[row].make != nullptr ? kinds[row].make(definition, type) : nullptr;
}

} // namespace Vorn
