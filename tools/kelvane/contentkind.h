#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace Vorn {

// The types of content that the text and the binary form share, in the order of their table.
enum class ContentKind : std::uint8_t { Mesh, Particle, Brushes, Entity };

// What a type is called on the command line, and how the names of its files end.
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

// The type that a file's name ends in, capitals or not; a name that is an ending alone has none.
std::optional<ContentKind> ContentKindOfFile(std::string_view fileName);

} // namespace Vorn
