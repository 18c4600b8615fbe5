#pragma once

#include "engine/string/fixedstring.h"

namespace Vorn {

class MeshSystem {
public:
    bool FindMeshFile(FixedString<260>& result, std::u16string_view name);
};

} // namespace Vorn
