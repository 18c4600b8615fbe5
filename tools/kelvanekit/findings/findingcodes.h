#pragma once

#include "tools/kelvanekit/findings/finding.h"

namespace Vorn {

// All kinds of findings, one row a code. An explanation begins with one sentence on a line of its own; the keys in its
// examples stand for any others.
inline constexpr FindingCode kFindingCodes[] = {
    // Lines of a text file.
    {"missing-key", Severity::Error, R"(The line of a key is missing.
The field keeps its default, whatever that is. Each key has its place in the file: put
the line back between its neighbours.

Wrong:
    width 12.000000
    depth 4.000000
Right:
    width 12.000000
    height 7.500000
    depth 4.000000
)"},
    {"unexpected-line", Severity::Error, R"(A line stands where no key asks for it.
The converter waits at such a line for the rest of the file, so that every key behind
it is lost. Take the line out, or move it to its place. There are no comments.

Wrong:
    width 12.000000
    made for the second level
    height 7.500000
Right:
    width 12.000000
    height 7.500000
)"},
    {"doubled-line", Severity::Error, R"(A line stands twice.
The second one is asked for by no key, and everything behind it is lost. Take one of
the two out.

Wrong:
    width 12.000000
    width 14.000000
    height 7.500000
Right:
    width 14.000000
    height 7.500000
)"},
    {"swapped-lines", Severity::Error, R"(Two lines stand in the wrong order.
Keys are read in one fixed order. Exchange the two lines.

Wrong:
    height 7.500000
    width 12.000000
Right:
    width 12.000000
    height 7.500000
)"},
    {"joined-lines", Severity::Error,
     R"(A key stands on the line of the one before it, as when the end of a line was deleted.
A line has one key and its value: what follows them on the line is lost.

Wrong:
    width 12.000000 height 7.500000
Right:
    width 12.000000
    height 7.500000
)"},
    {"moved-line", Severity::Error, R"(A line, or a group of lines, stands at another place than its own.
Keys are read in one fixed order: all behind the first of the two places is lost. The
message tells where the line belongs.

Wrong:
    width 12.000000
    depth 4.000000
    weight 3.000000
    height 7.500000
Right:
    width 12.000000
    height 7.500000
    depth 4.000000
    weight 3.000000
)"},
    {"misspelt-key", Severity::Error, R"(A key is not spelt as it should be.
Capitals count. The field keeps its default, and everything behind the line is lost.

Wrong:
    Widht 12.000000
Right:
    width 12.000000
)"},
    {"missing-section", Severity::Error,
     R"(The line that begins a group of keys is missing, with or without the keys below it.
All fields of the group keep their defaults.

Wrong:
    name "lamp"
        red 0.500000
        green 0.250000
Right:
    name "lamp"
    color
        red 0.500000
        green 0.250000
)"},
    {"unexpected-section", Severity::Error, R"(A group of keys stands where none is asked for.
Everything behind its first line is lost. Take the group out, or raise the count of the
list that it should belong to.

Wrong:
    lampCount 1
    lamp
        power 3.000000
    lamp
        power 4.000000
Right:
    lampCount 2
    lamp
        power 3.000000
    lamp
        power 4.000000
)"},
    {"count-mismatch", Severity::Error, R"(A count says another number than its entries.
With a count too low the surplus entries and everything behind them are lost; with one
too high the list is filled with defaults.

Wrong:
    lampCount 3
    lamp "red"
    lamp "green"
Right:
    lampCount 2
    lamp "red"
    lamp "green"
)"},
    {"trailing-content", Severity::Error, R"(Something follows the last key.
It is left out by a conversion. Often a count above it is too low.

Wrong:
    lastKey 1
    furtherKey 2
Right:
    lastKey 1
)"},
    {"unexpected-value", Severity::Error, R"(Something follows a key that begins a group of keys.
It is lost.

Wrong:
    lamp "red"
        power 3.000000
Right:
    lamp
        power 3.000000
)"},
    {"line-too-long", Severity::Error, R"(A line has more than 1023 units.
Its rest counts as another line, and everything behind it is lost. Shorten the line.
)"},

    // The beginning of a file, its version and its class.
    {"missing-header", Severity::Error, R"(The first line does not tell the form of the file.
A text file begins with TXT2 and the line of its version; without them nothing in it is
read as it is meant.

Wrong:
    name "lamp"
Right:
    TXT2
    ZephArchiveVersion 194
    name "lamp"
)"},
    {"not-content", Severity::Error, R"(The file is neither a text nor a binary content file.
The first line of a text file has TXT in it; a binary file begins with BIN. Check that
the file is what its name says.
)"},
    {"unknown-version", Severity::Error,
     R"(The version of the file cannot be read, or is one whose content is lost in part.
Old files are read, and written in the current version. What has no place there any more
is lost on the way: the message tells what. Add the line of the version if it is missing,
or bring the file to the current version by hand.

Wrong:
    TXT2
    ZephArchiveVersion
Right:
    TXT2
    ZephArchiveVersion 194
)"},
    {"newer-version", Severity::Warning, R"(The file is of a later version than this program.
It is read as if it were of the current one. Keys that came later are lost.
)"},
    {"older-version", Severity::Note, R"(The file is of an earlier version than this program writes.
It is read by the keys of its version and written in the current one. The help lists the
keys that are new; a key that has no place any more is reported at its own line.
)"},
    {"wrong-type", Severity::Error, R"(The type that the file states is not the one that its keys belong to.
The file is read by the keys of the stated type, and nearly all of it is lost.

Wrong:
    entityType "Planet"
    maxSpeed 12.000000
Right:
    entityType "Ship"
    maxSpeed 12.000000
)"},

    {"wrong-choice", Severity::Error, R"(The keys that follow a text belong to another of its texts.
A text, or TRUE and FALSE, decides which keys follow. The file has those of another one.

Wrong:
    kind "Lamp"
    sound "HONK"
Right:
    kind "Horn"
    sound "HONK"
)"},
    {"not-kept", Severity::Error, R"(A value does not survive a conversion.
It is written as something else, or left out, although nothing is wrong with it by
itself. The message tells what becomes of it.
)"},
    {"rewritten", Severity::Note, R"(A group is written in a shorter form, or left out, which means the same.
Nothing is lost by it.
)"},

    // Values that are texts.
    {"unknown-text", Severity::Error, R"(The text is none of those that the key allows.
It is lost: the field becomes Invalid. The help lists what is allowed.

Wrong:
    size "Enormous"
Right:
    size "Large"
)"},
    {"wrong-case-text", Severity::Error, R"(The text is one that the key allows, but for its capitals.
Capitals count: the field becomes Invalid.

Wrong:
    size "large"
Right:
    size "Large"
)"},
    {"text-too-long", Severity::Error, R"(The text has more units than its field has room for.
It is cut. The help tells how many units there may be.
)"},
    {"text-not-quoted", Severity::Error, R"(A text does not stand in double quotes.
What is outside of the quotes is lost.

Wrong:
    name lamp
    name "lamp
Right:
    name "lamp"
)"},
    {"quote-inside", Severity::Error, R"(A text has a double quote in it.
The quote ends the text; what follows is lost. There is no way to write a quote inside a
text.

Wrong:
    title "the "old" lamp"
Right:
    title "the 'old' lamp"
)"},
    {"text-after-quote", Severity::Error, R"(Something follows the closing quote of a text.
It is lost.

Wrong:
    name "lamp" red
Right:
    name "lamp red"
)"},
    {"zero-inside", Severity::Error, R"(A text or a line has the unit 0 in it.
What follows it is lost.
)"},
    {"malformed-encoding", Severity::Error,
     R"(Bytes do not fit the encoding of the file, UTF-8 unless a byte-order mark says UTF-16.
Each malformed part becomes U+FFFD. Save the file as UTF-8.
)"},

    // Values that are numbers.
    {"number-expected", Severity::Error, R"(A number should stand there.
The field becomes 0 or keeps its default.

Wrong:
    width wide
    width
Right:
    width 12.000000
)"},
    {"number-with-rest", Severity::Error, R"(Something follows the number.
The number is taken up to there, and the rest is lost. Decimals follow a point.

Wrong:
    width 900,5
    width 12 m
Right:
    width 900.5
    width 12
)"},
    {"fraction-for-whole-number", Severity::Error,
     R"(A number with a fraction stands where whole numbers alone are kept.
The fraction is lost.

Wrong:
    level 1.5
Right:
    level 1
)"},
    {"number-out-of-range", Severity::Error, R"(The number is larger or smaller than its field can hold.
A whole number has 32 bits: what is outside of -2147483648 to 2147483647, or of 0 to
4294967295 where no number is negative, becomes another number. A number with decimals
becomes infinite above 3.4e38.

Wrong:
    level 3000000000
    width 1e40
Right:
    level 30
    width 1000
)"},
    {"lost-decimals", Severity::Note, R"(The number has more digits than are kept.
It is kept as the nearest 32-bit number, about seven digits in all, and written as text
with six decimals.

Loses digits:
    width 0.12345678
Does not:
    width 0.123457
)"},
    {"bad-color", Severity::Error, R"(A colour is not a hexadecimal number of up to eight digits.
Colours are written as alpha, red, green and blue, two digits each, with nothing in
front. What is no such digit ends the number.

Wrong:
    color #ff3fa7d9
Right:
    color ff3fa7d9
)"},
    {"bad-boolean", Severity::Error, R"(A truth value is neither TRUE nor FALSE.
Capitals count. Everything but TRUE is false.

Wrong:
    isVisible true
    isVisible 1
Right:
    isVisible TRUE
)"},

    // Lists and what belongs together.
    {"list-too-long", Severity::Error, R"(A list has more entries than it has room for.
The first ones are kept, and the others are lost. The help tells how many there may be.
)"},
    {"duplicate-property", Severity::Error, R"(Two properties of one list have the same type.
One of them is kept.

Wrong:
    property "Speed"
        value 3.000000
    property "Speed"
        value 4.000000
Right:
    property "Speed"
        value 4.000000
)"},
    {"duplicate-name", Severity::Warning, R"(Two entries have one name.
Whoever asks for the name is given one of them. Rename the other, or take it out.

Wrong:
    lamp "red"
    lamp "red"
Right:
    lamp "red"
    lamp "green"
)"},
    {"unsuitable-value", Severity::Warning, R"(A value does not suit another one, or what it is used for.
A minimum is above its maximum, or a check of the content fails.

Wrong:
    minDistance 20.000000
    maxDistance 10.000000
Right:
    minDistance 10.000000
    maxDistance 20.000000
)"},
    {"falling-levels", Severity::Warning, R"(The values of rising levels fall.

Wrong:
    strength:0 10.000000
    strength:1 9.000000
    strength:2 30.000000
Right:
    strength:0 10.000000
    strength:1 20.000000
    strength:2 30.000000
)"},
    {"index-out-of-range", Severity::Error, R"(An index points outside of the list that it belongs to.
Indices count from 0, so that the last one is the number of entries less one.
)"},
    {"stale-index-list", Severity::Note, R"(A stored list of indices is not what the other data of the file gives.
A conversion makes the list anew, and nothing else changes.
)"},

    // Names of other contents.
    {"unresolved-name", Severity::Error, R"(A name refers to something that is not there.
No content below the root folder, or no line of the list given, has it. The help tells
the nearest name that there is.
)"},
    {"wrong-class", Severity::Error, R"(A name refers to a definition of another class than the key needs.
The help tells which class is wanted.
)"},

    // Binary files.
    {"truncated", Severity::Error, R"(The file ends before its last field.
All fields behind the end keep their defaults. Get the file again from where it came.
)"},
    {"not-representable", Severity::Error, R"(A text of a binary file cannot be written in the text form.
A line feed, a double quote, the unit 0 or half of a surrogate pair in it does not
survive a conversion to text.
)"},
    {"ends-abnormally", Severity::Error, R"(A conversion of the file does not come to its end.
The damage leaves nothing sensible to write: a count that asks for more memory than a
list may have, or a type that does not exist. The converter aborts on such a file.
)"},
};

// The code of that name. A name that no row has does not compile.
consteval const FindingCode* Code(std::string_view name) {
    for (const FindingCode& row : kFindingCodes) {
        if (row.name == name) {
            return &row;
        }
    }
    throw "no row of kFindingCodes has this name";
}

// The code of that name, or null.
const FindingCode* FindCode(std::string_view name);

// The place of a code in the table.
std::size_t IndexOf(const FindingCode& code);

// The first sentence of an explanation.
std::string_view SummaryOf(const FindingCode& code);

// The message for a name that is none of a code, with the nearest one if there is any.
std::string UnknownCode(std::string_view name);

} // namespace Vorn
