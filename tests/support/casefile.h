#pragma once

#include "tests/support/contentlines.h"

#include <filesystem>
#include <map>
#include <optional>

namespace Vorn {

// What an edit of a case changes: the source, the result, or both.
enum class Side { Both, In, Out };

struct SidedEdit {
    Side side;
    Edit edit;
};

// A report that a case expects.
//   report TEXT, reports N TEXT   one or N lines, or without a text the lines given
//   check TEXT, checks N TEXT     one or N failed checks of that text
//   missing KEY ... at PATH       keys that are not found while that line of the source is the current one
//   missing KEY ... at PATH+N     the same after N more reads of the last line since the report before
struct ExpectedReport {
    std::string verb;
    std::string rest;
    Lines added;
};

// One case of a case file: a content, its edits, and the expected result.
struct Case {
    std::string name;
    std::string from;
    std::vector<SidedEdit> edits;
    std::vector<ExpectedReport> reports;
    // The process ends abnormally.
    bool ends = false;
    // No file is written.
    bool writesNothing = false;
    // "missing any": keys that are missing are not compared.
    bool anyMissing = false;
    // "once": the result changes again at the next conversion.
    bool changesAgain = false;

    // "each PATH" and words below it: the case is one of each of these texts, read from both forms.
    std::string eachPath;
    Lines eachWords;

    // The place of the case in its file, and those of its lines that were written by hand.
    std::size_t begin = 0;
    std::size_t end = 0;
    Lines given;
};

// The lines of a text file after its header and version.
Lines FieldsOfText(std::string text);

// The conversion type of a case file or a folder of samples, up to an underscore in its name: an engine type by its own
// name, else an entity.
std::string ConversionTypeOf(const std::string& name);

// The contents and cases of one kind, tests/content/KIND.cases:
//   # TEXT                  a remark
//   content NAME            the lines given are a content
//   sample NAME FILE        a file below samples is a content
//   from NAME               the content that the following cases start from
//   case NAME               a case, up to the next empty line; a `from` of its own goes first
// A line is given as "|" and the line, below the line that it belongs to.
struct CaseFile {
    CaseFile(const std::filesystem::path& _path, const std::filesystem::path& _samples);

    // Replaces the lines of the case by those written by hand and `generated`.
    void Update(const Case& updated, const Lines& generated);

    std::filesystem::path path;
    std::filesystem::path samples;
    // The conversion type.
    std::string type;
    Lines lines;
    std::map<std::string, Lines> contents;
    std::vector<Case> cases;
    std::map<std::size_t, std::pair<std::size_t, Lines>> updates;
};

} // namespace Vorn
