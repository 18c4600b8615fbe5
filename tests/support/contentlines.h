#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

// The lines of a content in text form, without the header, the version and the line ends.
using Lines = std::vector<std::string>;

// The first word of a line.
std::string_view KeyOfLine(std::string_view line);
// What follows the key and a blank.
std::string_view ValueOf(std::string_view line);
// The number of tabs before the key.
std::size_t DepthOf(std::string_view line);

// The index of the line that a path names: KEY is the first line with that key, KEY#2 the second, and A/B is the first
// B after the first A; "end" is the index after the last line. Throws if there is no such line.
std::size_t FindLine(const Lines& lines, std::string_view path);

// The shortest path that names a line.
std::string PathOf(const Lines& lines, std::size_t index);

// The index after a line and all deeper lines that follow it.
std::size_t EndOfBlock(const Lines& lines, std::size_t index);

// Removes the first word of a text and returns it.
std::string_view TakeWord(std::string_view& text);

// One change of a content: a verb, its arguments, and the lines below it in the case file.
//   set PATH VALUE           the value of a line
//   line PATH TEXT           the whole line after its tabs
//   drop PATH [to PATH]      a line with all deeper lines below it, or all lines to the end of the second block
//   drop-label PATH          a line alone
//   add after|before PATH    the lines given, or "add before end"
//   swap PATH PATH           two lines with all deeper lines below them
//   repeat PATH [to PATH] N  N copies of a line with all deeper lines below it, or of all to the end of the second
//   rows PATH KEY            a copy of a line with all deeper lines below it for each word given, which is set at KEY
//   keep KEY...              only the lines with these keys
//   fill N PATH...           texts of N letters
//   blank PATH [to PATH]     empty texts, FALSE and 0 instead of all values
//   blank-but KEY...         the same for all lines without these keys
struct Edit {
    std::string verb;
    std::string rest;
    Lines added;
};

// Returns false if the verb is none of these.
bool ApplyEdit(const Edit& edit, Lines& lines);

} // namespace Vorn
