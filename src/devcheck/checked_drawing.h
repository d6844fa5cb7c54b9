// The patterns drawn on the board's picture in the colours of their
// verdicts, where Developer draws them (the bottom over the plan, a plank
// in the profile near its line, the transom beside the plan, the pram bow
// at the forward end), solid and two dots wide so that they stand out from
// Developer's dotted figure, which they leave as it is: pressing Developer
// again draws the board's own.
#pragma once

#include <vector>

#include "board/drawing_surface.h"
#include "devcheck/plate_check.h"
#include "development/developed_plate.h"

namespace tolmar::devcheck {

// `r` is the check of `plates` (its rows without lap, in the same order);
// decks are not drawn, as Developer does not draw them.  The pen ends as
// it was.
void drawCheckedPlates(DrawingSurface& s, const HullStore& h,
                       const std::vector<DevelopedPlate>& plates, const CheckReport& r);

// The key to those colours in the bottom right corner of the picture, where
// the views leave room: a stroke and the verdict's text per verdict, in
// langue (0 French).  The pen ends as it was.
void drawVerdictLegend(DrawingSurface& s, int langue);

}  // namespace tolmar::devcheck
