#include "development/deck_develop.h"

#include <cmath>

#include "development/calc_develop.h"

namespace tolmar {

void calcDevelopDeck(HullStore& h, int n, int line, const TableRef& x, const TableRef& y,
                     const TableRef& z) {
  DevEdges d = devEdgesOf(h);
  calcDevelopDeck(d, n, line, x, y, z);
  storeDevEdges(h, d);
}

void calcDevelopDeck(DevEdges& h, int n, int line, const TableRef& x, const TableRef& y,
                     const TableRef& z) {
  // Only X is compared: two points at one X add nothing, whatever their Z.
  auto step = [&](int i, int j) {
    if (x(line, i) == x(line, j)) return 0.0;
    const double dx = x(line, j) - x(line, i);
    const double dz = z(line, j) - z(line, i);
    return std::sqrt(dx * dx + dz * dz);
  };
  const int last = n + 2;

  h.xi(1) = 0;
  h.yi(1) = 0;
  h.xs(1) = 0;
  h.ys(1) = y(line, 1);

  h.xi(0) = h.xi(1) - step(0, 1);
  h.yi(0) = 0;
  h.xs(0) = h.xi(0);
  h.ys(0) = y(line, 0);

  for (int i = 1; i <= n + 1; ++i) {
    h.xi(i + 1) = h.xi(i) + step(i, i + 1);
    h.yi(i + 1) = 0;
    h.xs(i + 1) = h.xi(i + 1);
    h.ys(i + 1) = y(line, i + 1);
  }

  double minX = 99999.9;
  for (int i = 0; i <= last; ++i)
    if (h.xi(i) < minX) minX = h.xi(i);
  for (int i = 0; i <= last; ++i) {
    h.xi(i) -= minX;
    h.xs(i) -= minX;
  }
}

void developDeck(HullStore& h, int k) {
  calcDevelopDeck(h, kPlankLastPoint - 2, k, h.lineXRef(), h.lineYRef(), h.lineZRef());
}

DevEdges deckEdges(const HullStore& h, int k, DevEdges d) {
  calcDevelopDeck(d, kPlankLastPoint - 2, k, h.lineXRef(), h.lineYRef(), h.lineZRef());
  return d;
}

}  // namespace tolmar
