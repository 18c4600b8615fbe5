#include "engine/core/format.h"

#include "engine/core/realtext.h"
#include "engine/core/report.h"

#include <algorithm>
#include <charconv>

namespace Vorn {

// Processes a format and fills the destination; text that does not fit is dropped, and `cut` is set.
class Formatter {
public:
    Formatter(StringBuffer destination, std::initializer_list<FormatArgument> arguments)
        : cursor(destination.m_Buffer), limit(destination.m_Buffer + destination.m_BufferSize - 1),
          next(arguments.begin()), end(arguments.end()) {}

    void Run(std::u16string_view format) {
        while (!format.empty()) {
            const std::size_t literal = std::min(format.find(u'%'), format.size());
            Put(format.substr(0, literal));
            format.remove_prefix(literal);
            if (!format.empty()) {
                format.remove_prefix(Convert(format));
            }
        }
        *cursor = u'\0';
        CheckAssert(!cut, "! FAILED( hr )");
    }

private:
    using Kind = FormatArgument::Kind;

    struct Conversion {
        std::u16string_view text;
        Kind kind;
    };

    // Puts the result of the conversion at the start of `format` and returns the conversion's length.
    std::size_t Convert(std::u16string_view format) {
        if (format.starts_with(u"%%")) {
            Put(u"%");
            return 2;
        }
        if (format.starts_with(u"%-*s") && end - next >= 2 && next->kind == Kind::Integer) {
            PutField(static_cast<int>(next->integer), *(next + 1));
            next += 2;
            return 4;
        }
        static constexpr Conversion kConversions[] = {
            {u"%s", Kind::Text},       {u"%d", Kind::Integer}, {u"%x", Kind::Integer}, {u"%lld", Kind::Integer},
            {u"%I64d", Kind::Integer}, {u"%f", Kind::Float},   {u"%.2f", Kind::Float}, {u"%p", Kind::Pointer}};
        for (const Conversion& conversion : kConversions) {
            if (format.starts_with(conversion.text) && Matches(conversion.kind)) {
                PutArgument(conversion.text, *next++);
                return conversion.text.size();
            }
        }
        Put(u"%");
        return 1;
    }

    bool Matches(Kind kind) const {
        return next != end && (next->kind == kind || (kind == Kind::Text && next->kind == Kind::Narrow));
    }

    void PutArgument(std::u16string_view conversion, const FormatArgument& argument) {
        char digits[kNumberTextCapacity];
        char* digitsEnd = digits;
        switch (argument.kind) {
        case Kind::Text:
            Put(argument.text);
            return;
        case Kind::Narrow:
            PutNarrow(argument.narrow);
            return;
        case Kind::Integer:
            digitsEnd = PutInteger(digits, conversion, argument.integer);
            break;
        case Kind::Float:
            digitsEnd = conversion == u"%f" ? PutFixed(digits, argument.real, 6) : PutFixed(digits, argument.real, 2);
            break;
        case Kind::Pointer:
            Put(u"0x");
            digitsEnd = PutDigits(digits, reinterpret_cast<std::uintptr_t>(argument.pointer), 16);
            break;
        }
        PutNarrow({digits, static_cast<std::size_t>(digitsEnd - digits)});
    }

    template <class Number>
    static char* PutDigits(char* out, Number number, int base = 10) {
        return std::to_chars(out, out + kNumberTextCapacity, number, base).ptr;
    }

    static char* PutInteger(char* out, std::u16string_view conversion, std::int64_t integer) {
        if (conversion == u"%x") {
            return PutDigits(out, static_cast<std::uint32_t>(integer), 16);
        }
        return conversion == u"%d" ? PutDigits(out, static_cast<std::int32_t>(integer)) : PutDigits(out, integer);
    }

    // Left-aligned text, filled with blanks up to `width` units.
    void PutField(int width, const FormatArgument& argument) {
        const char16_t* start = cursor;
        PutArgument(u"%s", argument);
        const std::ptrdiff_t missing = width - (cursor - start);
        cursor = std::fill_n(cursor, Fitting(static_cast<std::size_t>(std::max<std::ptrdiff_t>(missing, 0))), u' ');
    }

    void PutNarrow(std::string_view text) {
        const auto widen = [](char byte) { return static_cast<char16_t>(static_cast<unsigned char>(byte)); };
        cursor = std::transform(text.data(), text.data() + Fitting(text.size()), cursor, widen);
    }

    void Put(std::u16string_view text) { cursor = std::copy_n(text.data(), Fitting(text.size()), cursor); }

    // As many of `count` units as there is room for.
    std::size_t Fitting(std::size_t count) {
        const std::size_t fitting = std::min(count, static_cast<std::size_t>(limit - cursor));
        cut = cut || fitting < count;
        return fitting;
    }

    char16_t* cursor;
    char16_t* limit;
    const FormatArgument* next;
    const FormatArgument* end;
    bool cut = false;
};

void FormatList(StringBuffer destination, const char16_t* format, std::initializer_list<FormatArgument> arguments) {
    Formatter(destination, arguments).Run(format);
}

} // namespace Vorn
