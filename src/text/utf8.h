// The characters of a UTF-8 text.  The board's hull name, the file names
// cut from it and the widths of a test surface count characters, not
// bytes: a character starts at the text's first byte and at every byte
// that is not a continuation byte (10xxxxxx), so that a name is never cut
// inside a character.  The stroke font and the DXF comment need the code
// points themselves.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tolmar {

// How many characters the text holds.
std::size_t utf8Length(std::string_view text);

// The first n characters of the text, or all of it when it is shorter.
std::string_view utf8Prefix(std::string_view text, std::size_t n);

// One code point a character; a byte that starts no valid sequence counts
// as one character, U+FFFD.
std::vector<char32_t> utf8CodePoints(std::string_view text);

}  // namespace tolmar
