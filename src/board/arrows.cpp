#include "board/arrows.h"

namespace tolmar {

void arrowDown(DrawingSurface& s) {
  s.LineStep(-50, -100);
  s.LineStep(100, 0);
  s.LineStep(-50, 100);
}

void arrowRight(DrawingSurface& s) {
  s.LineStep(-100, -50);
  s.LineStep(0, 100);
  s.LineStep(100, -50);
}

void arrowLeft(DrawingSurface& s) {
  s.LineStep(100, -50);
  s.LineStep(0, 100);
  s.LineStep(-100, -50);
}

void arrowUp(DrawingSurface& s) {
  s.LineStep(-50, 100);
  s.LineStep(100, 0);
  s.LineStep(-50, -100);
}

}  // namespace tolmar
