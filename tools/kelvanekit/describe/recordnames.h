#pragma once

#include "tools/kelvanekit/describe/keymodel.h"

#include <typeinfo>

namespace Vorn {

// Names the records inside files after their classes, or after their keys where a class has fields of several kinds.
// The types are those of the records from `firstRecord` on.
void NameRecords(KeyModel& model, std::size_t firstRecord, const std::vector<const std::type_info*>& types);

} // namespace Vorn
