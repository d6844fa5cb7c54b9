// One chosen station drawn over the profile at its place along the hull,
// its breadth turned towards the middle of the boat, with its axis.
#pragma once

#include "board/drawing_surface.h"
#include "hull/hull_store.h"

namespace tolmar {

// Draws station row stationIndex (held inside 1..81) in lineColor(4), its
// axis dash-dot, and leaves a solid pen in lineColor(0).  Stations 1..40
// open towards the bow, 41..81 towards the stern.
void drawStation(DrawingSurface& s, const HullStore& h);

}  // namespace tolmar
