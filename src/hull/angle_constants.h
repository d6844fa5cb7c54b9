// The digits of pi and of the degree that the hull's arithmetic uses.  They
// differ from one another, and from the true pi, in their last places; the
// figures on the screens and in the files follow bit for bit from these
// exact values, so each is written here once and none stands in for another.
#pragma once

namespace tolmar {

// Fourteen decimals: degrees typed on the screens to radians and back (the
// plank angles, the bevels, the pitch), tanDeg, triangleAngles, rotatePoint.
inline constexpr double kPi = 3.14159265358979;

// Eleven decimals: a direction given back in degrees (atnDeg) and the
// direction of a segment (polarAngle).
inline constexpr double kPiShort = 3.14159265359;

// Degrees in a radian, by which the steps between plank angles and the
// slopes of the end plates are divided.  Not 180 / kPi: that quotient is
// 57.29577951308238, and the bevels and end-plate cuts follow this one.
inline constexpr double kDegreesPerRadian = 57.2957795130823;

}  // namespace tolmar
