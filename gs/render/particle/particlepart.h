#pragma once

#include "engine/archive/record.h"

namespace Vorn {

// What the emitters and affectors of an effect have in common: a name, a switch, and the time in which they work, in
// seconds from the start of the effect.
class ParticlePart : public Record {
public:
    using Name = FixedString<64>;

    ParticlePart(const ParticlePart&) = delete;
    ParticlePart& operator=(const ParticlePart&) = delete;

    const Name& GetName() const { return name; }
    // At most 63 units; a longer name is cut with the checks of Copy.
    virtual void SetName(std::u16string_view newName) { name.Assign(newName); }

protected:
    ParticlePart() = default;

    void NameFields(FieldIo& io);
    void TimeFields(FieldIo& io);

private:
    Name name;
    Bool enabled = true;
    float startTime = 0.0f;
    Bool hasInfiniteLifeTime = true;
    float totalLifeTime = 0.0f;
};

} // namespace Vorn
