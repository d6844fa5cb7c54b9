#include "text/number_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace tolmar {
namespace {

constexpr double kMax = std::numeric_limits<double>::max();

struct ScanCase {
  const char* text;
  double value;
  std::size_t length;
};

TEST(NumberReader, ReadsTheLongestNumericPrefix) {
  const ScanCase cases[] = {
      {"", 0, 0},         {"   ", 0, 0},
      {"abc", 0, 0},      {"12", 12, 2},
      {"  12", 12, 4},    {"\t 3.5", 3.5, 5},
      {"-25", -25, 3},    {"+7", 7, 2},
      {" .5", 0.5, 3},    {"-.5", -0.5, 3},
      {"5.", 5, 2},       {".", 0, 0},
      {"-", 0, 0},        {"+.", 0, 0},
      {"1E-05", 1e-5, 5}, {" 1E-05", 1e-5, 6},
      {"1e3", 1000, 3},   {"2.5E+2x", 250, 6},
      {"1e", 1, 1},       {"1e+", 1, 1},
      {"1e-x", 1, 1},     {"1.2.3", 1.2, 3},
      {"12abc", 12, 2},   {"LINE  3", 0, 0},
      {"- 5", 0, 0},      {"1,5", 1, 1},  // commas are turned into points before reading
      {"0.1", 0.1, 3},    {"4.9e-324", 4.9e-324, 8},
      {"007", 7, 3},
  };
  for (const auto& c : cases) {
    const auto r = scanNumber(c.text);
    EXPECT_EQ(r.value, c.value) << '"' << c.text << '"';
    EXPECT_EQ(r.length, c.length) << '"' << c.text << '"';
    EXPECT_FALSE(r.overflow) << '"' << c.text << '"';
  }
}

TEST(NumberReader, OverflowIsClampedAndFlagged) {
  const std::string forty(40, '9');
  const std::string fourHundred(400, '9');
  struct Case {
    std::string text;
    double value;
    bool overflow;
  } cases[] = {
      {"1e999", kMax, true},
      {"-1e999", -kMax, true},
      {"1.8e308", kMax, true},
      {" 1.79769313486232E+308", kMax, true},  // the largest double at 15 digits
      {" 1.7976931348623157E+308", kMax, false},
      {fourHundred, kMax, true},
      {"-" + fourHundred + ".5", -kMax, true},
      {"1e99999999999999999999999", kMax, true},
      {forty, 1e40, false},
      {"1e-999", 0, false},
      {"-1e-999", 0, false},
      {"0." + std::string(400, '0') + "1", 0, false},
      {"0e999999", 0, false},
  };
  for (const auto& c : cases) {
    const auto r = scanNumber(c.text);
    EXPECT_TRUE(std::isfinite(r.value)) << c.text;
    EXPECT_EQ(r.value, c.value) << c.text;
    EXPECT_EQ(r.overflow, c.overflow) << c.text;
    EXPECT_EQ(readNumber(c.text), c.value) << c.text;
  }
}

TEST(NumberReader, RoundsHalfToEven) {
  const struct {
    double in, out;
  } cases[] = {{0.5, 0},
               {1.5, 2},
               {2.5, 2},
               {3.5, 4},
               {-0.5, 0},
               {-1.5, -2},
               {-2.5, -2},
               {2.4999, 2},
               {2.5001, 3},
               {-2.5001, -3},
               {7, 7},
               {1e300, 1e300},
               {4503599627370495.5, 4503599627370496}};
  for (const auto& c : cases) EXPECT_EQ(roundHalfEven(c.in), c.out) << c.in;
  EXPECT_EQ(roundHalfEven(std::nan("")), 0);
}

TEST(NumberReader, I16FlagsValuesBeyondSixteenBits) {
  const struct {
    double in;
    int value;
    bool inRange;
  } cases[] = {
      {12, 12, true},           {12.5, 12, true},
      {13.5, 14, true},         {-25.5, -26, true},
      {32767, 32767, true},     {32767.4, 32767, true},
      {32767.5, 32767, false},  {-32768, -32768, true},
      {-32768.5, -32768, true}, {-32768.6, -32768, false},
      {1e9, 32767, false},      {-kMax, -32768, false},
      {std::nan(""), 0, false},
  };
  for (const auto& c : cases) {
    const auto r = toI16(c.in);
    EXPECT_EQ(r.value, c.value) << c.in;
    EXPECT_EQ(r.inRange, c.inRange) << c.in;
  }
}

}  // namespace
}  // namespace tolmar
