#include "export/stroke_font.h"

#include <gtest/gtest.h>

#include <cmath>

#include "dxf_text_reader.h"
#include "export/dxf_records.h"
#include "golden_file.h"

namespace tolmar {
namespace {

using test::readPolylines;

std::string text(std::string_view s, float size = 16, double x = 0, double y = 0, double a = 0) {
  StringSink out;
  dxfText(out, s, size, x, y, a, 3, 7);
  return out.text();
}

TEST(StrokeFont, WholeFontAtSixteenUnitsGivesTheGridPoints) {
  // Size 16 puts every vertex on the font's own grid, one unit apart, and
  // each character 16 units right of the one before.
  StringSink out;
  dxfHeader(out, "stroke font");
  dxfSection(out);
  dxfText(out, "0123456789 abcdefghijklmnopqrstuvwxyz-.", 16, 0, 0, 0, 3, 7);
  dxfEndSec(out);
  dxfEof(out);
  test::expectGolden("stroke_font.dxf", out.text());
}

TEST(StrokeFont, CapitalsDrawAsLowerCase) {
  EXPECT_EQ(text("TRANSOM P01"), text("transom p01"));
  EXPECT_NE(text("A"), text("."));
}

TEST(StrokeFont, FixedAdvanceWhateverTheGlyphWidth) {
  // "m" is 10 units wide, "i" 2 wide at x = 4: the next character starts
  // one text height further all the same.
  const auto lines = readPolylines(text("mi1", 2.0F, 1.0, 0.5));
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_NEAR(lines[0].v[0].x, 1.0, 1e-6);              // m starts at (0, 0)
  EXPECT_NEAR(lines[1].v[0].x, 1.0 + 2.0 + 0.5, 1e-6);  // i starts at (4, 8)
  EXPECT_NEAR(lines[1].v[0].y, 0.5 + 1.0, 1e-6);
  EXPECT_NEAR(lines[2].v[0].x, 1.0 + 4.0 + 0.125, 1e-6);  // 1 starts at (1, 12)
}

TEST(StrokeFont, BlankOnlyAdvances) {
  EXPECT_EQ(text(""), "");
  EXPECT_EQ(text("   "), "");
  const auto lines = readPolylines(text("deck 1", 1.0F));
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_NEAR(lines[4].v[0].x, 5.0 + 1.0 / 16, 1e-6);  // "1" is the sixth character
}

TEST(StrokeFont, CharactersWithoutGlyphShareTheMark) {
  const std::string mark = text("?");
  EXPECT_EQ(text("."), mark);
  EXPECT_EQ(text("_"), mark);
  EXPECT_EQ(text("é"), mark);  // one accented character, one mark
  EXPECT_EQ(text("É"), mark);
  EXPECT_EQ(readPolylines(text("a.é_b")).size(), 5U);
  EXPECT_NE(text("-"), mark);
}

TEST(StrokeFont, EveryGlyphIsOnePolylineOnItsLayer) {
  const auto lines = readPolylines(text("p00", 1.0F));
  ASSERT_EQ(lines.size(), 3U);
  for (const auto& p : lines) {
    EXPECT_EQ(p.layer, 3);
    EXPECT_EQ(p.colour, 7);
    for (const auto& v : p.v) EXPECT_EQ(v.z, 0.0);
  }
  EXPECT_EQ(lines[0].v.size(), 7U);   // p
  EXPECT_EQ(lines[1].v.size(), 10U);  // the slashed zero goes over its slash twice
}

TEST(StrokeFont, QuarterTurnStandsCharactersOnTheirSideAlongY) {
  const auto lines = readPolylines(text("-1", 16.0F, 10.0, 20.0, 1.5707963));
  ASSERT_EQ(lines.size(), 2U);
  // "-" from (0, 4) to (8, 4): turned a quarter, it runs from (-4, 0) to (-4, 8).
  EXPECT_NEAR(lines[0].v[0].x, 10.0 - 4, 1e-4);
  EXPECT_NEAR(lines[0].v[0].y, 20.0 + 0, 1e-4);
  EXPECT_NEAR(lines[0].v[1].x, 10.0 - 4, 1e-4);
  EXPECT_NEAR(lines[0].v[1].y, 20.0 + 8, 1e-4);
  // The next character starts one size further along +Y: "1" at (1, 12).
  EXPECT_NEAR(lines[1].v[0].x, 10.0 - 12, 1e-4);
  EXPECT_NEAR(lines[1].v[0].y, 20.0 + 16 + 1, 1e-4);
}

TEST(StrokeFont, GlyphsStayOnTheirGrid) {
  for (char32_t c = 0; c < 0x180; ++c) {
    const auto g = strokeGlyph(c);
    if (c == U' ') {
      EXPECT_TRUE(g.empty());
      continue;
    }
    ASSERT_GE(g.size(), 2U) << static_cast<unsigned>(c);
    const bool wide = c == U'm' || c == U'w' || c == U'M' || c == U'W';
    for (const auto& p : g) {
      EXPECT_GE(p.x, 0);
      EXPECT_LE(p.x, wide ? 10 : 9);  // the tail of q reaches 9
      EXPECT_GE(p.y, -2);
      EXPECT_LE(p.y, 16);
    }
  }
}

TEST(StrokeFont, PenIsSinglePrecision) {
  // Far from the origin the single-precision pen rounds the position: the
  // text lands where a float can hold it, not at the exact double.
  const auto lines = readPolylines(text("-", 16.0F, 1000000.0625, 0));
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].v[0].x, static_cast<double>(static_cast<float>(1000000.0625)));
}

}  // namespace
}  // namespace tolmar
