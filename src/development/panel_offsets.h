// Offsets to loft a developed plate onto a board without a printer: a
// straight baseline along the plate, the chord of its lower edge (for the
// transom and the pram bow, whose two edges are the sides of one panel, its
// centre line), stations along it every step and at both ends (and at the
// section points of an end plate, where its sides turn), and at each
// station the distance from the baseline, square to it, to the lower and
// upper edge, and to the lap line of a lap-strake plank.  Millimetres; a
// distance is positive on the side of the upper edge.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "development/developed_plate.h"

namespace tolmar {

struct OffsetStation {
  double at = 0;  // along the baseline from its first end (the aft end of the lower edge)
  // Missing where the edge does not reach the station.
  std::optional<double> lower, upper, lap;
};

// Where an edge ends: along the baseline and off it.
struct EdgeEnd {
  double at = 0, off = 0;
};

struct PanelOffsets {
  const DevelopedPlate* plate = nullptr;
  bool lapStrake = false;  // lower and upper are the cut edges, lap the plate's lower edge
  double baselineMm = 0;
  double stepMm = 0;
  std::vector<OffsetStation> stations;
  // The two ends of each edge (aft, forward), so that the corners can be
  // set out too.
  EdgeEnd lowerEnds[2], upperEnds[2];
};

// The step must be above 0 (and a station per tenth of a millimetre at
// most); empty when accepted, else the reason in langue.
std::string stepError(double stepMm, int langue);

// The offsets of one plate, the step in mm.  A plate whose lower edge has
// no length gives no stations.
PanelOffsets panelOffsets(const DevelopedPlate& p, double stepMm);

// A point given by its offsets back on the plate, flat metres: `at` along
// the baseline of `p`, `off` square to it.
FlatPoint offsetPoint(const DevelopedPlate& p, double atMm, double offMm);

}  // namespace tolmar
