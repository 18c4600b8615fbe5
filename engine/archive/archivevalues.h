#pragma once

#include "engine/archive/label.h"
#include "engine/math/bool.h"
#include "engine/math/color.h"
#include "engine/math/matrix33.h"
#include "engine/math/matrix44.h"
#include "engine/math/point.h"
#include "engine/math/quad.h"
#include "engine/math/rectangle.h"
#include "engine/math/size.h"
#include "engine/math/vector3.h"

#include <array>
#include <bit>
#include <cstdint>
#include <type_traits>

namespace Vorn {

template <class... Values>
struct ValueList {};

// The kinds of single values that archives read and write. This is their only list: the operations of Archive and the
// overrides of every form are generated from it.
using ArchiveValues = ValueList<Color, Rectangle, Size, Point, Quad, Matrix44, Matrix33, Vector3, std::int64_t, Bool,
                                double, float, std::int32_t, std::uint32_t>;

// The pure virtual Read and Write of each kind of a list.
template <class List>
class ValueOperations;

template <>
class ValueOperations<ValueList<>> {
public:
    void Read() = delete;
    void Write() = delete;
};

template <class Value, class... Others>
class ValueOperations<ValueList<Value, Others...>> : public ValueOperations<ValueList<Others...>> {
public:
    using ValueOperations<ValueList<Others...>>::Read;
    using ValueOperations<ValueList<Others...>>::Write;
    virtual void Read(Label label, Value& value) = 0;
    virtual void Write(Label label, const Value& value) = 0;
};

template <class Value, class... Kinds>
inline constexpr bool kIsOneOf = (std::is_same_v<Value, Kinds> || ...);

// The values that consist of 32-bit numbers alone, in file order.
template <class Value>
inline constexpr bool kIsFloats = kIsOneOf<Value, Color, Quad, Matrix44, Matrix33, Vector3, float>;
template <class Value>
inline constexpr bool kIsInts = kIsOneOf<Value, Rectangle, Size, Point, std::int32_t, std::uint32_t>;
template <class Value>
concept WordValue = kIsFloats<Value> || kIsInts<Value>;

template <class Value>
concept MatrixValue = WordValue<Value> && requires(Value value) {
    value.rows;
};

// The numbers of such a value.
template <WordValue Value>
using Words = std::array<std::conditional_t<kIsFloats<Value>, float, std::int32_t>, sizeof(Value) / 4>;

template <WordValue Value>
Words<Value> ToWords(const Value& value) {
    return std::bit_cast<Words<Value>>(value);
}

template <WordValue Value>
Value FromWords(const Words<Value>& words) {
    return std::bit_cast<Value>(words);
}

} // namespace Vorn
