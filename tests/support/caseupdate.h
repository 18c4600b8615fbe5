#pragma once

#include "tests/support/contentlines.h"

namespace Vorn {

// The lines of a case that turn `expected` into `actual`: "out set", "out drop" and "out add".
Lines DescribeChanges(Lines expected, const Lines& actual);

// A text source as the reports of missing keys see it.
struct SourceLines {
    // All lines, without their ends; the first ones are the header and the version.
    Lines lines;
    std::size_t headerLines = 0;
    bool lastLineEnds = true;

    Lines Content() const;

    // What is reported for a key that is missing while the line `waiting`, or the last one, waits to be read.
    std::string MissingReport(std::string_view key, std::size_t lineNumber, std::size_t waiting) const;
};

// The lines of a case that stand for `reports`, which `source` gave.
Lines DescribeReports(std::string_view reports, const SourceLines& source);

// The lines of a case for a binary file whose fields are not those that its text form stands for.
Lines DescribeBytes(const Lines& text, std::string_view fields);

} // namespace Vorn
