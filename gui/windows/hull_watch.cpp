#include "windows/hull_watch.h"

namespace tolmar::gui {

HullStore hullShape(const HullStore& h) {
  HullStore s = h;
  const HullStore blank;
  s.langue = 0;
  s.stationAtX = 0;
  s.stationIndex = 0;
  s.stationX = blank.stationX;
  s.stationY = blank.stationY;
  s.stationZ = blank.stationZ;
  s.devXi = blank.devXi;
  s.devYi = blank.devYi;
  s.devXs = blank.devXs;
  s.devYs = blank.devYs;
  s.transomPlate = blank.transomPlate;
  s.bowPlate = blank.bowPlate;
  s.wlX = blank.wlX;
  s.wlY = blank.wlY;
  s.wlZ = blank.wlZ;
  s.sectArea = blank.sectArea;
  s.sectX = blank.sectX;
  s.sectY = blank.sectY;
  s.sectZ = blank.sectZ;
  s.pitch = s.dispTarget = s.xDisp = s.yDisp = s.zDisp = 0;
  s.scaleX = s.scaleY = s.scaleZ = s.originX = s.originY = s.originZ = 0;
  s.bodyAxis = 0;
  s.printScaleX = s.printScaleY = s.printScaleZ = 0;
  s.printOriginX = s.printOriginY = s.printOriginZ = 0;
  return s;
}

HullWatch::HullWatch(const HullStore& h)
    : h_(h), seen_(std::make_unique<HullStore>(hullShape(h))) {}

HullWatch::~HullWatch() = default;

bool HullWatch::changed() {
  auto now = std::make_unique<HullStore>(hullShape(h_));
  if (*now == *seen_) return false;
  seen_ = std::move(now);
  return true;
}

}  // namespace tolmar::gui
