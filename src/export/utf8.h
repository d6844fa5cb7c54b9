// The characters of a UTF-8 text, one code point each: the stroke font draws
// one glyph per character and the DXF comment is recoded character by
// character.  A byte that starts no valid sequence counts as one character,
// U+FFFD.
#pragma once

#include <string_view>
#include <vector>

namespace tolmar {

std::vector<char32_t> utf8CodePoints(std::string_view text);

}  // namespace tolmar
