#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Vorn {

// The lines of a content in text form, without the header, the version and the line ends.
using Lines = std::vector<std::string>;

// The first word of a line.
std::string_view KeyOf(std::string_view line);
// What follows the key and a blank.
std::string_view ValueOf(std::string_view line);
// The number of tabs in front of the key.
std::size_t DepthOf(std::string_view line);

// The index of the line that a path names: KEY is the first line with that key, KEY#2 the second, and A/B is the first
// B behind the first A; "end" is the index behind the last line. Throws if there is no such line.
std::size_t FindLine(const Lines& lines, std::string_view path);

// The shortest path that names a line.
std::string PathOf(const Lines& lines, std::size_t index);

// The index behind a line and all deeper lines that follow it.
std::size_t EndOfBlock(const Lines& lines, std::size_t index);

// Takes the first word off a text.
std::string_view TakeWord(std::string_view& text);

// One change of a content: a verb, what follows it, and the lines that are given below it.
//   set PATH VALUE           the value of a line
//   line PATH TEXT           the whole line behind its tabs
//   drop PATH [to PATH]      a line with all deeper lines below it, or all lines to the end of the second block
//   drop-label PATH          a line alone
//   add after|before PATH    the lines given, or "add before end"
//   swap PATH PATH           two lines with all deeper lines below them
//   repeat PATH [to PATH] N  a line with all deeper lines below it, or all to the end of the second, stands N times
//   rows PATH KEY            a line with all deeper lines below it stands once for each word given, with that text at
//   KEY keep KEY...              the lines with these keys alone fill PATH N              a text of N letters in turn
//   blank PATH [to PATH]     empty texts, FALSE and 0 in place of all values
//   blank-but KEY...         the same for all lines without these keys
struct Edit {
    std::string verb;
    std::string rest;
    Lines added;
};

// Returns false if the verb is none of these.
bool ApplyEdit(const Edit& edit, Lines& lines);

} // namespace Vorn
