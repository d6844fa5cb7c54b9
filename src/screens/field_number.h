// The numbers of the hull screens' fields: cleaned of decimal commas, read
// with the tolerant reader, shown as plain decimals (15 significant
// digits), and compared with their bounds at the precision of that text.
#pragma once

#include <string>

#include "screens/control.h"

namespace tolmar {

// Beyond the scale of any hull (a kilometre), in metres or as a shape
// exponent.  A field without an upper bound (a length, a height, an S
// shape) that reads beyond it is replaced by it like a value beyond a
// bound, which keeps the geometry finite and of a hull's size for any text.
inline constexpr double kLargestTyped = 1e3;

// cleanNumber on the field's text, in place.
void cleanField(Field& f);

// The value of the longest numeric prefix, 0 if there is none; always
// finite (an overflow reads as the largest double), and -0 reads as 0.
double fieldValue(const Field& f);

// "0.95", "-25", "3", "1E-05": the plain decimal of a field.
std::string plainText(double v);
inline void showNumber(Field& f, double v) { f.text = plainText(v); }

// A value written back with 15 significant digits reads again within a
// relative 5e-15 of itself, so a value within a relative 1e-12 of a bound
// counts as on it: a value replaced by its bound passes the next validation.
bool below(double v, double bound);
bool above(double v, double bound);

// v held to +-kLargestTyped; `over` tells whether it was beyond.
double withinScale(double v, bool& over);

}  // namespace tolmar
