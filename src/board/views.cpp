#include "board/views.h"

#include <algorithm>
#include <cmath>

#include "board/fold_drawing.h"
#include "hull/fold_check.h"
#include "hull/stations.h"
#include "text/number_format.h"

namespace tolmar {

std::string dimensionText(double v) { return formatNumber(v, "0.0##"); }

int boardBeamPoint(const HullStore& h) {
  const double r = h.xMax(1) / h.xFwd(0) * 80 + 0.5;
  if (!std::isfinite(r)) return 0;
  return static_cast<int>(std::floor(std::clamp(r, -1.0, 81.0))) + 1;
}

void redrawViews(DrawingSurface& s, const HullStore& h, int stepIndex) {
  drawGrid(s, h);
  for (int k = 0; k <= stepIndex; ++k) {
    drawLines(s, h, k);
    drawSections(s, h, k);
  }
  drawFolds(s, h, stepIndex >= 1 ? checkFolds(h) : checkFoldsUpTo(h, 1), stepIndex);
}

void dessine(DrawingSurface& s, HullStore& h, int stepIndex) {
  s.Cls();
  scaleViews(h, s.Width(), s.Height(), stepIndex);
  s.ScaleLeft = 0;
  s.ScaleTop = 0;
  s.ScaleWidth = s.Width();
  s.ScaleHeight = s.Height();
  drawGrid(s, h);
  buildAllStations(h);
  for (int k = 0; k <= stepIndex; ++k) {
    drawLines(s, h, k);
    drawSections(s, h, k);
  }
  drawFolds(s, h, stepIndex >= 1 ? checkFolds(h) : checkFoldsUpTo(h, 1), stepIndex);
}

}  // namespace tolmar
