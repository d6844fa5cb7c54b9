// The righting-arm curve with free trim and what a builder reads from it:
// metacentric height, the largest arm and its angle, the angle of
// vanishing stability, the angle at which the deck edge first goes under,
// the areas under the curve to 30 and 40 degrees; and the heel a crew on
// one side gives.  Angles in degrees, lengths in metres, hull axes.
#pragma once

#include <optional>
#include <vector>

#include "stability/float_solver.h"

namespace tolmar::stability {

struct Loading {
  double volume = 0;     // m3 of water displaced
  double density = 1.0;  // t/m3: 1.000 fresh, 1.025 sea water
  Vec3 g;                // centre of gravity, hull axes
  double massKg() const { return volume * density * 1000; }
};

struct GzPoint {
  double heel = 0;       // degrees
  bool floats = false;   // false: no trim brings B under G here
  double gz = 0;         // m
  double moment = 0;     // righting moment, kg m
  double pitch = 0;      // degrees, bow down positive
  double draft = 0;      // depth of the deepest point below the water, m
  double freeboard = 0;  // lowest deck-edge point above the water, m
};

// from, from + step, ... up to `to` (the last one `to` itself); at most
// 3601 angles.  Empty for a step that is not positive or a range that runs
// backwards.
std::vector<double> heelAngles(double from, double to, double step);

std::vector<GzPoint> gzCurve(const HydroMesh& m, const Loading& load,
                             const std::vector<double>& anglesDeg);

struct StabilitySummary {
  std::optional<double> gm;  // upright, free trim
  std::optional<double> maxGz, maxGzHeel;
  std::optional<double> vanishing;       // first angle past the largest arm where GZ is 0
  std::optional<double> deckEdge;        // first angle where the deck edge meets the water
  std::optional<double> area30, area40;  // m rad, from 0
};

StabilitySummary summarize(const HydroMesh& m, const Loading& load,
                           const std::vector<GzPoint>& curve);

struct CrewHeel {
  bool rests = false;    // false: the righting arm never matches the heeling arm
  double heel = 0;       // degrees
  double freeboard = 0;  // lowest deck-edge point above the water at that heel, m
};

// A crew of crewKg, part of the displacement, moved from the centre plane
// to Y = crewY (m, towards starboard).
CrewHeel crewOnSide(const HydroMesh& m, const Loading& load, const std::vector<GzPoint>& curve,
                    double crewKg, double crewY);

}  // namespace tolmar::stability
