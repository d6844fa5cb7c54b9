// The stretches where the hull folds, drawn over the board's views in a
// warning colour: the folded plank's lines in plan and profile, and its
// section at the stations the section view shows.  A sound hull draws
// nothing, so its picture stays as it was.
#pragma once

#include "board/drawing_surface.h"
#include "hull/fold_check.h"
#include "hull/hull_store.h"

namespace tolmar {

// The board's warning colour, as for a refused hull name.
inline constexpr Colour kFoldColour = rgb(255, 127, 0);
inline constexpr std::int16_t kFoldWidth = 3;  // dots

// Stretches of the bottom always, of side planks when stepIndex >= 1 (the
// planks are on the board).  The pen is put back as it was.
void drawFolds(DrawingSurface& s, const HullStore& h, const FoldReport& r, int stepIndex);

}  // namespace tolmar
