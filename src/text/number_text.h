// The plain text forms of a number: the one of the hull file, and the one a
// drawing surface prints for a number item.  Both are free of the locale:
// the decimal separator is always a point.
#pragma once

#include <string>

namespace tolmar {

// The number to `significant` digits (1..17), trailing zeros dropped, with
// a zero before the point: "2.5", "-0.5", "12", "1E-05", "1.5E+20".  The
// exponent form is used when the decimal exponent of the rounded value is
// below -4 or at least `significant` (so 0.0001 gives "0.0001" but 0.00001
// gives "1E-05", and at 15 digits 1E+15 is the first large number with an
// exponent); the exponent has a sign and at least two digits.
// -0 gives "0"; NaN gives "0"; an infinity is written as the largest double.
std::string decimalText(double v, int significant);

// A number in the hull file: 15 significant digits, no zero before the
// point, and one leading blank when the number is not negative: " 2.5",
// "-25", " 12", " .1", "-.5", " 1E-05", " 0".
std::string hullNumberText(double v);

// A number item printed on a drawing surface: the shortest decimal form of
// the value at `significant` digits (15 for a double, 7 for a single), with
// the zero before the point, one blank before a value that is not negative
// and one blank after every value: " 2.5 ", "-0.25 ", " 0 ".
std::string printNumberText(double v, int significant = 15);

}  // namespace tolmar
