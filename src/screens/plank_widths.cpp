#include "screens/plank_widths.h"

#include <cmath>

#include "hull/angle_constants.h"

namespace tolmar {

namespace {

// z is the station's height table: zFwd, zMax or zAft.
double plankWidth(const HullStore& h, int k, const LineArr& z, double exponent) {
  const int n = h.nChines - 1;
  if (n < 1 || h.nChines > kMaxLine) return 0;
  const double rise = z(h.nChines) - z(1);
  double d = 0;
  for (int j = 1; j <= n; ++j) {
    d += std::sin(h.plankAngle(j) * kPi / 180) * std::pow(static_cast<double>(j) / n, exponent);
  }
  return rise * std::pow(static_cast<double>(k) / n, exponent) / d;
}

}  // namespace

double plankW_FWD(const HullStore& h, i16 k) { return plankWidth(h, k, h.zFwd, h.stemShape / 2); }

double plankW_MID(const HullStore& h, i16 k) { return plankWidth(h, k, h.zMax, h.stemShape / 3); }

double plankW_AFT(const HullStore& h, i16 k) { return plankWidth(h, k, h.zAft, h.stemShape / 3); }

}  // namespace tolmar
