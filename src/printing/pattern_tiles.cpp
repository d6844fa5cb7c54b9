#include "printing/pattern_tiles.h"

#include <cmath>

namespace tolmar {

namespace {

// Tiles of `step` that, overlapping by `overlap`, cover `extent`.
int tilesFor(double extent, double tile, double overlap) {
  if (extent <= tile) return 1;
  return static_cast<int>(std::ceil((extent - overlap) / (tile - overlap) - 1e-9));
}

PlateTiling laid(double across, double down, bool turned, double tileW, double tileH,
                 double overlap) {
  PlateTiling t;
  t.turned = turned;
  t.posterW = across + 2 * kPatternBorderMm;
  t.posterH = down + 2 * kPatternBorderMm;
  t.tileW = tileW;
  t.tileH = tileH;
  t.overlap = overlap;
  t.cols = tilesFor(t.posterW, tileW, overlap);
  t.rows = tilesFor(t.posterH, tileH, overlap);
  return t;
}

}  // namespace

PlateTiling tilePlate(double lengthMm, double widthMm, double tileW, double tileH,
                      double overlapMm) {
  const bool sane = std::isfinite(lengthMm) && std::isfinite(widthMm) && lengthMm >= 0 &&
                    widthMm >= 0 && std::isfinite(overlapMm) && overlapMm >= 0 &&
                    tileW > 2 * overlapMm && tileH > 2 * overlapMm && std::isfinite(tileW) &&
                    std::isfinite(tileH);
  if (!sane) {
    PlateTiling none;
    none.cols = none.rows = 0;
    return none;
  }
  const PlateTiling across = laid(lengthMm, widthMm, false, tileW, tileH, overlapMm);
  const PlateTiling down = laid(widthMm, lengthMm, true, tileW, tileH, overlapMm);
  return down.count() < across.count() ? down : across;
}

std::string overlapError(double overlapMm, double tileW, double tileH, int langue) {
  if (std::isfinite(overlapMm) && overlapMm >= kMinOverlapMm && overlapMm <= kMaxOverlapMm &&
      tileW > 2 * overlapMm && tileH > 2 * overlapMm)
    return {};
  return langue == 0 ? "Le recouvrement doit être compris entre 5 et 50 mm et laisser de la place "
                       "sur la feuille."
                     : "The overlap must lie between 5 and 50 mm and leave room on the sheet.";
}

}  // namespace tolmar
