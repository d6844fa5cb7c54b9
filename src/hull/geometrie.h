// Plane geometry under the plate development, the plate files and the stroke
// font.  Pure functions on doubles; points come back through output
// arguments.  The value of pi differs from one function to the next on
// purpose: each keeps the digits its results were defined with.
#pragma once

namespace tolmar {

double tanDeg(double a);  // tan(a degrees), with kPi
double atnDeg(double x);  // arctan(x) in degrees, with kPiShort
// tanDeg of a whole number of degrees, bit for bit the same value, taken
// from a table for |a| <= 720: the chine equations ask it at every point of
// every line.
double tanDegWhole(int a);

// Meeting point of the line through 1, 2 and the line through 3, 4.
// Parallel or doubly vertical lines give the mean of the points.
void intersect2D(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                 double y4, double& xi, double& yi);

double polarAngle(double x1, double y1, double x2, double y2);  // radians, 0..2 pi
void triangleAngles(double a, double b, double c, double& A, double& B, double& C);
void rotatePoint(double px, double py, double cx, double cy, double angle, double& qx, double& qy);
void cornerShiftNext(double x0, double y0, double x1, double y1, double x2, double y2, double d,
                     double& ox, double& oy);
void cornerShiftPrev(double x0, double y0, double x1, double y1, double x2, double y2, double d,
                     double& ox, double& oy);
void normalOffset(double x1, double y1, double x2, double y2, double d, double& ox, double& oy);

}  // namespace tolmar
