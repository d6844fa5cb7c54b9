// The tolerant number reader shared by the screens and the hull file, and
// the two conversions that follow it: rounding half to even and the 16-bit
// integer of a typed angle.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tolmar {

struct NumberScan {
  double value = 0;        // always finite
  std::size_t length = 0;  // characters used, leading blanks included; 0 if no number
  bool overflow = false;   // the text's value lies beyond the largest double
};

// Skips leading blanks and tabs, then reads the longest prefix of the form
// [+-] digits [. digits] [(e|E) [+-] digits], with digits on at least one
// side of the point (".5", "5.", "-.5").  An exponent without digits is not
// part of the number ("1e" reads 1).  No number at all gives 0.
// A value beyond the largest double is clamped to +-1.7976931348623157e308
// and flagged; a value below the smallest subnormal reads as 0 (no flag).
NumberScan scanNumber(std::string_view text);

// scanNumber's value alone: the clamped, finite value.
double readNumber(std::string_view text);

// To the nearest whole number, a half to the even neighbour: 2.5 -> 2,
// 3.5 -> 4, -2.5 -> -2.  NaN gives 0, infinities stay as they are.
double roundHalfEven(double x);

struct I16Value {
  std::int16_t value = 0;
  bool inRange = true;  // false: the rounded value is not in -32768..32767
};

// The value of an i16 field (an angle in whole degrees): rounded half to
// even, and clamped to -32768..32767 with inRange false when it does not
// fit, so that a screen or the file reader can refuse it.  NaN gives 0, out
// of range.
I16Value toI16(double x);

}  // namespace tolmar
