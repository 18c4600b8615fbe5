#include "engine/string/stringlibrary.h"

#include "engine/core/report.h"
#include "engine/string/ascii.h"

#include <algorithm>
#include <cstring>

namespace Vorn {

namespace {

using Traits = std::char_traits<char16_t>;

bool IsInside(StringBuffer destination, std::u16string_view source) {
    return source.data() != nullptr && source.data() == destination.m_Buffer;
}

// Puts `source` at `position`, cut at the capacity. The source may overlap the destination.
void Place(StringBuffer destination, int position, std::u16string_view source) {
    const auto room = static_cast<std::size_t>(destination.m_BufferSize - 1 - position);
    const std::size_t count = std::min(source.size(), room);
    Traits::move(destination.m_Buffer + position, source.data(), count);
    destination.m_Buffer[static_cast<std::size_t>(position) + count] = u'\0';
    CheckAssert(count == source.size(), "! FAILED( hr )");
}

} // namespace

int Compare(const char16_t* s1, const char16_t* s2) {
    CheckAssert(s1 != nullptr, "s1 != NULL");
    CheckAssert(s2 != nullptr, "s2 != NULL");
    const std::u16string_view left(s1 != nullptr ? s1 : u"");
    const std::u16string_view right(s2 != nullptr ? s2 : u"");
    const int order = left.compare(right);
    return (order > 0) - (order < 0);
}

void Copy(StringBuffer destination, std::u16string_view source) {
    CheckAssert(!IsInside(destination, source), "destination.m_Buffer != source");
    CheckAssert(destination.m_BufferSize >= 1, "destination.m_BufferSize >= 1");
    if (destination.m_BufferSize < 1) {
        return;
    }
    CheckAssert(source.size() < static_cast<std::size_t>(destination.m_BufferSize),
                "GetLength( source ) < destination.m_BufferSize");
    Place(destination, 0, source);
}

void Append(StringBuffer destination, std::u16string_view source) {
    CheckAssert(!IsInside(destination, source), "destination.m_Buffer != source");
    CheckAssert(destination.m_BufferSize >= 1, "destination.m_BufferSize >= 1");
    if (destination.m_BufferSize < 1) {
        return;
    }
    const std::size_t length = TextIn(destination.m_Buffer, destination.m_BufferSize - 1).size();
    CheckAssert(length + source.size() < static_cast<std::size_t>(destination.m_BufferSize),
                "GetLength( destination.m_Buffer ) + GetLength( source ) < destination.m_BufferSize");
    Place(destination, static_cast<int>(length), source);
}

void CopyPart(StringBuffer destination, std::u16string_view source, int iFirst, int nCount) {
    CheckAssert(iFirst >= 0, "iFirst >= 0");
    CheckAssert(nCount >= 0, "nCount >= 0");
    CheckAssert(nCount < destination.m_BufferSize, "nCount < destination.m_BufferSize");
    if (destination.m_BufferSize < 1) {
        return;
    }
    const std::size_t first = std::min(static_cast<std::size_t>(std::max(iFirst, 0)), source.size());
    const int count = std::clamp(nCount, 0, destination.m_BufferSize - 1);
    const std::u16string_view part = source.substr(first, static_cast<std::size_t>(count));
    Traits::move(destination.m_Buffer, part.data(), part.size());
    destination.m_Buffer[part.size()] = u'\0';
}

int GetLength(const char16_t* s) {
    return s != nullptr ? static_cast<int>(Traits::length(s)) : 0;
}

std::u16string_view TextIn(const char16_t* units, int capacity) {
    const char16_t* end = FindUnit(units, units + capacity, u'\0');
    return {units, static_cast<std::size_t>(end - units)};
}

} // namespace Vorn
