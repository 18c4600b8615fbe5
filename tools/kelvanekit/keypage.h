#pragma once

#include "tools/kelvanekit/describe/keyrows.h"
#include "tools/kelvanekit/keyforms.h"

namespace Vorn {

// A form of the reference that is read as a page: how headings, tables and links look.
class KeyPage {
public:
    explicit KeyPage(std::string& _out) : out(_out) {}
    KeyPage(const KeyPage&) = delete;
    KeyPage& operator=(const KeyPage&) = delete;
    virtual ~KeyPage() = default;

    virtual void Begin(const KeyModel& model, const KeySelection& selection) = 0;
    virtual void End() = 0;
    virtual std::string Text(std::string_view text) const = 0;
    virtual std::string Code(std::string_view text) const = 0;
    // The text of a link is marked up already.
    virtual std::string Link(std::string_view section, const std::string& text) const = 0;
    // A section with a heading, up to the next one; `kind` says in words what it is.
    virtual void Section(std::string_view name, std::string_view kind) = 0;
    virtual void Paragraph(const std::string& text) = 0;
    virtual void BeginTable() = 0;
    // A key with its path in the section; the rest is marked up.
    virtual void Row(std::string_view section, const KeyRow& row, const std::string& kind, const std::string& when) = 0;
    virtual void EndTable() = 0;

protected:
    std::string& out;
};

// Puts the selected records and all enumerations on a page. A record or block that stands in several places has a
// section of its own and links to it.
void PrintKeyPage(KeyPage& page, const KeyModel& model, const KeySelection& selection);

// Whether the record has a section.
bool HasSection(const RecordDescription& record);

} // namespace Vorn
