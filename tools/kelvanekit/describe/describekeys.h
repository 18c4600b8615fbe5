#pragma once

#include "tools/kelvanekit/describe/keymodel.h"

namespace Vorn {

enum class ReportDetail : std::uint8_t { None, All };

// Makes the reference by running all lists of fields in every branch. Most of the time goes into finding reports.
KeyModel DescribeKeys(ReportDetail reports = ReportDetail::All);

} // namespace Vorn
