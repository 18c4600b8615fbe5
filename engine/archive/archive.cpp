#include "engine/archive/archive.h"

#include "engine/core/report.h"

#include <cfloat>

namespace Vorn {

// Every single operation must be rounded to its type, or files would differ between platforms.
static_assert(FLT_EVAL_METHOD == 0, "floating-point evaluation is wider than its types");

void Archive::Read(Label label, std::uint32_t& value, int) {
    Read(label, value);
}

void Archive::Write(Label label, const std::uint32_t& value, int) {
    Write(label, value);
}

void Archive::SetVersion(std::int32_t _version) {
    CheckAssert(version == kNoVersion || _version == kNoVersion, "version == -1 || _version == -1");
    version = _version;
}

void Archive::CountIdleRead() {
    EndIdleRead();
    ++idleWork;
    isIdle = true;
    reportedBefore = GetReportCost();
}

void Archive::CountIdleReports() {
    idleWork += GetReportCost() - reportedBefore;
}

void CheckElementCount(std::int32_t elementCount, std::int32_t arraySize) {
    CheckAssert(elementCount == arraySize, "elementCount == data->Size()");
}

} // namespace Vorn
