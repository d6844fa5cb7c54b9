#include "sheets/nesting.h"

#include <libnest2d/libnest2d.hpp>

namespace tolmar::sheets {

std::vector<NestPlace> nestShapes(const NestRequest& r) {
  using namespace libnest2d;
  std::vector<Item> items;
  items.reserve(r.shapes.size());
  for (const ClipperLib::Path& p : r.shapes) {
    ClipperLib::Path c = p;
    // The backend wants clockwise outlines, closed by a repeated point.
    if (ClipperLib::Orientation(c)) ClipperLib::ReversePath(c);
    if (!c.empty()) c.push_back(c.front());
    items.emplace_back(c);
  }
  // The placer keeps the inflated shapes (half the gap round each) inside
  // the bin, so the bin is widened by that half to let the real outline
  // reach the margin.
  const ClipperLib::cInt half = (r.gap + 1) / 2;
  Box bin({r.x0 - half, r.y0 - half}, {r.x1 + half, r.y1 + half});
  NestConfig<NfpPlacer, FirstFitSelection> cfg;
  if (r.rotate90)
    cfg.placer_config.rotations = {0.0, Pi / 2, Pi, 3 * Pi / 2};
  else
    cfg.placer_config.rotations = {0.0, Pi};
  cfg.placer_config.alignment = NfpPlacer::Config::Alignment::BOTTOM_LEFT;
  cfg.placer_config.starting_point = NfpPlacer::Config::Alignment::BOTTOM_LEFT;
  cfg.placer_config.parallel = true;
  nest(items, bin, r.gap, cfg);
  std::vector<NestPlace> out;
  out.reserve(items.size());
  for (const Item& it : items) {
    NestPlace p;
    p.bin = it.binId();
    p.rotation = static_cast<double>(it.rotation());
    p.dx = getX(it.translation());
    p.dy = getY(it.translation());
    out.push_back(p);
  }
  return out;
}

}  // namespace tolmar::sheets
