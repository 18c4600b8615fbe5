#include "engine/archive/textfilearchive.h"
#include "engine/archive/textline.h"
#include "engine/core/report.h"

#include <array>
#include <bit>

// The writing half of TextFileArchive.

namespace Vorn {

namespace {

std::int32_t BitsOf(float value) {
    return std::bit_cast<std::int32_t>(value);
}

// Decimals, short as they need not be exact, and then the bits.
template <std::size_t N>
void PutFloatBits(TextLine& line, const std::array<float, N>& values) {
    line.Literal(" [");
    for (const float value : values) {
        line.Literal(" ").Double(static_cast<double>(value), 2);
    }
    line.Literal(" ] Bits=[ ");
    for (const float& value : values) {
        line.Int(BitsOf(value));
        if (&value != &values.back()) {
            line.Literal(" , ");
        }
    }
    line.Literal(" ]");
}

} // namespace

// Writes a line of a label and what `put` puts behind it.
template <class Put>
VORN_ALWAYS_INLINE void TextFileArchive::WriteLine(Label label, Put put) {
    if (char* start = file->BeginPlainLine(m_TabDepth)) [[likely]] {
        PlainLine line(start);
        put(line.Text(label));
        if (char* end = line.End()) [[likely]] {
            file->CommitLine(end);
            return;
        }
    }
    WriteLineSlowly(label, put);
}

template <class Put>
VORN_RARE void TextFileArchive::WriteLineSlowly(Label label, Put put) {
    TextLine line(*file, m_TabDepth, label);
    put(line);
    line.End();
}

template <std::size_t N>
VORN_ALWAYS_INLINE void TextFileArchive::WriteFloats(Label label, std::array<float, N> values) {
    if (hasFloatBits) [[unlikely]] {
        WriteLineSlowly(label, [values](TextLine& line) { PutFloatBits(line, values); });
        return;
    }
    WriteLine(label, [values](auto& line) {
        line.Literal(" [");
        for (const float value : values) {
            line.Literal(" ").Float(value);
        }
        line.Literal(" ]");
    });
}

template <std::size_t N>
void TextFileArchive::WriteRows(Label label, const float (&rows)[N][N]) {
    CheckAssert(label.data() != nullptr, "label != NULL");
    WriteLine(label, [](auto&) {});
    ++m_TabDepth;
    for (const float(&row)[N] : rows) {
        WriteFloats({}, std::to_array(row));
    }
    CheckAssert(m_TabDepth > 0, "m_TabDepth > 0");
    --m_TabDepth;
}

void TextFileArchive::Write(Label label, const Color& value) {
    WriteLine(label, [packed = value.ToUInt()](auto& line) { line.Literal(" ").Hex(packed); });
}

void TextFileArchive::Write(Label label, const Rectangle& value) {
    WriteLine(label, [value](auto& line) {
        line.Literal(" [ ").Int(value.left).Literal(" , ").Int(value.top).Literal(" , ");
        line.Int(value.Width()).Literal(" , ").Int(value.Height()).Literal(" ]");
    });
}

void TextFileArchive::Write(Label label, const Size& value) {
    Write(label, Point{value.width, value.height});
}

void TextFileArchive::Write(Label label, const Point& value) {
    WriteLine(label,
              [value](auto& line) { line.Literal(" [ ").Int(value.x).Literal(" , ").Int(value.y).Literal(" ]"); });
}

void TextFileArchive::Write(Label label, const Quad& value) {
    WriteFloats(label, std::array{value.x, value.y, value.z, value.w});
}

void TextFileArchive::Write(Label label, const Matrix44& value) {
    WriteRows(label, value.rows);
}

void TextFileArchive::Write(Label label, const Matrix33& value) {
    WriteRows(label, value.rows);
}

void TextFileArchive::Write(Label label, const Vector3& value) {
    WriteFloats(label, std::array{value.x, value.y, value.z});
}

void TextFileArchive::Write(Label label, const char16_t* text, int) {
    WriteLine(label, [text](auto& line) { line.Literal(" \"").Text(text).Literal("\""); });
}

void TextFileArchive::Write(Label label, const std::int64_t& value) {
    WriteLineSlowly(label, [value](TextLine& line) { line.Literal(" ").Int64(value); });
}

void TextFileArchive::Write(Label label, const Bool& value) {
    WriteLine(label, [value](auto& line) { line.Text(value ? u" TRUE" : u" FALSE"); });
}

void TextFileArchive::Write(Label label, const double& value) {
    WriteLineSlowly(label, [value, this](TextLine& line) {
        if (hasFloatBits) {
            line.Literal(" ").Double(value, 2).Literal(" Bits=").Int64(std::bit_cast<std::int64_t>(value));
        } else {
            line.Literal(" ").Double(value);
        }
    });
}

void TextFileArchive::Write(Label label, const float& value) {
    if (hasFloatBits) [[unlikely]] {
        WriteLineSlowly(label, [value](TextLine& line) {
            line.Literal(" ").Double(static_cast<double>(value), 2).Literal(" Bits=").Int(BitsOf(value));
        });
        return;
    }
    WriteLine(label, [value](auto& line) { line.Literal(" ").Float(value); });
}

void TextFileArchive::Write(Label label, const std::int32_t& value) {
    WriteLine(label, [value](auto& line) { line.Literal(" ").Int(value); });
}

void TextFileArchive::Write(Label label, const std::uint32_t& value) {
    WriteLine(label, [value](auto& line) { line.Literal(" ").Int(static_cast<std::int32_t>(value)); });
}

void TextFileArchive::Write(Label label, const SingleLineArchivable& value) {
    value.Write(label, *this);
}

void TextFileArchive::Write(Label label, const Archivable& value) {
    WriteLine(label, [](auto&) {});
    ++m_TabDepth;
    value.Write(*this);
    CheckAssert(m_TabDepth > 0, "m_TabDepth > 0");
    --m_TabDepth;
}

} // namespace Vorn
