// The board's mapping of hull points (metres) to the picture (drawing
// units), through the view scalars of the store.  Sums are formed in double
// and rounded to single precision once, as the surface takes them.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

inline float px(const HullStore& h, double x) {
  return static_cast<float>(h.scaleX * x + h.originX);
}
inline float py(const HullStore& h, double y) {
  return static_cast<float>(h.scaleY * y + h.originY);
}
inline float pz(const HullStore& h, double z) {
  return static_cast<float>(h.scaleZ * z + h.originZ);
}

struct ViewPoint {
  float x = 0, y = 0;
};

// Plan image of point i of line l.
inline ViewPoint planPoint(const HullStore& h, int l, int i) {
  return {px(h, h.lineX(l, i)), py(h, h.lineY(l, i))};
}

// Profile image of point i of line l.
inline ViewPoint profilePoint(const HullStore& h, int l, int i) {
  return {px(h, h.lineX(l, i)), pz(h, h.lineZ(l, i))};
}

// Section view: station slot s, section point j, on side +1 or -1 of the
// axis at bodyAxis; side 0 puts the point on the axis.
inline ViewPoint sectionPoint(const HullStore& h, int s, int j, int side) {
  const double y = side > 0   ? h.bodyAxis + h.stationY(s, j)
                   : side < 0 ? h.bodyAxis - h.stationY(s, j)
                              : static_cast<double>(h.bodyAxis);
  return {px(h, y), pz(h, h.stationZ(s, j))};
}

// A line's colour as the surface takes it; a value that is no RGB integer
// gives black.
inline std::int32_t lineColour(const HullStore& h, int l) {
  const float c = h.lineColor(l);
  return c >= 0 && c <= 16777215.0f ? static_cast<std::int32_t>(c) : 0;
}

}  // namespace tolmar
