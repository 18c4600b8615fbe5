#pragma once

#include "engine/archive/fieldio.h"

namespace Vorn {

// A record that lists its fields once, in file order; the same list reads and writes. The members' initial values are
// what missing keys leave, so they are part of the file format.
class Record : public Archivable {
public:
    using Archivable::Read;

    void Read(Archive& archive) final;
    void Write(Archive& archive) const final;

    virtual void Fields(FieldIo& io) = 0;
};

} // namespace Vorn
