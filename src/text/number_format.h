// Numbers through a picture such as "0.000", "#0.0000", " 00 " or
// " +0.##0 ; -0.##0 ", as the screens, reports and export files show them.
#pragma once

#include <string>
#include <string_view>

namespace tolmar {

// The picture grammar:
//  - "0" a digit always shown, "#" a digit shown only when significant;
//  - "." the decimal point, always written as a point whatever the locale,
//    and written even when no fraction digit follows ("0.##" gives "5." for
//    5, as the classic number formatter did);
//  - up to three sections separated by ";": positive, negative, zero.  A
//    negative value takes the second section, written without a minus sign;
//    with one section (or an empty second one) a negative value gets "-" in
//    front of the whole text, literals included: -1.5 with " 0.0" gives
//    "- 1.5".  Zero takes the third section, or the first if there is none.
//    The section is chosen by the sign of the value before rounding, so
//    -0.0004 with "0.000" gives "-0.000";
//  - a backslash makes the next character a literal, "..." a literal text;
//    every other character is a literal as it stands (no thousands
//    separator, percent or exponent pictures).
// The value is first taken to 15 significant decimal digits and then
// rounded half away from zero on that decimal text: 2.675 with "0.00"
// gives "2.68", 0.5 with "0" gives "1".  Integer digits beyond the
// picture's placeholders go in front of the first one ("00" with 123 gives
// "123").  Fraction digits run to the last "0" of the fraction, then on
// over "#" places while they are not trailing zeros.
// NaN is formatted as 0, an infinity as the largest double.  The empty
// picture gives decimalText(v, 15).
std::string formatNumber(double v, std::string_view picture);

}  // namespace tolmar
