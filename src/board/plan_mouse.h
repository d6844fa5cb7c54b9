// The mouse on the board's picture: a left drag zooms into a box, a right
// drag moves the sheet, a double click fits the hull again.  The band is
// drawn with the exclusive-or pen, so each figure is erased by drawing it a
// second time; the picture under it is redrawn once, at button up.
#pragma once

#include "board/board_model.h"
#include "board/drawing_surface.h"
#include "hull/hull_store.h"

namespace tolmar {

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
inline constexpr int kMiddleButton = 4;

// Drawing units per metre that a zoom never exceeds.
inline constexpr float kMaxViewScale = 32000;
// A zoom box narrower than this is no command.
inline constexpr float kMinZoomBox = 300;

// The zoom of a left drag over the box with corners (x0, y0), (x1, y1) in
// either order, on a picture of W x H drawing units: the box fills nine
// tenths of the picture in its tighter direction, its centre goes to the
// picture's centre, and no scale passes 32000.  Returns false, and changes
// nothing, for a box narrower than 300 (only the width counts).
bool zoomToBox(HullStore& h, float x0, float y0, float x1, float y1, float W, float H);

// The move of a right drag: plan and profile shift together.
void moveView(HullStore& h, float dx, float dy);

enum class PlanResult { Nothing, Redrawn, FittedAgain };

class PlanMouse {
 public:
  // The rubber band lives in the board's fields rubberX0 .. rubberYp, and
  // redraws use its stepIndex.
  PlanMouse(DrawingSurface& s, HullStore& h, board::BoardState& b) : s_(s), h_(h), b_(b) {}

  void buttonDown(int button, float x, float y);
  void mouseMove(int buttons, float x, float y);
  // Redrawn when the view changed (Cls and redrawViews have run).
  PlanResult buttonUp(int button, float x, float y);
  // Cls and the full redraw; the caller then updates the board's enabling.
  PlanResult doubleClick();

  bool dragging() const { return dragging_; }

 private:
  void drawBox(float xc, float yc);  // box and cross to corner (xc, yc)
  void drawVector(float xc, float yc);

  DrawingSurface& s_;
  HullStore& h_;
  board::BoardState& b_;
  bool dragging_ = false;
};

}  // namespace tolmar
