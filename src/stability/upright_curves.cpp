#include "stability/upright_curves.h"

#include <cmath>

#include "stability/immersion.h"

namespace tolmar::stability {

namespace {

// Sections sampled along the length for the largest one; odd, so that a
// hull symmetric fore and aft is cut at its middle.
constexpr int kSectionSamples = 161;

double ratio(double a, double b) { return b > 0 ? a / b : 0; }

}  // namespace

std::vector<double> curveDrafts(const HydroMesh& m, double step) {
  std::vector<double> d;
  const double top = m.curveTop - m.low.z;
  if (!(step > 0) || !(top > 0) || top / step > kMaxCurveRows) return d;
  for (int k = 1; k * step < top - 1e-9 * step; ++k) d.push_back(k * step);
  d.push_back(top);
  return d;
}

UprightRow uprightAt(const HydroMesh& m, double draft, double density) {
  UprightRow r;
  r.draft = draft;
  const ImmersedBody b = immerse(m, frameAt(0, 0), m.low.z + draft);
  const Waterplane& w = b.plane;
  r.volume = b.volume;
  r.displacement = b.volume * density;
  if (b.volume > 0) {
    r.lcb = b.buoyancy.x;
    r.kb = b.buoyancy.z - m.low.z;
  }
  r.waterplane = w.area;
  r.lcf = w.area > 0 ? w.centre.x : 0;
  r.bmt = ratio(w.iAlong, b.volume);
  r.bml = ratio(w.iAcross, b.volume);
  r.kmt = r.kb + r.bmt;
  r.kml = r.kb + r.bml;
  r.tpc = w.area * density / 100;
  r.mct = ratio(density * w.iAcross, 100 * w.length);
  const double section = largestSection(m, m.low.z + draft, m.low.x, m.high.x, kSectionSamples);
  r.cb = ratio(b.volume, w.length * w.breadth * draft);
  r.cp = ratio(b.volume, section * w.length);
  r.cm = ratio(section, w.breadth * draft);
  r.cwp = ratio(w.area, w.length * w.breadth);
  r.wetted = b.wetted;
  return r;
}

std::vector<UprightRow> uprightCurves(const HydroMesh& m, double step, double density) {
  std::vector<UprightRow> rows;
  for (double d : curveDrafts(m, step)) rows.push_back(uprightAt(m, d, density));
  return rows;
}

}  // namespace tolmar::stability
