// The three views of the board's picture: plan, profile and sections, tied
// by a grid, at the scale and origins that stand in the store.  Figures of
// dimensions take the picture "0.0##" and the colour of the line measured.
#pragma once

#include "board/drawing_surface.h"
#include "hull/hull_store.h"

namespace tolmar {

// Origin marks, grid and axes.
void drawGrid(DrawingSurface& s, const HullStore& h);

// Plan and profile: k = 0 the keel and first chine, k >= 1 lines 2..nChines.
// With nChines below 2 the planks draw nothing.
void drawLines(DrawingSurface& s, const HullStore& h, int k);

// Section view: stations 0, 5, 9 .. 41 on the + side of the axis, 41, 45 ..
// 81 and 82 on the - side; k > 0 adds the planks.
void drawSections(DrawingSurface& s, const HullStore& h, int k);

// drawGrid, then drawLines(k) and drawSections(k) for k = 0..stepIndex, and
// over them any stretch where the hull folds (drawFolds).
void redrawViews(DrawingSurface& s, const HullStore& h, int stepIndex);

// The full redraw of the board: Cls, the view fitted to the surface
// (scaleViews and the surface's coordinate system), the stations rebuilt,
// then the views.
void dessine(DrawingSurface& s, HullStore& h, int stepIndex);

// The figure of a dimension, "0.0##".
std::string dimensionText(double v);

// The point of maximum beam on the board, Int(xMax(1)/xFwd(0)*80 + 0.5) + 1,
// held inside 0..82.
int boardBeamPoint(const HullStore& h);

}  // namespace tolmar
