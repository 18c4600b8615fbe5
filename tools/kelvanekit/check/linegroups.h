#pragma once

#include "tools/kelvanekit/check/sourcetext.h"

namespace Vorn {

// What a line of a text tells about those beside it, whatever keys are asked for. Lines are counted from 0.

// How many lines from this one on are certainly none of a content: a blank one, a comment, or the second half of a
// merge that was not finished. 0 if it may be one of a content.
std::int32_t RemarkLength(const SourceText& text, std::int32_t line);

// How many lines belong together: one, or the first of a group and those that are indented below it.
std::int32_t GroupLength(const SourceText& text, std::int32_t line);

// The second of the only two neighbours that are the same among the lines with the key of this one, which it ends;
// kNone if there are none or more: one more of many equal lines is one more entry.
std::int32_t RepeatedLine(const SourceText& text, std::int32_t line);

} // namespace Vorn
