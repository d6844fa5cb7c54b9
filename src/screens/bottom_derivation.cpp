#include "screens/bottom_derivation.h"

#include <cmath>

#include "hull/chine_equations.h"
#include "hull/geometrie.h"

namespace tolmar {

void deriveBottomHeights(HullStore& h) {
  h.zFwd(0) = bottomZ(h, h.xFwd(0), 0);
  h.zAft(0) = bottomZ(h, h.xAft(0), 0);
  h.zMax(0) = bottomZ(h, h.xMax(1), 0);
  for (int k = 2; k <= 4; ++k) {
    if (h.zFwd(k) < h.zFwd(k - 1)) h.zFwd(k) = h.zFwd(k - 1);
    if (h.zMax(k) < h.zMax(k - 1)) h.zMax(k) = h.zMax(k - 1);
    if (h.zAft(k) < h.zAft(k - 1)) h.zAft(k) = h.zAft(k - 1);
    h.xFwd(k) = h.xFwd(0);
    h.xMax(k) = h.xMax(1);
    h.xAft(k) = h.xAft(0);
  }
}

void fitFirstChinePlane(HullStore& h) {
  const double lf = h.xFwd(0);
  const double lm = h.xMax(1);
  const double dyF = h.yFwd(1) - h.yAft(1);
  const double dyM = h.yMax(1) - h.yAft(1);
  const double dzF = h.zFwd(1) - h.zAft(1);
  const double dzM = h.zMax(1) - h.zAft(1);
  h.planeC(1) = (dzF * lm - dzM * lf) / (dyF * lm - lf * dyM);
  h.planeB(1) = (dzF * dyM - dzM * dyF) / (lf * dyM - dyF * lm);
  h.planeA(1) = h.zAft(1) - h.planeC(1) * h.yAft(1);
}

void fitFirstChineEnds(HullStore& h) {
  double x = h.xFwd(0);
  double z = h.zFwd(1);
  for (int pass = 0; pass < 10; ++pass) {
    double y;
    // At 0 degrees the chine ends on its control point, where Y = yFwd(1)
    // >= 0, so the angle never goes below 0 for finite heights; the -90
    // stop only bounds the loop should a height be non-finite.
    do {
      x = h.xFwd(0) + tanDeg(h.bowAngle) * (z - h.zFwd(0));
      const ChinePoint c = chinePoint(h, 1, x);
      z = c.z;
      y = c.y;
      if (y < 0) --h.bowAngle;
    } while (y < 0 && h.bowAngle > -90);
  }
  h.xFwd(1) = x;

  x = h.xAft(0);
  z = h.zAft(1);
  for (int pass = 0; pass < 10; ++pass) {
    x = h.xAft(0) + tanDeg(h.transomAngle) * (z - h.zAft(0));
    z = chineZ(h, 1, x);
  }
  h.xAft(1) = x;
}

ChineEndsSettled chineEndsSettled(const HullStore& h) {
  const double length = std::abs(h.xFwd(0));
  const double aft = h.xAft(0) + tanDeg(h.transomAngle) * (chineZ(h, 1, h.xAft(1)) - h.zAft(0));
  const double fwd = h.xFwd(0) + tanDeg(h.bowAngle) * (chineZ(h, 1, h.xFwd(1)) - h.zFwd(0));
  const double tolAft = 0.01 * (length + std::abs(h.xAft(1) - h.xAft(0)));
  const double tolFwd = 0.01 * (length + std::abs(h.xFwd(1) - h.xFwd(0)));
  return {std::abs(aft - h.xAft(1)) <= tolAft, std::abs(fwd - h.xFwd(1)) <= tolFwd};
}

}  // namespace tolmar
