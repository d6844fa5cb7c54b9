#include "text/plain_letters.h"

#include <gtest/gtest.h>

#include "export/stroke_font.h"
#include "text/utf8.h"

namespace tolmar {
namespace {

TEST(PlainLetters, AccentsAndLigaturesBecomePlainLetters) {
  EXPECT_EQ(plainLetters("bâbord"), "babord");
  EXPECT_EQ(plainLetters("bordé 3, pont 1, tableau, marotte"), "borde 3, pont 1, tableau, marotte");
  EXPECT_EQ(plainLetters("ŒUVRE cœur Ça Ÿ ß"), "OEUVRE coeur Ca Y ss");
  // What has no plain letter, and broken bytes, stay as they were.
  EXPECT_EQ(plainLetters("p01 € 2×3"), "p01 € 2×3");
  EXPECT_EQ(plainLetters(std::string_view("a\xC3", 2)), std::string("a\xC3", 2));
  EXPECT_EQ(plainLetters(""), "");
}

// Every letter of the French labels then has a glyph of its own in the
// stroke font, not the mark of a missing character.
TEST(PlainLetters, FrenchLabelsNeedNoMissingGlyph) {
  const auto missing = strokeGlyph(U'€');
  for (const char32_t c : utf8CodePoints(plainLetters(
           "àâäçéèêëîïôöùûüÿœ ÀÂÄÇÉÈÊËÎÏÔÖÙÛÜŸŒ bâbord tribord bordé fond pont tableau"))) {
    if (c == U' ') continue;
    EXPECT_NE(strokeGlyph(c).data(), missing.data()) << static_cast<unsigned>(c);
  }
}

}  // namespace
}  // namespace tolmar
