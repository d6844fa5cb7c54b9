// Station sections and the board's view transform.
#include "hull/stations.h"

#include <algorithm>
#include <cmath>

#include "hull/chine_equations.h"

namespace tolmar {

namespace {

int lastLine(const HullStore& h) { return std::clamp<int>(h.nChines, 0, kMaxLine); }

// Plan length of a line over points 0..82, summed in single precision.
float planLength(const HullStore& h, int n) {
  float len = 0;
  for (int p = 1; p <= kLastPoint; ++p) {
    const double dx = h.lineX(n, p) - h.lineX(n, p - 1);
    const double dy = h.lineY(n, p) - h.lineY(n, p - 1);
    len = static_cast<float>(len + std::sqrt(dx * dx + dy * dy));
  }
  return len;
}

// A scale that is not a positive finite number (an empty or unvalidated
// hull) gives way to the other one, and to 1 twip per metre if both fail.
float pickScale(float s1, float s2) {
  const bool ok1 = std::isfinite(s1) && s1 > 0;
  const bool ok2 = std::isfinite(s2) && s2 > 0;
  if (ok1 && ok2) return s1 < s2 ? s1 : s2;
  if (ok1) return s1;
  if (ok2) return s2;
  return 1;
}

float finiteOr(float v, float fallback) { return std::isfinite(v) ? v : fallback; }

}  // namespace

void buildStation(HullStore& h, int p) {
  if (p < 0 || p > kLastPoint) return;
  const double x0 = h.lineX(0, p), x1 = h.lineX(1, p);
  for (int i = 0; i <= 10; ++i) {
    if (p == kLastPoint) {
      // The stem plane: straight in X and Z, Y from the bottom surface.
      const double x = x0 + (x1 - x0) * i / 10;
      const double z = h.lineZ(0, p) + (h.lineZ(1, p) - h.lineZ(0, p)) * i / 10;
      h.stationX(p, i) = x;
      h.stationZ(p, i) = z;
      h.stationY(p, i) = bottomY(h, x, z);
    } else {
      const double x = x0 + (x1 - x0) * i / 10;
      const double y = i * h.lineY(1, p) / 10;
      h.stationX(p, i) = x;
      h.stationY(p, i) = y;
      h.stationZ(p, i) = bottomZ(h, x, y);
    }
  }
  for (int n = 2; n <= lastLine(h); ++n) {
    h.stationX(p, n + 9) = h.lineX(n, p);
    h.stationY(p, n + 9) = h.lineY(n, p);
    h.stationZ(p, n + 9) = h.lineZ(n, p);
  }
}

void buildAllStations(HullStore& h) {
  for (int p = 0; p <= kLastPoint; ++p) buildStation(h, p);
}

void scaleViews(HullStore& h, double W, double H, int stepIndex) {
  // The point of maximum beam; an unvalidated store (xFwd(1) = 0) gives 0.
  const double ratio = h.xMax(1) * 80 / h.xFwd(1) + 0.5;
  const int m =
      std::isfinite(ratio) ? static_cast<int>(std::floor(std::clamp(ratio, -1.0, 81.0))) + 1 : 0;
  const double xFwd1 = h.xFwd(1);

  float L = planLength(h, 1);
  if (1.15 * xFwd1 > L) L = static_cast<float>(1.15 * xFwd1);
  if (stepIndex >= 1) {
    L = std::max(L, planLength(h, 3));
    if (h.nChines >= 4) L = std::max(L, planLength(h, 4));
  }

  float yMax = static_cast<float>(1.5 * h.yMax(1));
  float zMax = static_cast<float>(h.yMax(1));
  float xMin = static_cast<float>(-0.1 * xFwd1);
  if (stepIndex >= 1) {
    for (int n = 2; n <= lastLine(h); ++n) {
      if (h.lineX(n, 0) < xMin) xMin = static_cast<float>(h.lineX(n, 0));
      if (h.lineZ(n, kLastPoint) > zMax) zMax = static_cast<float>(h.lineZ(n, kLastPoint));
      if (h.lineZ(n, 0) > zMax) zMax = static_cast<float>(h.lineZ(n, 0));
      if (h.lineY(n, m) > yMax) yMax = static_cast<float>(h.lineY(n, m));
    }
  }

  const float w = static_cast<float>(W);
  const float hh = static_cast<float>(H);
  const double keelDepth = std::abs(h.lineZ(0, m));
  const float s1 = static_cast<float>((w - 300) / ((L - xMin) * 1.05 + yMax * 2.2));
  const float s2 = static_cast<float>((hh - 400) / (keelDepth * 1.1 + (zMax + yMax) * 1.1));
  const float s = pickScale(s1, s2);
  h.scaleX = s;
  h.scaleY = s;
  h.scaleZ = -s;

  h.originX = finiteOr(static_cast<float>(150 - h.scaleX * xMin), 150);
  h.originY =
      finiteOr(static_cast<float>((hh / 2 - yMax * 1.1 * h.scaleY) / 2 + hh / 2), hh * 0.75f);
  h.originZ = finiteOr(static_cast<float>(hh / 2 - 100 - (keelDepth + zMax * 0.05) * h.scaleY),
                       hh / 2 - 100);
  h.bodyAxis = finiteOr(static_cast<float>(yMax * 1.12 + L * 1.05), 0);
}

}  // namespace tolmar
