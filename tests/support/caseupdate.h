#pragma once

#include "tests/support/casesource.h"

namespace Vorn {

// The lines of a case that turn `expected` into `actual`: "out set", "out drop" and "out add".
Lines DescribeChanges(Lines expected, const Lines& actual);

// The lines of a case that stand for `reports`, which `source` gave.
Lines DescribeReports(std::string_view reports, const SourceLines& source);

// The lines of a case for a binary file whose fields are not those that its text form stands for.
Lines DescribeBytes(const Lines& text, std::string_view fields);

} // namespace Vorn
