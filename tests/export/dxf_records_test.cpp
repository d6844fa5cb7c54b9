#include "export/dxf_records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "export/polyline_out.h"

namespace tolmar {
namespace {

struct NumberCase {
  const char* name;  // of the test
  double x;
  const char* text;
};

void PrintTo(const NumberCase& c, std::ostream* os) { *os << c.name; }

class DxfNumber : public testing::TestWithParam<NumberCase> {};

TEST_P(DxfNumber, HasSignColumnFourDecimalsAndTrailingBlank) {
  EXPECT_EQ(dxfNumber(GetParam().x), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Values, DxfNumber,
    testing::Values(
        NumberCase{"Positive", 1.5, " 1.5000 "}, NumberCase{"Negative", -1.5, "-1.5000 "},
        NumberCase{"Zero", 0.0, " 0.0000 "}, NumberCase{"NegativeZero", -0.0, " 0.0000 "},
        // no thousands separator
        NumberCase{"Millions", 1234567.125, " 1234567.1250 "},
        NumberCase{"RoundsDown", 0.00004, " 0.0000 "}, NumberCase{"RoundsUp", 0.00006, " 0.0001 "},
        // sign column kept for a tiny negative
        NumberCase{"TinyNegative", -0.00004, "-0.0000 "},
        NumberCase{"CarriesIntoUnits", 2.99995000001, " 3.0000 "},
        NumberCase{"NegativeRounded", -12.3456789, "-12.3457 "},
        NumberCase{"NaN", std::numeric_limits<double>::quiet_NaN(), " 0.0000 "},
        NumberCase{"Infinity", std::numeric_limits<double>::infinity(), " 0.0000 "},
        NumberCase{"MinusInfinity", -std::numeric_limits<double>::infinity(), " 0.0000 "}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DxfNumber, HugeValueStaysOnOneFiniteLine) {
  const std::string s = dxfNumber(1e300);
  EXPECT_EQ(s.front(), ' ');
  EXPECT_EQ(s.substr(s.size() - 6), ".0000 ");
  EXPECT_EQ(s.find_first_not_of(" 0123456789."), std::string::npos);
}

TEST(DxfRecords, PolylineLayerAndColourAsDigits) {
  StringSink out;
  dxfPolyline(out, 4, 7);
  EXPECT_EQ(
      out.text(),
      "  0\r\nPOLYLINE\r\n  8\r\n4\r\n 62\r\n     7\r\n 66\r\n      1\r\n  6\r\nCONTINUOUS\r\n"
      " 70\r\n      8\r\n");
}

TEST(DxfRecords, TwoDigitLayerAndColour) {
  StringSink out;
  dxfPolyline(out, 16, 12);
  EXPECT_NE(out.text().find("  8\r\n16\r\n 62\r\n     12\r\n"), std::string::npos);
}

TEST(DxfRecords, VertexWritesLayerNotColourAndThreeNumbers) {
  StringSink out;
  dxfVertex(out, 13, 5, 0, -2.25, 1e-5);
  EXPECT_EQ(out.text(),
            "  0\r\nVERTEX\r\n  8\r\n13\r\n 70\r\n     32\r\n 10\r\n 0.0000 \r\n 20\r\n-2.2500 \r\n"
            " 30\r\n 0.0000 \r\n");
}

TEST(DxfRecords, SeqendHasItsOwnGroupCodeBlanks) {
  StringSink out;
  dxfSeqend(out);
  EXPECT_EQ(out.text(), " 0 \r\nSEQEND\r\n");
}

TEST(DxfRecords, FileFrame) {
  StringSink out;
  dxfHeader(out, "2D lines of Tolmar");
  dxfSection(out);
  dxfPolyline(out, 1, 7);  // a polyline without vertices is written as such
  dxfSeqend(out);
  dxfEndSec(out);
  dxfEof(out);
  EXPECT_EQ(
      out.text(),
      "999\r\n2D lines of Tolmar\r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n"
      "  0\r\nPOLYLINE\r\n  8\r\n1\r\n 62\r\n     7\r\n 66\r\n      1\r\n  6\r\nCONTINUOUS\r\n"
      " 70\r\n      8\r\n 0 \r\nSEQEND\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n");
}

TEST(DxfRecords, OneVertexPolylineIsWrittenAsSuch) {
  StringSink a, b;
  {
    PolylineOut p(a, 2, 3);
    p.vertex(1, 2, 3);
  }
  dxfPolyline(b, 2, 3);
  dxfVertex(b, 2, 3, 1, 2, 3);
  dxfSeqend(b);
  EXPECT_EQ(a.text(), b.text());
  EXPECT_EQ(a.text().substr(a.text().size() - 13), " 0 \r\nSEQEND\r\n");
}

TEST(DxfRecords, EveryLineEndsInCarriageReturnLineFeed) {
  StringSink out;
  dxfHeader(out, "x");
  dxfVertex(out, 1, 1, 1, 2, 3);
  const std::string& t = out.text();
  for (std::size_t i = 0; i < t.size(); ++i)
    if (t[i] == '\n') {
      EXPECT_EQ(t[i - 1], '\r') << "at byte " << i;
    }
  EXPECT_EQ(t.substr(t.size() - 2), "\r\n");
}

TEST(CodePage1252, CommentIsRecodedCharacterByCharacter) {
  EXPECT_EQ(toCodePage1252("Étrave à 5 €"), "\xC9trave \xE0 5 \x80");
  EXPECT_EQ(toCodePage1252("œuvre"), "\x9Cuvre");
  EXPECT_EQ(toCodePage1252("boat ⛵ 1"), "boat ? 1");  // outside the code page
  EXPECT_EQ(toCodePage1252("a\xFF"
                           "b"),
            "a?b");  // a byte that is no UTF-8
  EXPECT_EQ(toCodePage1252(""), "");
}

}  // namespace
}  // namespace tolmar
