// The water line and the centres of displacement that the hydrostatics
// leave in the store, drawn over the board's three views.
#pragma once

#include "board/drawing_surface.h"
#include "hull/hull_store.h"

namespace tolmar {

// Water line in blue, pen width 2, in plan, profile and sections (points
// 0..40 on the + side of the section axis, 41..82 on the - side); then,
// pen width 1, the centre of displacement as a circle of radius 60 with
// two diagonals in plan (blue) and profile (circle in lineColor(4)).
void drawWaterline(DrawingSurface& s, const HullStore& h);

}  // namespace tolmar
