#include "gs/entity/support/entitydefname.h"

namespace Vorn {

void EntityDefName::Read(Label label, Archive& archive) {
    archive.Read(label, text.Buffer().m_Buffer, kCapacity);
    if (text.View() == u"Invalid") {
        text.Clear();
    }
    index = kUnresolved;
}

void EntityDefName::Write(Label label, Archive& archive) const {
    archive.Write(label, text.Units(), kCapacity);
}

} // namespace Vorn
