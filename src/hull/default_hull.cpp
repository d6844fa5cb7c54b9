// The default hull: a 6 m hull with a pointed stem, five lines above the
// keel and a raked transom.
#include "hull/default_hull.h"

#include "hull/geometrie.h"

namespace tolmar {

namespace {

void setDefaultColours(HullStore& h) {
  h.lineColor(0) = 0;
  h.lineColor(1) = 0;
  for (int n = 2; n <= kMaxLine; ++n) {
    const int m = n % 3;
    const std::int32_t c = m == 0 ? rgb(0, 170, 0) : (m == 1 ? rgb(200, 0, 0) : rgb(0, 0, 200));
    h.lineColor(n) = static_cast<float>(c);  // exact: every colour is below 2^24
  }
}

void setMassDefaults(HullStore& h) {
  for (int r = 1; r <= 4; ++r) h.panelDensity(r) = 10;
  h.panelDensity(5) = 10;  // transom
  h.panelDensity(6) = 0;   // pram bow
  h.panelDensity(7) = 10;  // bulkhead 1
  h.panelDensity(8) = 0;   // bulkhead 2
  h.bulkX(1) = 3.0;
  h.bulkX(2) = 0;
  h.floorDensity(1) = 0;
  h.floorDensity(2) = 0;
  h.deckDensity(1) = 10;
  h.deckDensity(2) = 0;
  h.equipMass.fill(0);
  h.equipX.fill(0);
}

// Heights of a line above the first chine; its other cells are left as
// they are.
void setHeights(HullStore& h, int n, double zAft, double zMax, double zFwd) {
  h.zAft(n) = zAft;
  h.zMax(n) = zMax;
  h.xFwd(n) = 6;
  h.zFwd(n) = zFwd;
}

}  // namespace

void initDefaultHull(HullStore& h) {
  setDefaultColours(h);

  h.hullName = "TOLMAR2005";
  h.overlapMode = 1;
  h.keelAdvance = 40;
  h.bowAngle = 15;
  h.transomAngle = -25;
  h.nChines = 5;
  h.powerFwd = 2.5;
  h.powerAft = 2.1;
  h.shapeAft = 1.0;
  h.shapeFwd = 0;

  const i16 angles[] = {12, 45, 70, 85, 90};
  for (int n = 0; n <= 4; ++n) h.plankAngle(n) = angles[n];
  for (int n = 0; n <= 4; ++n) h.bowTurn(n) = 1;
  h.bowTurn(5) = -1;
  for (int n = 0; n <= 3; ++n) h.transomTurn(n) = 1;
  h.transomTurn(4) = -1;
  h.transomTurn(5) = -1;

  h.xAft(0) = 0;
  h.xMax(0) = 3 + 0.95 * tanDeg(40);
  h.yMax(0) = 0;
  h.zMax(0) = 0 - 0.95 * tanDeg(12);
  h.xFwd(0) = 6;

  h.xAft(1) = 0;
  h.yAft(1) = 0.7;
  h.zAft(1) = 0.15;
  h.xMax(1) = 3;
  h.yMax(1) = 0.95;
  h.zMax(1) = 0;
  h.xFwd(1) = 6;
  h.yFwd(1) = 0;
  h.zFwd(1) = 0.1;

  setHeights(h, 2, 0.32, 0.2, 0.3);
  setHeights(h, 3, 0.7, 0.62, 0.75);
  setHeights(h, 4, 1.05, 1.0, 1.2);
  setHeights(h, 5, 1.1, 1.05, 1.25);

  setMassDefaults(h);
}

void newHullStore(HullStore& h) {
  for (int n = 0; n <= 3; ++n) {
    h.xFwd(n) = h.yFwd(n) = h.zFwd(n) = 0;
    h.xMax(n) = h.yMax(n) = 0;
    h.xAft(n) = h.yAft(n) = h.zAft(n) = 0;
  }
  h.lineX.fill(0);
  h.lineY.fill(0);
  h.lineZ.fill(0);
  h.edgeX.fill(0);
  h.edgeY.fill(0);
  h.edgeZ.fill(0);
  initDefaultHull(h);
  h.hullName = "Tolmar";
}

}  // namespace tolmar
