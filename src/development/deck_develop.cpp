#include "development/deck_develop.h"

#include <cmath>

#include "development/calc_develop.h"

namespace tolmar {

void calcDevelopDeck(HullStore& h, int n, int line, const TableRef& x, const TableRef& y,
                     const TableRef& z) {
  // Only X is compared: two points at one X add nothing, whatever their Z.
  auto step = [&](int i, int j) {
    if (x(line, i) == x(line, j)) return 0.0;
    const double dx = x(line, j) - x(line, i);
    const double dz = z(line, j) - z(line, i);
    return std::sqrt(dx * dx + dz * dz);
  };
  const int last = n + 2;

  h.devXi(1) = 0;
  h.devYi(1) = 0;
  h.devXs(1) = 0;
  h.devYs(1) = y(line, 1);

  h.devXi(0) = h.devXi(1) - step(0, 1);
  h.devYi(0) = 0;
  h.devXs(0) = h.devXi(0);
  h.devYs(0) = y(line, 0);

  for (int i = 1; i <= n + 1; ++i) {
    h.devXi(i + 1) = h.devXi(i) + step(i, i + 1);
    h.devYi(i + 1) = 0;
    h.devXs(i + 1) = h.devXi(i + 1);
    h.devYs(i + 1) = y(line, i + 1);
  }

  double minX = 99999.9;
  for (int i = 0; i <= last; ++i)
    if (h.devXi(i) < minX) minX = h.devXi(i);
  for (int i = 0; i <= last; ++i) {
    h.devXi(i) -= minX;
    h.devXs(i) -= minX;
  }
}

void developDeck(HullStore& h, int k) {
  calcDevelopDeck(h, kPlankLastPoint - 2, k, h.lineXRef(), h.lineYRef(), h.lineZRef());
}

}  // namespace tolmar
