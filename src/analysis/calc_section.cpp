#include "analysis/calc_section.h"

#include <algorithm>
#include <cmath>

#include "hull/line_generation.h"

namespace tolmar {

int lastLine(const HullStore& h) { return std::clamp<int>(h.nChines, 0, kMaxLine); }

SectionCut calcSection(const HullStore& h, int i, double z) {
  SectionCut s;
  s.x = h.lineX(0, i);
  if (z < h.lineZ(0, i)) return s;

  const int top = lastLine(h);
  s.chineOut = 0;
  double yTop = 0, zTop = 0, sumA = 0, sumCA = 0;
  for (int k = 1; k <= top; ++k) {
    const double y0 = h.lineY(k - 1, i), z0 = h.lineZ(k - 1, i);
    const double y1 = h.lineY(k, i), z1 = h.lineZ(k, i);
    if (z >= z1) {
      yTop = y1;
      zTop = z1;
      s.x = h.lineX(k, i);
      s.wlY = yTop;
      s.chineOut = static_cast<i16>(k);
    } else if (z <= z0) {
      zTop = z0;
    } else {
      yTop = crossingX(z, y0, z0, y1, z1);
      zTop = z;
      s.x = (h.lineX(k, i) - h.lineX(k - 1, i)) * (z - z0) / (z1 - z0) + h.lineX(k - 1, i);
      s.wlY = yTop;
    }
    const double a = std::fabs((zTop - z0) * (yTop + y0));
    const double c = yTop + y0 > 0 ? z0 + (2 * yTop + y0) * (zTop - z0) / (3 * (yTop + y0)) : z1;
    sumA += a;
    sumCA += c * a;
  }
  if (z > h.lineZ(top, i)) s.wlY = 0;
  s.area = sumA;
  s.zCentre = sumA > 0 ? sumCA / sumA : 0;
  return s;
}

}  // namespace tolmar
