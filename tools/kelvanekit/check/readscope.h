#pragma once

#include "engine/core/abnormalend.h"
#include "engine/core/reporting.h"

#include <utility>

namespace Vorn {

// What an abnormal end becomes while there is a CatchableEnd: an exception, which leaves the list of fields.
struct AbnormalEnd {};

class CatchableEnd final : public EndGuard {
public:
    void BeforeAbnormalEnd() override { throw AbnormalEnd(); }
};

// Sends the reports of this thread to a handler of its own for a while.
class HandlerScope {
public:
    explicit HandlerScope(ReportHandler* handler) : previous(std::exchange(g_Reporting.reportHandler, handler)) {}
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;
    ~HandlerScope() { g_Reporting.reportHandler = previous; }

private:
    ReportHandler* previous;
};

// Drops all reports of this thread for a while.
class DroppedReports final : public ReportHandler {
public:
    void Handle(const char*, int, std::u16string_view, bool) override {}

private:
    const HandlerScope scope{this};
};

} // namespace Vorn
