// The development check of a whole hull: for every developed plate, how far
// its pattern is from the surface it comes from and whether plywood of its
// thickness takes the bends of that surface.  Computes from a const store
// and returns values.
#pragma once

#include <string>
#include <vector>

#include "devcheck/bending_table.h"
#include "devcheck/strip_fit.h"
#include "development/developed_plate.h"
#include "hull/hull_store.h"

namespace tolmar::devcheck {

enum class Verdict { fits, tight, willNotBend };

// A plate whose surface bends to less than this many times the smallest
// radius its plywood takes is tight.
inline constexpr double kTightMargin = 1.25;
// A pattern whose worst length is off by more than this (m) on one
// quadrilateral is flagged: the surface there is too far from developable
// for the pattern to lie on it without forcing.  A chosen limit: half a
// millimetre, what a builder sees when marking out.
inline constexpr double kTwistedLimit = 0.0005;

struct CheckOptions {
  // Scales the table's radii for the user's plywood: 1 the table, below 1
  // a plywood that bends tighter, above 1 a stiffer one.  0 or below, or
  // not finite, is not a factor: 1 is used and the report says so.
  double factor = 1;
  // Thickness for a plate whose thickness the thickness screen left at 0,
  // metres; 0 or below: no thickness, such a plate needs no radius.
  double assumedThickness = 0.006;
};

struct PlateCheck {
  std::string name;  // as the exports name the plate
  PlateKind kind = PlateKind::plank;
  int index = 0;
  bool withLap = false;  // the lap-strake outline with its material
  bool empty = false;    // nothing to cut: every figure 0, fits
  StripFit fit;
  double thickness = 0;  // m, the one judged
  bool thicknessAssumed = false;
  BendLimit needed;  // the table's radii times the factor, m; along = along the face grain
  double alongX = 0, acrossX = 0, twistX = 0;  // X on the hull of the tightest bends, m
  Verdict verdict = Verdict::fits;
  bool twisted = false;  // maxError above kTwistedLimit

  double twistDegreesPerMetre() const;
};

struct CheckReport {
  // In the order of the exports; on a lap-strake hull (overlapMode 2) each
  // plate with material added is followed by its row with that material.
  std::vector<PlateCheck> plates;
  double factor = 1;            // the one used
  bool factorReplaced = false;  // the one given was not a factor
  bool folded = false;          // the hull folds: nothing checked, `message` says where
  std::string message;
};

// The verdict from the bends and the radii needed: the face grain is taken
// along the plate (along its pattern's length), as plywood planks are cut.
Verdict verdictFor(const StripFit& f, const BendLimit& needed);

// The strips of one developed plate on the hull: the plate as developed, and
// the same with its lap-strake material (empty when it has none).
Strip plateStrip(const HullStore& h, const DevelopedPlate& p);
Strip lapStrip(const HullStore& h, const DevelopedPlate& p);

// Every plate of developAll(h), which needs current lines, edges and
// stations.  A folded hull is refused (folded, message in `langue`).
CheckReport checkDevelopment(const HullStore& h, const CheckOptions& o = {});
// The same on plates developed already.
CheckReport checkDevelopment(const HullStore& h, const std::vector<DevelopedPlate>& plates,
                             const CheckOptions& o = {});

// "fits" / "se pose", "tight" / "juste", "will not bend without kerfing or
// steaming" / "ne se cintre pas sans saignées ni étuvage".
std::string verdictText(Verdict v, int langue);
// fits, tight, will_not_bend: for JSON.
std::string verdictKey(Verdict v);

}  // namespace tolmar::devcheck
