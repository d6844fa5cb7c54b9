#include "development/end_plates.h"

#include <algorithm>
#include <cmath>

namespace tolmar {

namespace {

void unrollSection(const HullStore& h, int s, EndPlate& plate) {
  plate(1, 0) = 0;
  plate(2, 0) = 0;
  const int last = lastSectionPoint(h);
  for (int j = 1; j <= last; ++j) {
    const double dz = h.stationZ(s, j) - h.stationZ(s, j - 1);
    const double dx = h.stationX(s, j) - h.stationX(s, j - 1);
    plate(1, j) = plate(1, j - 1) + std::sqrt(dz * dz + dx * dx);
    plate(2, j) = h.stationY(s, j);
  }
}

}  // namespace

int lastSectionPoint(const HullStore& h) { return std::clamp(h.nChines + 9, 0, EndPlate::colHi); }

void calcTransomPlate(HullStore& h) { unrollSection(h, 0, h.transomPlate); }

void calcBowPlate(HullStore& h) { unrollSection(h, kLastPoint, h.bowPlate); }

EndPlate transomPlateOf(const HullStore& h) {
  EndPlate p = h.transomPlate;
  unrollSection(h, 0, p);
  return p;
}

EndPlate bowPlateOf(const HullStore& h) {
  EndPlate p = h.bowPlate;
  unrollSection(h, kLastPoint, p);
  return p;
}

bool hasPramBow(const HullStore& h) { return h.yFwd(1) > 0.001; }

}  // namespace tolmar
