#include "sheets/nest_orders.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

#include "sheets/column_profile.h"

namespace tolmar::sheets {

using namespace ClipperLib;

namespace {

// Orders with the area shaken by up to this share either way.
constexpr int kShaken = 6;
constexpr double kShake = 0.25;

// A number in [0, 1) from two integers, the same on every machine
// (splitmix64).
double unit(std::uint64_t seed, std::uint64_t i) {
  std::uint64_t z = seed * 0x9E3779B97F4A7C15ull + i + 0x632BE59BD9B4E019ull;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
  z ^= z >> 31;
  return double(z >> 11) / double(1ull << 53);
}

// Indices sorted by `key`, then by `then`, largest first, ties in their
// own order.
std::vector<std::size_t> byKey(const std::vector<double>& key, const std::vector<double>& then) {
  std::vector<std::size_t> order(key.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return key[a] != key[b] ? key[a] > key[b] : then[a] > then[b];
  });
  return order;
}

// The slope of the line through the middle of `p` across the grain,
// each column weighted by its width: a part and its mirrored copy slope
// opposite ways, and turning half round keeps a slope as it is.
double slopeOf(const Path& p, cInt x0, cInt x1) {
  const cInt step = std::max<cInt>(1, (x1 - x0) / 40);
  const std::vector<ColumnSpan> cols = columnProfile(p, x0, step);
  double sw = 0, sx = 0, sy = 0, sxx = 0, sxy = 0;
  for (std::size_t j = 0; j < cols.size(); ++j) {
    if (cols[j].lo > cols[j].hi) continue;
    const double w = double(cols[j].hi - cols[j].lo) + 1, x = double(j) * double(step);
    const double y = 0.5 * (double(cols[j].lo) + double(cols[j].hi));
    sw += w, sx += w * x, sy += w * y, sxx += w * x * x, sxy += w * x * y;
  }
  const double d = sw * sxx - sx * sx;
  return d > 0 ? (sw * sxy - sx * sy) / d : 0;
}

// `order` with the pieces that slope one way first, those that slope
// the other way after, each in the order they had.
std::vector<std::size_t> bySlope(const std::vector<std::size_t>& order,
                                 const std::vector<double>& slope) {
  std::vector<std::size_t> out;
  for (std::size_t i : order)
    if (slope[i] >= 0) out.push_back(i);
  for (std::size_t i : order)
    if (slope[i] < 0) out.push_back(i);
  return out;
}

}  // namespace

std::vector<std::vector<std::size_t>> nestOrders(const std::vector<Path>& shapes) {
  const std::size_t n = shapes.size();
  std::vector<double> area(n), length(n), width(n), box(n), slope(n);
  for (std::size_t i = 0; i < n; ++i) {
    if (shapes[i].empty()) continue;
    cInt x0 = shapes[i][0].X, x1 = x0, y0 = shapes[i][0].Y, y1 = y0;
    for (const IntPoint& q : shapes[i]) {
      x0 = std::min(x0, q.X), x1 = std::max(x1, q.X);
      y0 = std::min(y0, q.Y), y1 = std::max(y1, q.Y);
    }
    area[i] = std::abs(Area(shapes[i]));
    length[i] = double(x1 - x0);
    width[i] = double(y1 - y0);
    box[i] = double(x1 - x0) * double(y1 - y0);
    slope[i] = slopeOf(shapes[i], x0, x1);
  }
  std::vector<std::vector<std::size_t>> out = {byKey(area, length), byKey(length, area),
                                               byKey(width, area), byKey(box, area)};
  for (std::size_t k = 0, plain = out.size(); k < plain; ++k) out.push_back(bySlope(out[k], slope));
  for (int s = 1; s <= kShaken; ++s) {
    std::vector<double> shaken(n);
    for (std::size_t i = 0; i < n; ++i)
      shaken[i] = area[i] * (1 + kShake * (2 * unit(std::uint64_t(s), i) - 1));
    out.push_back(byKey(shaken, length));
  }
  return out;
}

}  // namespace tolmar::sheets
