#include "screens/geometry_backup.h"

#include <cmath>

namespace tolmar {

GeometryBackup::GeometryBackup(const HullStore& h)
    : bowAngle_(h.bowAngle),
      xAft_(h.xAft),
      yAft_(h.yAft),
      zAft_(h.zAft),
      xMax_(h.xMax),
      yMax_(h.yMax),
      zMax_(h.zMax),
      xFwd_(h.xFwd),
      yFwd_(h.yFwd),
      zFwd_(h.zFwd),
      planeA_(h.planeA),
      planeB_(h.planeB),
      planeC_(h.planeC),
      lineX_(h.lineX),
      lineY_(h.lineY),
      lineZ_(h.lineZ),
      edgeX_(h.edgeX),
      edgeY_(h.edgeY),
      edgeZ_(h.edgeZ),
      bevelAngle_(h.bevelAngle) {}

void GeometryBackup::restore(HullStore& h) const {
  h.bowAngle = bowAngle_;
  h.xAft = xAft_;
  h.yAft = yAft_;
  h.zAft = zAft_;
  h.xMax = xMax_;
  h.yMax = yMax_;
  h.zMax = zMax_;
  h.xFwd = xFwd_;
  h.yFwd = yFwd_;
  h.zFwd = zFwd_;
  h.planeA = planeA_;
  h.planeB = planeB_;
  h.planeC = planeC_;
  h.lineX = lineX_;
  h.lineY = lineY_;
  h.lineZ = lineZ_;
  h.edgeX = edgeX_;
  h.edgeY = edgeY_;
  h.edgeZ = edgeZ_;
  h.bevelAngle = bevelAngle_;
}

namespace {

bool sane(double v) { return std::isfinite(v) && std::abs(v) <= kLargestCoordinate; }

}  // namespace

bool controlValuesFinite(const HullStore& h, int n) {
  for (const LineArr* a :
       {&h.xAft, &h.yAft, &h.zAft, &h.xMax, &h.yMax, &h.zMax, &h.xFwd, &h.yFwd, &h.zFwd}) {
    if (!sane((*a)(n))) return false;
  }
  // The plane's slopes may be steep; finite is all they need.
  for (const LineArr* a : {&h.planeA, &h.planeB, &h.planeC}) {
    if (!std::isfinite((*a)(n))) return false;
  }
  return true;
}

bool linePointsFinite(const HullStore& h, int n) {
  for (int p = 0; p <= kLastPoint; ++p) {
    if (!sane(h.lineX(n, p)) || !sane(h.lineY(n, p)) || !sane(h.lineZ(n, p))) {
      return false;
    }
  }
  return true;
}

bool bottomEdgesFinite(const HullStore& h) {
  for (int s = 0; s <= 1; ++s) {
    for (int i = 0; i <= 83; ++i) {
      if (!sane(h.edgeX(s, i)) || !sane(h.edgeY(s, i)) || !sane(h.edgeZ(s, i))) {
        return false;
      }
    }
  }
  return true;
}

bool bevelRowFinite(const HullStore& h, int n) {
  for (int p = 0; p <= kLastPoint; ++p) {
    if (!std::isfinite(h.bevelAngle(n, p))) return false;
  }
  return true;
}

}  // namespace tolmar
