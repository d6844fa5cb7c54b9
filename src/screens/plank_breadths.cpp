#include "screens/plank_breadths.h"

#include <cmath>

#include "hull/geometrie.h"

namespace tolmar {

namespace {

// The plank's angle to the vertical, degrees, and its dY/dZ.
struct Slope {
  double a, t;
};

Slope slopeBelow(const HullStore& h, int n) {
  const double a = 90 - h.plankAngle(n - 1);
  return {a, tanDeg(a)};
}

// One end: the two ends round the height on the centre plane with + 0.5.
void deriveEnd(double& y, double& z, double yBelow, double zBelow, Slope s) {
  y = yBelow + s.t * (z - zBelow);
  if (y < 0 && s.a != 0) {
    z = z - y / s.t;
    z = (std::floor(z * 10000) + 0.5) / 10000;
    y = 0;
  }
}

}  // namespace

void deriveYFwd(HullStore& h, int n) {
  deriveEnd(h.yFwd(n), h.zFwd(n), h.yFwd(n - 1), h.zFwd(n - 1), slopeBelow(h, n));
}

void deriveYAft(HullStore& h, int n) {
  deriveEnd(h.yAft(n), h.zAft(n), h.yAft(n - 1), h.zAft(n - 1), slopeBelow(h, n));
}

void deriveYMax(HullStore& h, int n) {
  const Slope s = slopeBelow(h, n);
  h.yMax(n) = h.yMax(n - 1) + s.t * (h.zMax(n) - h.zMax(n - 1));
  if (h.yMax(n) < 0 && s.a != 0) {
    h.zMax(n) = h.zMax(n) - h.yMax(n) / s.t;
    h.zMax(n) = std::floor(h.zMax(n) * 10000) / 10000;
    h.yMax(n) = 0.001;
  }
  // Lifted until the line is as wide at the maximum beam as at the transom.
  if (h.yMax(n) < h.yAft(n) && s.a != 0) {
    h.zMax(n) = h.zMax(n - 1) - (h.yMax(n - 1) - h.yAft(n)) / s.t;
    h.zMax(n) = (std::floor(h.zMax(n) * 10000) + 1) / 10000;
    h.yMax(n) = h.yMax(n - 1) + s.t * (h.zMax(n) - h.zMax(n - 1));
  }
}

}  // namespace tolmar
