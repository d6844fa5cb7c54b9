#include "board/plan_mouse.h"

#include <cmath>
#include <utility>

#include "board/views.h"

namespace tolmar {

namespace {

constexpr Colour kBoxColour = rgb(0, 255, 0);
constexpr Colour kCrossColour = rgb(255, 0, 255);

// A scale brought to the limit is set to it exactly: 32000 / s * s may miss
// 32000 by the last bit of a float.
void snapToLimit(float& scale) {
  if (std::fabs(std::fabs(scale) - kMaxViewScale) <= kMaxViewScale * 1e-6f)
    scale = std::copysign(kMaxViewScale, scale);
}

}  // namespace

bool zoomToBox(HullStore& h, float x0, float y0, float x1, float y1, float W, float H) {
  if (x1 < x0) std::swap(x0, x1);
  if (y1 < y0) std::swap(y0, y1);
  if (x1 - x0 < kMinZoomBox) return false;
  if (!(W > 0 && H > 0)) return false;

  float zoom = (y1 - y0) / H < (x1 - x0) / W ? W / (x1 - x0) : H / (y1 - y0);
  zoom = static_cast<float>(0.9 * zoom);
  bool limited = false;
  if (h.scaleX * zoom > kMaxViewScale) {
    zoom = kMaxViewScale / h.scaleX;
    limited = true;
  }
  if (h.scaleY * zoom > kMaxViewScale) {
    zoom = kMaxViewScale / h.scaleY;
    limited = true;
  }

  const float cx = (x1 + x0) / 2;
  const float cy = (y1 + y0) / 2;
  h.originX = W / 2 - (cx - h.originX) * zoom;
  h.originY = H / 2 - (cy - h.originY) * zoom;
  h.originZ = H / 2 - (cy - h.originZ) * zoom;
  h.scaleX *= zoom;
  h.scaleY *= zoom;
  h.scaleZ *= zoom;
  if (limited) {
    snapToLimit(h.scaleX);
    snapToLimit(h.scaleY);
    snapToLimit(h.scaleZ);
  }
  return true;
}

void moveView(HullStore& h, float dx, float dy) {
  h.originX += dx;
  h.originY += dy;
  h.originZ += dy;
}

void PlanMouse::drawBox(float xc, float yc) {
  const float x0 = b_.rubberX0, y0 = b_.rubberY0;
  s_.ForeColor = kBoxColour;
  s_.LineBox(x0, y0, xc, yc);
  s_.ForeColor = kCrossColour;
  s_.Line((x0 + xc) / 2, y0, (x0 + xc) / 2, yc);
  s_.Line(x0, (yc + y0) / 2, xc, (yc + y0) / 2);
}

void PlanMouse::drawVector(float xc, float yc) {
  s_.ForeColor = kCrossColour;
  s_.Line(b_.rubberX0, b_.rubberY0, xc, yc);
}

void PlanMouse::buttonDown(int button, float x, float y) {
  if (button != kLeftButton && button != kRightButton) return;
  b_.rubberX0 = b_.rubberX1 = x;
  b_.rubberY0 = b_.rubberY1 = y;
  s_.DrawMode = kModeXorPen;
  dragging_ = true;
}

void PlanMouse::mouseMove(int buttons, float x, float y) {
  if (!dragging_ || (buttons != kLeftButton && buttons != kRightButton)) return;
  b_.rubberXp = b_.rubberX1;
  b_.rubberYp = b_.rubberY1;
  b_.rubberX1 = x;
  b_.rubberY1 = y;
  const float x0 = b_.rubberX0, y0 = b_.rubberY0;
  const float xp = b_.rubberXp, yp = b_.rubberYp, x1 = x, y1 = y;
  if (buttons == kLeftButton) {
    s_.ForeColor = kBoxColour;
    s_.LineBox(x0, y0, xp, yp);
    s_.LineBox(x0, y0, x1, y1);
    s_.ForeColor = kCrossColour;
    s_.Line((xp + x0) / 2, y0, (xp + x0) / 2, yp);
    s_.Line((x0 + x1) / 2, y0, (x0 + x1) / 2, y1);
    s_.Line(x0, (yp + y0) / 2, xp, (yp + y0) / 2);
    s_.Line(x0, (y1 + y0) / 2, x1, (y1 + y0) / 2);
  } else {
    // Both strokes start at the press point: the old vector is erased and
    // the new one drawn.
    drawVector(xp, yp);
    drawVector(x1, y1);
  }
}

PlanResult PlanMouse::buttonUp(int button, float x, float y) {
  // A release with no drag of ours under way (the second release of a
  // double click) has no band to erase.
  if (!dragging_ || (button != kLeftButton && button != kRightButton)) return PlanResult::Nothing;
  // The band is erased where it was last drawn, which is where the release
  // happens unless the pointer moved without a move event.
  if (button == kRightButton)
    drawVector(b_.rubberX1, b_.rubberY1);
  else
    drawBox(b_.rubberX1, b_.rubberY1);
  b_.rubberX1 = x;
  b_.rubberY1 = y;
  s_.DrawMode = kModeCopyPen;
  dragging_ = false;

  if (button == kRightButton) {
    moveView(h_, b_.rubberX1 - b_.rubberX0, b_.rubberY1 - b_.rubberY0);
  } else {
    if (b_.rubberX1 < b_.rubberX0) std::swap(b_.rubberX0, b_.rubberX1);
    if (b_.rubberY1 < b_.rubberY0) std::swap(b_.rubberY0, b_.rubberY1);
    if (!zoomToBox(h_, b_.rubberX0, b_.rubberY0, b_.rubberX1, b_.rubberY1, s_.ScaleWidth,
                   s_.ScaleHeight))
      return PlanResult::Nothing;
  }
  s_.Cls();
  redrawViews(s_, h_, b_.stepIndex);
  return PlanResult::Redrawn;
}

PlanResult PlanMouse::doubleClick() {
  s_.DrawMode = kModeCopyPen;
  dragging_ = false;
  dessine(s_, h_, b_.stepIndex);
  return PlanResult::FittedAgain;
}

}  // namespace tolmar
