// Every plate of the hull developed at once, as values: the same routines
// that fill the store's dev arrays for the screens, run on copies, so that
// the sheets, the checks, the patterns and the exports can hold all plates
// together without touching the user's hull.  Flat metres.
#pragma once

#include <string>
#include <vector>

#include "development/flat_point.h"
#include "hull/hull_store.h"

namespace tolmar {

enum class PlateKind { bottom, plank, deck, transom, pramBow };

struct DevelopedPlate {
  PlateKind kind = PlateKind::plank;
  // Bottom 0, plank k (1..nChines-1) between lines k and k+1, deck k
  // (1..nChines) bounded by line k; 0 for the transom and the pram bow.
  int index = 0;
  // The name the exports write: "p00", "p03", "deck 2", "transom", "bow".
  std::string name;

  // The two edges, point for point, as the development leaves them: for
  // the bottom and the planks the lower and upper edge, points 0..83 (the
  // bottom) or 0..82, point i on station point i of the lines (the bottom
  // on its edges' point i); for a deck the centre line and the line; for
  // the transom and the pram bow the port and starboard edges
  // (-half breadth, running distance) and (+half breadth, running
  // distance) over the section points 0..nChines+9, running distance
  // measured from the keel up the panel.
  std::vector<FlatPoint> lower, upper;

  // Station ticks of the plate files: indices into lower and upper.
  std::vector<int> lowerTicks, upperTicks;
  // The rung drawn at the maximum beam (index into both edges); -1 for
  // the end plates.
  int maxBeamPoint = -1;

  // Built twice, port and starboard (the second mirrored): bottom, planks
  // and decks.  The transom and the pram bow are one panel across.
  bool cutTwice = true;

  // Measures of the flat outline: area (m2, one panel), length along X
  // and width along Y of its bounding box (m).
  double area = 0, length = 0, width = 0;

  // From the thickness screen, metres; 0 when it has not set them.  lap:
  // the largest lap width on the lower edge.
  double thickness = 0;
  double lap = 0;
  // The outline with the lap-strake material (the lower edge moved out by
  // the lap, the ends by the transom and bow thickness) exactly as the
  // lap-strake plate file draws it, whenever the thickness screen's values
  // add material; empty otherwise and for the decks and end plates.  The
  // lap-strake choice of that screen (overlapMode 2) says whether to cut it.
  std::vector<FlatPoint> cutLower, cutUpper;

  // Closed outline: lower edge forward, upper edge back (no repeated
  // first point).  With `withLap` and a lap-strake outline, that one.
  // Empty for an empty plate.
  std::vector<FlatPoint> outline(bool withLap = false) const;
  // Zero width at both ends and everywhere between, or no points: nothing
  // to cut.
  bool empty() const;
};

// Every plate of a validated hull, in the order of the exports: the bottom,
// planks 1..nChines-1, decks 1..nChines, the transom, and the pram bow when
// the hull has one.  Needs current lines, edges and stations (a redraw).
// The store is not changed.  Non-finite coordinates never come out: a
// degenerate plate gives edges of zero length.
std::vector<DevelopedPlate> developAll(const HullStore& h);

// One plate of the list above (kind and index), or the bottom/plank/deck
// alone when only that one is wanted.
DevelopedPlate developPlate(const HullStore& h, PlateKind kind, int index);

}  // namespace tolmar
