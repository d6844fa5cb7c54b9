#include "board/station_drawing.h"

#include <algorithm>

#include "board/view_map.h"

namespace tolmar {

void drawStation(DrawingSurface& s, const HullStore& h) {
  const int st = std::clamp<int>(h.stationIndex, 1, 81);
  const int last = std::clamp<int>(h.nChines, 1, kMaxLine) + 9;
  const double sign = st <= 40 ? 1 : -1;

  s.DrawStyle = kStyleSolid;
  s.ForeColor = lineColour(h, 4);
  s.PSet(px(h, h.stationX(st, 0)), pz(h, h.stationZ(st, 0)));
  for (int j = 1; j <= last; ++j) {
    s.LineTo(
        static_cast<float>((sign * h.stationY(st, j) + h.stationX(st, j)) * h.scaleX + h.originX),
        pz(h, h.stationZ(st, j)));
  }
  s.LineTo(px(h, h.stationX(st, last)), pz(h, h.stationZ(st, last)));

  s.DrawStyle = kStyleDashDot;
  const float axis = px(h, h.stationX(st, 0));
  s.Line(axis, pz(h, h.stationZ(st, 0)) + 100, axis, pz(h, h.stationZ(st, last)) - 100);

  s.DrawStyle = kStyleSolid;
  s.ForeColor = lineColour(h, 0);
}

}  // namespace tolmar
