// Latin letters with accents as their plain letters ("bâbord" -> "babord",
// "Œ" -> "OE"), for texts drawn in the stroke font, which has glyphs for
// the plain letters only.  Other characters are kept as they are.
#pragma once

#include <string>
#include <string_view>

namespace tolmar {

std::string plainLetters(std::string_view utf8);

}  // namespace tolmar
