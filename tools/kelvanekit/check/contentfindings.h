#pragma once

#include "tools/kelvanekit/check/textreader.h"

namespace Vorn {

// What can be found once a content is read: each adds to the findings that the reader noted.

// Values that a conversion to text would change, and what an old version loses or gains. Empties no content.
void NoteChanges(const SourceText& text, TextReader& reader, LoadedContent& content);

// The checks of records that failed.
void NoteFailedChecks(const SourceText& text, TextReader& reader);

// What fields tell of each other: entries of one name or type, indices outside of their lists.
void NoteRelations(const SourceText& text, TextReader& reader, const LoadedContent& content);

// Whether NoteRelations would find something in a content that reads without a finding.
bool HasSuspectRelations(const LoadedContent& content);

} // namespace Vorn
