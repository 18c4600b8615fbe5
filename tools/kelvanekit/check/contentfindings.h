#pragma once

#include "tools/kelvanekit/check/fieldreader.h"

#include <set>

namespace Vorn {

// The line or the byte of a field and of a finding, and those of many.
std::int64_t SpotOf(const AskedField& field);
std::int64_t SpotOf(const Finding& finding);
std::set<std::int64_t> SpotsOf(const Findings& findings);

// What can be found once a content is read: each adds to the findings that the reader noted.

// Values that a conversion to text would change. What a file of an old version gains is the result.
std::string NoteChanges(FieldReader& reader, LoadedContent& content);

// Another version than the one that is written.
void NoteVersion(FieldReader& reader, const std::string& gained);

// Makes one finding of a key that is missing at one place and stands at another.
void JoinMoved(Findings& findings);

// The checks of records that failed.
void NoteFailedChecks(FieldReader& reader);

// What fields tell of each other: entries of one name or type, indices outside of their lists.
void NoteRelations(FieldReader& reader, const LoadedContent& content);

// Whether NoteRelations would find something in a content that reads without a finding.
bool HasSuspectRelations(const LoadedContent& content);

} // namespace Vorn
