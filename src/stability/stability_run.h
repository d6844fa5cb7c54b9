// One stability calculation as the window, the printed page and tolmar-cli
// ask for it: the inputs checked (a folded hull, a displacement it cannot
// carry, a centre of gravity above the sheer are refused with a sentence),
// the centre of gravity typed or from the mass budget, then the upright
// curves, the righting-arm curve with its marks and the crew's heel.
// Heights given and returned above the lowest point of the hull.
#pragma once

#include <array>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "hull/hull_store.h"
#include "stability/gz_curve.h"
#include "stability/hydro_mesh.h"
#include "stability/mass_centre.h"
#include "stability/upright_curves.h"

namespace tolmar::stability {

inline constexpr double kFreshWater = 1.000;  // t/m3
inline constexpr double kSeaWater = 1.025;

struct StabilityOptions {
  double density = kFreshWater;
  std::optional<double> volume;  // m3; else the mass budget's total mass
  std::optional<double> lcg;     // m; else the mass budget's centre, or the upright LCB
  std::optional<double> kg;      // m above the lowest point; else from the mass budget
  // Rows 13..18 of the mass budget, m above the lowest point; NaN: on the keel.
  std::array<double, kEquipmentRows> equipHeights;
  double fromDeg = 0, toDeg = 180, stepDeg = 5;
  std::optional<double> crewKg;
  std::optional<double> crewY;  // m from the centre plane; else the half beam at the sheer
  double curveStep = 0.02;      // m between the upright curves' drafts

  StabilityOptions() { equipHeights.fill(std::numeric_limits<double>::quiet_NaN()); }
};

enum class GSource { typed, massBudget, buoyancy };

struct StabilityResult {
  std::string error;  // why nothing was computed, in the language asked for
  bool ok() const { return error.empty(); }

  double keelZ = 0;     // the lowest point of the hull, hull Z: heights are above it
  double sheerTop = 0;  // highest point of the sheer above the keel
  double meshVolume = 0;
  Loading load;            // volume, density and G in the hull's axes
  double lcg = 0, kg = 0;  // as used; kg above the keel
  GSource volumeFrom = GSource::typed, lcgFrom = GSource::typed, kgFrom = GSource::typed;
  std::optional<MassCentre> budget;  // the mass budget's rows with their heights

  std::vector<UprightRow> curves;
  std::vector<GzPoint> gz;
  StabilitySummary summary;

  bool crewAsked = false;
  double crewKg = 0, crewY = 0;
  CrewHeel crew;
};

// The store's mass budget run as the screen runs it when it becomes
// active, on a copy: the store given is not touched.
std::unique_ptr<HullStore> withMassBudget(const HullStore& h);

// h: a validated hull on which the mass budget has run (withMassBudget,
// or the mass budget screen).
StabilityResult runStability(const HullStore& h, const StabilityOptions& o, int langue);

// A closed mesh read from a file: no mass budget, so the displacement and
// KG are needed; LCG defaults to the upright centre of buoyancy.
StabilityResult runStability(const HydroMesh& m, const StabilityOptions& o, int langue);

// The half breadth of the sheer at X, the default distance of the crew.
double sheerHalfBeamAt(const HydroMesh& m, double x);

}  // namespace tolmar::stability
