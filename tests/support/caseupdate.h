#pragma once

#include "tests/support/casesource.h"

namespace Vorn {

// The lines of a case that turn `expected` into `actual`: "out set", "out drop" and "out add".
Lines DescribeChanges(Lines expected, const Lines& actual);

// The lines of a case that describe `reports` of the conversion of `source`.
Lines DescribeReports(std::string_view reports, const SourceLines& source);

// The lines of a case for the fields of a binary file that differ from those of the text form.
Lines DescribeBytes(const Lines& text, std::string_view fields);

} // namespace Vorn
