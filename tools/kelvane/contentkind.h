#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace Vorn {

// The types of content that the text and the binary form share, in the order of their table.
enum class ContentKind : std::uint8_t { Mesh, Particle, Brushes, Entity };

// The name of a type on the command line, and the ending of its files.
struct ContentKindRow {
    std::string_view name;
    std::string_view ending;
    ContentKind kind;
};

// All types; the place of a row is its kind.
std::span<const ContentKindRow> ContentKinds();

std::string_view NameOf(ContentKind kind);

// The type of that name.
std::optional<ContentKind> ContentKindNamed(std::string_view name);

// The type for the ending of a file name, in upper or lower case. Nothing for a name that is an ending alone.
std::optional<ContentKind> ContentKindOfFile(std::string_view fileName);

} // namespace Vorn
