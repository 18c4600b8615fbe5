#pragma once

#include "engine/math/bool.h"
#include "tools/kelvanekit/check/sourcetext.h"
#include "tools/kelvanekit/findings/finding.h"

#include <span>

namespace Vorn {

// What is wrong with a value. The range is in bytes of the value's text.
struct ValueProblem {
    const FindingCode* code = nullptr;
    TextRange range;
    std::string message;
    std::string help;
    std::string replacement;
    bool hasReplacement = false;
};

// Takes the text behind a key by the grammar of its kind, as strictly as a writer puts it but for white space. What
// does not fit is noted, the first time, and the value becomes what was most likely meant, or stays as it was.
class ValueScan {
public:
    // The text without white space at its ends.
    explicit ValueScan(std::string_view _text) : text(_text) {}

    void Int(std::int32_t& value);
    void Int64(std::int64_t& value);
    void Float(float& value);
    void Double(double& value);
    void Color(std::uint32_t& value);
    void Bool(Vorn::Bool& value);
    // A quoted text for a buffer of `size` units.
    void Text(char16_t* buffer, int size);
    // Numbers in brackets: whole ones with commas between them, or others without.
    void Ints(std::span<std::int32_t> values);
    void Floats(std::span<float> values);
    // Behind the key of a group stands nothing.
    void Nothing();

    bool IsClean() const { return problem.code == nullptr; }
    ValueProblem& Problem() { return problem; }

private:
    void Note(const FindingCode* code, std::string_view part, std::string message, std::string help = {});
    void Note(const FindingCode* code, std::string_view part, std::string message, std::string help,
              std::string replacement);
    bool TakeWhole(std::string_view number, std::int64_t& value);
    void TakeInt(std::string_view number, std::int32_t& value);
    void TakeFloat(std::string_view number, float& value);
    void NoteRest(std::string_view number, std::size_t length, bool isReal);
    template <class Value, class Take>
    void TakeList(std::span<Value> values, bool hasCommas, Take take);

    std::string_view text;
    ValueProblem problem;
};

// Whether two numbers in decimals, with or without exponent, are the same to the last digit.
bool SameDecimal(std::string_view left, std::string_view right);

// The text of a float as files have it.
std::string FloatText(float value);

} // namespace Vorn
