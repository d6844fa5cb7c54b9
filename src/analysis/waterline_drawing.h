// The water line and the centre of displacement over the board's plan,
// profile and section views, as the hydrostatics screen leaves them in the
// store's wl tables.
#pragma once

#include "board/drawing_surface.h"
#include "hull/hull_store.h"

namespace tolmar {

// Blue, pen width 2 for the lines, then width 1 for the two centre marks:
// a circle of radius 60 with its diagonals of +-40 drawing units.  The aft
// sections 0..40 go to one side of the section view's axis, 41..82 to the
// other.
void drawWaterline(const HullStore& h, DrawingSurface& s);

}  // namespace tolmar
