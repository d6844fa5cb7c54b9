// Pieces laid on as few sheets as a bottom-left placement finds.  Each
// piece in turn, largest first, goes on the first of the last three
// sheets where it fits, at the free position furthest towards the sheet's
// start (least X, then least Y) over the turns allowed; a new sheet is
// started when none takes it.  The X tried are the margin and just past
// the right end of every piece already there; at each the piece drops to
// the lowest Y that no piece blocks, the blocked shifts found from the
// cross-sections of both outlines at every corner (exact for outlines that
// a line across the grain cuts once, as plates, decks and end plates are;
// on the safe side for any other).  Pieces already placed count grown by
// the kerf.
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

std::vector<NestPlace> nestShapes(const NestRequest& r);

}  // namespace tolmar::sheets
