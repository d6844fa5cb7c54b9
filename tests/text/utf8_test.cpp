// Characters of UTF-8 texts: the count and the cut that the board's hull
// name and the exports' file names use, on known texts.
#include "text/utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tolmar {
namespace {

TEST(Utf8Length, CountsCharactersNotBytes) {
  EXPECT_EQ(utf8Length(""), 0U);
  EXPECT_EQ(utf8Length("TOLMAR"), 6U);
  EXPECT_EQ(utf8Length("é"), 1U);                 // two bytes
  EXPECT_EQ(utf8Length("€"), 1U);                 // three bytes
  EXPECT_EQ(utf8Length("\xF0\x9F\x9A\xA3"), 1U);  // four bytes: a rowing boat
  EXPECT_EQ(utf8Length("CHÂLOUPE À VOILE"), 16U);
}

TEST(Utf8Length, StrayBytesCountOnceAtTheStart) {
  // A text cut inside a character still counts whole characters, and a
  // text that starts with a continuation byte counts it as one.
  EXPECT_EQ(utf8Length("\xC3"), 1U);
  EXPECT_EQ(utf8Length("\xA9"
                       "AB"),
            3U);
  EXPECT_EQ(utf8Length("A\xA9\xA9"
                       "B"),
            2U);
}

TEST(Utf8Prefix, NeverCutsInsideACharacter) {
  EXPECT_EQ(utf8Prefix("ABCDEFGHIJKLMNOPQRS", 15), "ABCDEFGHIJKLMNO");
  EXPECT_EQ(utf8Prefix("ééééé", 3), "ééé");
  EXPECT_EQ(utf8Prefix("a€b", 2), "a€");
  EXPECT_EQ(utf8Prefix("short", 15), "short");
  EXPECT_EQ(utf8Prefix("abc", 0), "");
  EXPECT_EQ(utf8Prefix("\xA9"
                       "ABC",
                       2),
            "\xA9"
            "A");
}

TEST(Utf8Prefix, AgreesWithTheCount) {
  const std::string texts[] = {"", "TOLMAR", "ÉTRAVE À 45°",
                               "\xA9\xA9"
                               "x",
                               "a\xC3"};
  for (const std::string& t : texts) {
    for (std::size_t n = 0; n <= utf8Length(t) + 1; ++n)
      EXPECT_EQ(utf8Length(utf8Prefix(t, n)), std::min(n, utf8Length(t))) << t << " " << n;
    EXPECT_EQ(utf8Prefix(t, utf8Length(t)), t);
  }
}

TEST(Utf8CodePoints, DecodesAndReplacesWhatIsNotUtf8) {
  EXPECT_EQ(utf8CodePoints("aé€"), (std::vector<char32_t>{U'a', U'é', U'€'}));
  EXPECT_EQ(utf8CodePoints("\xC3"), std::vector<char32_t>{U'\uFFFD'});
  EXPECT_EQ(utf8CodePoints("\xE0\x80\x80"),  // an overlong zero: each byte replaced
            (std::vector<char32_t>{U'\uFFFD', U'\uFFFD', U'\uFFFD'}));
}

}  // namespace
}  // namespace tolmar
