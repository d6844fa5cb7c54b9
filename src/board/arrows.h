// Arrow heads with their tip at the current position: a closed triangle of
// three steps, so the pen ends where it started.  Sizes in drawing units.
#pragma once

#include "board/drawing_surface.h"

namespace tolmar {

void arrowDown(DrawingSurface& s);
void arrowRight(DrawingSurface& s);
void arrowLeft(DrawingSurface& s);
void arrowUp(DrawingSurface& s);

}  // namespace tolmar
