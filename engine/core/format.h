#pragma once

#include "engine/core/stringbuffer.h"

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace Vorn {

// One typed argument of Format. Narrow text must be ASCII.
class FormatArgument {
public:
    FormatArgument(const char16_t* _text) : kind(Kind::Text), text(_text != nullptr ? _text : u"") {}
    FormatArgument(std::u16string_view _text) : kind(Kind::Text), text(_text) {}
    // A text with a View, like FixedString.
    template <class Text>
    requires requires(const Text& _text) { std::u16string_view(_text.View()); }
    FormatArgument(const Text& _text) : kind(Kind::Text), text(_text.View()) {}
    FormatArgument(const char* _text) : kind(Kind::Narrow), narrow(_text != nullptr ? _text : "") {}
    FormatArgument(std::int32_t value) : kind(Kind::Integer), integer(value) {}
    FormatArgument(std::uint32_t value) : kind(Kind::Integer), integer(static_cast<std::int32_t>(value)) {}
    FormatArgument(std::int64_t value) : kind(Kind::Integer), integer(value) {}
    FormatArgument(double value) : kind(Kind::Float), real(value) {}
    FormatArgument(const void* value) : kind(Kind::Pointer), pointer(value) {}

private:
    friend class Formatter;

    enum class Kind : std::uint8_t { Text, Narrow, Integer, Float, Pointer };

    Kind kind;
    union {
        std::u16string_view text;
        const char* narrow;
        std::int64_t integer;
        double real;
        const void* pointer;
    };
};

// Formatted print with the conversions %s %d %x %lld %I64d %f %.2f %p, the field form %-*s, and %%. The types of the
// arguments are known: a conversion whose argument is missing or of another type stays in the text unchanged, so that
// no argument is ever read that was not passed. Text beyond the capacity is cut, and the check "! FAILED( hr )" fires.
void FormatList(StringBuffer destination, const char16_t* format, std::initializer_list<FormatArgument> arguments);

template <class... Arguments>
void Format(StringBuffer destination, const char16_t* format, const Arguments&... arguments) {
    FormatList(destination, format, {FormatArgument(arguments)...});
}

} // namespace Vorn
