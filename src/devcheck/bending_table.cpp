#include "devcheck/bending_table.h"

#include <array>
#include <cmath>

namespace tolmar::devcheck {

namespace {

struct Row {
  double thickness;  // m
  BendLimit limit;
};

constexpr double kInch = 0.0254;
constexpr double kFoot = 0.3048;

// Source: APA – The Engineered Wood Association, Technical Topics TT-003A
// "Bending Plywood" (2007), minimum radii for mill-run panels bent dry, the
// same figures as its Engineered Wood Construction Guide: thickness 1/4 to
// 3/4 inch, "parallel to grain" and "across grain", in feet.  Shorter radii
// are reached by wetting or steaming, or by kerfing, as that note says.
constexpr std::array<Row, 6> kTable{{
    {0.25 * kInch, {5 * kFoot, 2 * kFoot}},
    {0.3125 * kInch, {6 * kFoot, 2 * kFoot}},
    {0.375 * kInch, {8 * kFoot, 3 * kFoot}},
    {0.5 * kInch, {12 * kFoot, 6 * kFoot}},
    {0.625 * kInch, {16 * kFoot, 8 * kFoot}},
    {0.75 * kInch, {20 * kFoot, 12 * kFoot}},
}};

BendLimit scaled(const Row& r, double t) {
  const double s = t / r.thickness;
  return {r.limit.alongGrain * s, r.limit.acrossGrain * s};
}

}  // namespace

BendLimit minimumBendRadius(double t) {
  if (!std::isfinite(t) || t <= 0) return {};
  if (t <= kTable.front().thickness) return scaled(kTable.front(), t);
  if (t >= kTable.back().thickness) return scaled(kTable.back(), t);
  for (std::size_t i = 1; i < kTable.size(); ++i) {
    const Row& a = kTable[i - 1];
    const Row& b = kTable[i];
    if (t > b.thickness) continue;
    const double u = (t - a.thickness) / (b.thickness - a.thickness);
    return {a.limit.alongGrain + u * (b.limit.alongGrain - a.limit.alongGrain),
            a.limit.acrossGrain + u * (b.limit.acrossGrain - a.limit.acrossGrain)};
  }
  return kTable.back().limit;
}

}  // namespace tolmar::devcheck
