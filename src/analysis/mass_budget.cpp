#include "analysis/mass_budget.h"

#include <cmath>

#include "analysis/calc_section.h"

namespace tolmar {

PlateMeasure plankMeasure(const HullStore& h, int n) {
  auto girth = [&](int i) {
    const double dz = h.lineZ(n + 1, i) - h.lineZ(n, i), dy = h.lineY(n + 1, i) - h.lineY(n, i);
    return std::sqrt(dz * dz + dy * dy);
  };
  auto middle = [&](int i) { return (h.lineX(n, i) + h.lineX(n + 1, i)) / 2; };
  double A = 0, M = 0;
  for (int i = 1; i <= kLastPoint; ++i) {
    const double a = (girth(i) + girth(i - 1)) * (middle(i) - middle(i - 1)) / 2;
    const double xm =
        (h.lineX(n, i - 1) + h.lineX(n + 1, i - 1) + h.lineX(n + 1, i) + h.lineX(n, i)) / 4;
    A += a;
    M += xm * a;
  }
  return {2 * A, M / (A + kAreaGuard)};
}

PlateMeasure planMeasure(const HullStore& h, int line) {
  double A = 0, M = 0;
  for (int i = 1; i <= kLastPoint; ++i) {
    const double a =
        (h.lineX(line, i) - h.lineX(line, i - 1)) * (h.lineY(line, i) + h.lineY(line, i - 1));
    A += a;
    M += (h.lineX(line, i - 1) + h.lineX(line, i)) * a / 2;
  }
  return {A, M / (A + kAreaGuard)};
}

PlateMeasure sectionMeasure(const HullStore& h, int P) {
  double A = 0, M = 0;
  for (int k = 1; k <= lastLine(h); ++k) {
    const double dz = h.lineZ(k, P) - h.lineZ(k - 1, P), dy = h.lineY(k, P) - h.lineY(k - 1, P);
    const double L = std::sqrt(dz * dz + dy * dy);
    const double a = (h.lineY(k - 1, P) + h.lineY(k, P)) * L;
    A += a;
    M += (h.lineX(k - 1, P) + h.lineX(k, P)) * a / 2;
  }
  return {A, M / (A + kAreaGuard)};
}

int bulkheadPoint(const HullStore& h, double x) {
  const double length = h.xFwd(1);
  if (x >= length) return 81;
  if (x <= 0) return 1;
  return static_cast<int>(std::floor(x * 80 / length)) + 1;
}

double plankDensity(const HullStore& h, int n) { return h.panelDensity(n <= 2 ? n + 1 : 4); }

void calcPlanks(HullStore& h) {
  for (int n = 0; n <= lastLine(h) - 1; ++n) {
    const PlateMeasure p = plankMeasure(h, n);
    h.plankArea(n) = p.area;
    h.plankX(n) = p.x;
    h.plankMass(n) = plankDensity(h, n) * p.area;
  }
}

void calcFloors(HullStore& h, int nFloors) {
  for (int k = 1; k <= nFloors; ++k) {
    const PlateMeasure p = planMeasure(h, k);
    h.floorArea(k) = p.area;
    h.floorX(k) = p.x;
    h.floorMass(k) = p.area * h.floorDensity(k);
  }
}

void calcDecks(HullStore& h, int nDecks) {
  for (int k = 1; k <= nDecks; ++k) {
    const PlateMeasure p = planMeasure(h, lastLine(h) + 1 - k);
    h.deckArea(k) = p.area;
    h.deckX(k) = p.x;
    h.deckMass(k) = p.area * h.deckDensity(k);
  }
}

void calcTransom(HullStore& h) {
  const PlateMeasure p = sectionMeasure(h, 0);
  h.transomArea = p.area;
  h.transomX = p.x;
  h.transomMass = p.area * h.panelDensity(5);
}

void calcBow(HullStore& h) {
  const PlateMeasure p = sectionMeasure(h, kLastPoint);
  h.bowArea = p.area;
  h.bowX = p.x;
  h.bowMass = p.area * h.panelDensity(6);
}

void calcBulkhead(HullStore& h, int j, double askedX) {
  const PlateMeasure p = sectionMeasure(h, bulkheadPoint(h, askedX));
  h.bulkArea(j) = p.area;
  h.bulkX(j) = p.x;
  h.bulkMass(j) = p.area * h.panelDensity(6 + j);
}

}  // namespace tolmar
