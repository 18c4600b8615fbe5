#pragma once

#include "tools/kelvanekit/lsp/textdocument.h"
#include "tools/kelvanekit/lsp/workspaceindex.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Vorn {

// What an editor can be offered for a content file. Places are bytes of the document, texts are UTF-8.

// Something that can stand in place of the bytes from `begin` up to `end`.
struct Completion {
    std::string label;
    std::string text;
    // What the client compares with the bytes that are there.
    std::string filter;
    std::string detail;
    std::size_t begin = 0;
    std::size_t end = 0;
    bool isKey = false;
    // The text has places to fill in, as the protocol writes them.
    bool isSnippet = false;
};

// The keys that are missing at a line, with the lines of the rest of their section; behind a key its allowed texts and
// names.
std::vector<Completion> CompletionsAt(TextDocument& document, std::size_t cursor, const WorkspaceIndex& index,
                                      bool hasSnippets);

// What the reference tells of the key of a line, as Markdown; empty if the line has none.
struct HoverText {
    std::string text;
    std::size_t begin = 0;
    std::size_t end = 0;
};
HoverText HoverAt(TextDocument& document, std::size_t cursor);

// A name that stands at a place: a reference to another content, or what the document itself defines there.
struct NameAtCursor {
    NameKind kind = NameKind::None;
    std::u16string name;
};
NameAtCursor NameAt(TextDocument& document, std::size_t cursor, const std::string& uri);

// The values of a document that are this name.
std::vector<std::pair<std::size_t, std::size_t>> ReferencesIn(TextDocument& document, const NameAtCursor& name);

// Where a file defines a name: a brush at its line, everything else at the start.
std::size_t DefinitionIn(std::string_view text, NameKind kind, std::u16string_view name);

// A section or an entry of a list, from its line to its last one.
struct ContentSymbol {
    std::string name;
    // The first text in it.
    std::string detail;
    bool isGroup = false;
    std::size_t begin = 0;
    std::size_t lineEnd = 0;
    std::size_t end = 0;
    std::vector<ContentSymbol> children;
};
std::vector<ContentSymbol> SymbolsOf(TextDocument& document);

// What repairs a finding: a text in place of the bytes from `begin` up to `end`, and what it does, in words.
struct Cure {
    std::string title;
    std::string text;
    std::size_t begin = 0;
    std::size_t end = 0;
};
std::optional<Cure> CureOf(TextDocument& document, const Finding& finding);

bool ContainsIgnoringCase(std::u16string_view text, std::u16string_view part);

} // namespace Vorn
