#include "text/data_line.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "text/number_reader.h"

namespace tolmar {
namespace {

TEST(CleanNumber, TurnsEveryCommaIntoAPointInPlace) {
  std::string t = " 1,5 ";
  EXPECT_EQ(cleanNumber(t), " 1.5 ");
  EXPECT_EQ(t, " 1.5 ");
  std::string several = "1,2,3";
  EXPECT_EQ(cleanNumber(several), "1.2.3");
  EXPECT_EQ(readNumber(several), 1.2);
  std::string none = "abc";
  EXPECT_EQ(cleanNumber(none), "abc");
}

TEST(ReadDataLine, SplitsAtLineFeedAndDropsControlCharacters) {
  std::istringstream in(
      "first\r\n 1,5\r\n\ta\x01"
      "b\x7f\r\nlast-no-end");
  EXPECT_EQ(readDataLine(in), "first");
  EXPECT_EQ(readDataLine(in), " 1.5");
  EXPECT_EQ(readDataLine(in), "ab\x7f");
  EXPECT_EQ(readDataLine(in), "last-no-end");
  EXPECT_EQ(readDataLine(in), "");
  EXPECT_EQ(readDataLine(in), "");
}

TEST(ReadDataLine, KeepsBytesAboveAsciiAndCarriageReturnOnlyIsNoBreak) {
  std::istringstream in("\xe9t\xe9\rsame line\nnext");
  EXPECT_EQ(readDataLine(in), "\xe9t\xe9same line");
  EXPECT_EQ(readDataLine(in), "next");
}

TEST(ReadDataLine, NulBytesAreDropped) {
  std::istringstream in(std::string("1\0002\n", 4));
  EXPECT_EQ(readDataLine(in), "12");
}

}  // namespace
}  // namespace tolmar
