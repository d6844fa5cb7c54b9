#include "text/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "text/number_reader.h"

namespace tolmar {
namespace {

TEST(HullNumberText, WritesTheFileForm) {
  const struct {
    double v;
    const char* text;
  } cases[] = {
      {2.5, " 2.5"},
      {-25, "-25"},
      {12, " 12"},
      {0, " 0"},
      {-0.0, " 0"},
      {0.1, " .1"},
      {-0.5, "-.5"},
      {0.1 + 0.2, " .3"},
      {1.0 / 3, " .333333333333333"},
      {2.0 / 3, " .666666666666667"},
      {-2.0 / 3, "-.666666666666667"},
      {6.1, " 6.1"},
      {100, " 100"},
      {0.0001, " .0001"},
      {0.00012, " .00012"},
      {0.00001, " 1E-05"},
      {-0.000015, "-1.5E-05"},
      {1.5e-7, " 1.5E-07"},
      {123456789012345, " 123456789012345"},
      {1e14, " 100000000000000"},
      {1e15, " 1E+15"},
      {1234567890123456, " 1.23456789012346E+15"},
      {999999999999999.9, " 1E+15"},
      {0.99999999999999999, " 1"},
      {1e300, " 1E+300"},
      {-1e-300, "-1E-300"},
      {std::numeric_limits<double>::infinity(), " 1.79769313486232E+308"},
      {-std::numeric_limits<double>::infinity(), "-1.79769313486232E+308"},
      {std::nan(""), " 0"},
  };
  for (const auto& c : cases) EXPECT_EQ(hullNumberText(c.v), c.text) << c.v;
}

TEST(HullNumberText, ReadsBackToFifteenDigits) {
  const double values[] = {1.0 / 3, -2.0 / 3, 0.1,    6.123456789012345,
                           1e-5,    1.5e-7,   3.3e20, -7e-300};
  for (double v : values) {
    const std::string t = hullNumberText(v);
    EXPECT_EQ(hullNumberText(readNumber(t)), t) << v;
    EXPECT_NEAR(readNumber(t), v, std::fabs(v) * 1e-14) << v;
  }
}

TEST(PrintNumberText, ShortestFormWithSignColumnAndTrailingBlank) {
  EXPECT_EQ(printNumberText(2.5), " 2.5 ");
  EXPECT_EQ(printNumberText(-0.25), "-0.25 ");
  EXPECT_EQ(printNumberText(0), " 0 ");
  EXPECT_EQ(printNumberText(6), " 6 ");
  EXPECT_EQ(printNumberText(0.1 + 0.2), " 0.3 ");
  EXPECT_EQ(printNumberText(1e-5), " 1E-05 ");
  EXPECT_EQ(printNumberText(static_cast<float>(0.1), 7), " 0.1 ");
  EXPECT_EQ(printNumberText(static_cast<float>(1.0 / 3), 7), " 0.3333333 ");
}

TEST(DecimalText, ClampsDigitsAndRoundsAcrossAPowerOfTen) {
  EXPECT_EQ(decimalText(9.96, 2), "10");
  EXPECT_EQ(decimalText(99.6, 2), "1E+02");
  EXPECT_EQ(decimalText(0.5, 0), "0.5");
  EXPECT_EQ(decimalText(0.1, 40), "0.10000000000000001");
}

}  // namespace
}  // namespace tolmar
