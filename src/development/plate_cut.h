// The outline of a developed plate with the material a builder adds for
// lap-strake construction: the ends moved out along the plate's edges by
// the thickness of the transom and of the pram bow, the lower edge of a
// plank moved out by its lap.  Flat metres, as the dev arrays.
#pragma once

#include "development/calc_develop.h"
#include "development/flat_point.h"
#include "hull/hull_store.h"

namespace tolmar {

struct CutOutline {
  Arr<FlatPoint, 0, kMaxDev> low, up;  // points 0..lastPoint are set
};

// From the plate in the dev arrays: plate n (0 the bottom, lastPoint 83;
// a plank, lastPoint 82).  With every thickness and lap at 0 the outline
// is the developed one, exactly.  A corner that cannot be shifted to a
// finite point stays where the development put it.
CutOutline cutOutline(const HullStore& h, int n, int lastPoint);
// The same from developed edges of one's own.
CutOutline cutOutline(const HullStore& h, const DevEdges& d, int n, int lastPoint);

}  // namespace tolmar
