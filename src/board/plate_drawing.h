// The developed plates shown over the board's views by Developer: bottom
// and planks dotted, at the plan's scale (a plank in the profile, near the
// height of its line), the transom and pram bow solid beside them.
#pragma once

#include "board/drawing_surface.h"
#include "hull/hull_store.h"

namespace tolmar {

// The plate in devXi/devYi, devXs/devYs, points 0..last: lower edge, then
// upper edge from point 0, closed on the lower edge's last point.  A flat
// point (x, y) goes to (originX + scaleX x, originY + scaleY y).  Colour
// lineColor(0); DrawStyle 2 for the figure, 0 after it.
void drawDevBottom(DrawingSurface& s, const HullStore& h, int last);

// The same figure in lineColor(colourIndex), a flat point going to
// (originX + scaleX (x + offsetX), originZ + scaleZ (y + offsetY)); the
// colour returns to lineColor(0) after it.
void drawDevPlank(DrawingSurface& s, const HullStore& h, int last, int colourIndex, double offsetX,
                  double offsetY);

// transomPlate drawn 300 drawing units right of the origin, bowPlate
// mirrored at the forward end, in lineColor(1); a turn-in stroke across
// the pattern where the panel's flag of line 2 (else 3) is -1.
void drawTransomPlate(DrawingSurface& s, const HullStore& h);
void drawBowPlate(DrawingSurface& s, const HullStore& h);

// Developer: the bottom, and for stepIndex >= 1 every plank, the transom
// and the pram bow if there is one, each developed into the store's plate
// arrays and drawn; the pen ends in lineColor(0).  Needs current stations.
void developerDisplay(DrawingSurface& s, HullStore& h, int stepIndex);

}  // namespace tolmar
