// Pieces laid on as few sheets as a greedy placement finds, tried in
// several orders (nest_orders.h); the layout with the fewest sheets wins,
// then the one that leaves the most of its last sheet free.
//
// One pass takes the pieces in its order; each goes on the first sheet
// (earlier sheets' holes first) where it fits, at the lowest free place
// over the turns allowed and a few positions along the sheet: against its
// start or its end, or just past either end of a piece already there.  A
// new sheet is started when none takes it.  The sheets are seen as columns
// across the grain (column_profile.h), each piece as the span it covers
// in every column, pieces already placed grown by the kerf: the lowest
// place is exact up to the width of a column's slope, never too close.
#pragma once

#include <polyclipping/clipper.hpp>
#include <vector>

namespace tolmar::sheets {

struct NestRequest {
  std::vector<ClipperLib::Path> shapes;  // hundredths of a millimetre
  // The area a piece may take, margins off, in the same units.
  ClipperLib::cInt x0 = 0, y0 = 0, x1 = 0, y1 = 0;
  ClipperLib::cInt gap = 0;  // the kerf
  bool rotate90 = false;
};

struct NestPlace {
  int bin = -1;         // -1: fits no sheet at all
  double rotation = 0;  // radians (a multiple of pi/2), about the shape's own origin
  ClipperLib::cInt dx = 0, dy = 0;
};

struct NestResult {
  std::vector<NestPlace> places;  // by shape
  int sheets = 0;
  double lastSheetArea = 0;  // of the pieces on the last sheet, units squared
  // Better: fewer sheets, then less on the last sheet.
  bool betterThan(const NestResult& o) const {
    return sheets != o.sheets ? sheets < o.sheets : lastSheetArea < o.lastSheetArea;
  }
};

// The best of the passes: every order with every way of picking a place
// among those a piece fits (the lowest start, the least room left under
// it, the lowest top, the least X), fewer for many pieces; `quick`: the
// plain and sloped orders with the lowest start only.  On `threads`
// threads (at least one): the same result whatever the count.
NestResult nestBest(const NestRequest& r, int threads = 1, bool quick = false);

}  // namespace tolmar::sheets
