#include "board/drawing_surface.h"

#include "text/number_text.h"

namespace tolmar {

std::string PrintItem::text() const {
  if (const auto* s = std::get_if<std::string>(&v_)) return *s;
  if (const auto* f = std::get_if<float>(&v_)) return printNumberText(*f, 7);
  return printNumberText(std::get<double>(v_), 15);
}

DrawCall DrawingSurface::pen(DrawOp op) const {
  DrawCall c;
  c.op = op;
  c.colour = ForeColor;
  c.style = DrawStyle;
  c.width = DrawWidth;
  c.mode = DrawMode;
  return c;
}

void DrawingSurface::setOuterSize(float widthTwips, float heightTwips) {
  width_ = widthTwips;
  height_ = heightTwips;
  ScaleLeft = 0;
  ScaleTop = 0;
  ScaleWidth = widthTwips;
  ScaleHeight = heightTwips;
}

float DrawingSurface::twipX(float x) const {
  if (ScaleWidth == 0) return x;
  return (x - ScaleLeft) * (width_ / ScaleWidth);
}

float DrawingSurface::twipY(float y) const {
  if (ScaleHeight == 0) return y;
  return (y - ScaleTop) * (height_ / ScaleHeight);
}

void DrawingSurface::Line(float x1, float y1, float x2, float y2) {
  Line(x1, y1, x2, y2, ForeColor);
}

void DrawingSurface::Line(float x1, float y1, float x2, float y2, Colour c) {
  DrawCall call = pen(DrawOp::Line);
  call.x1 = x1;
  call.y1 = y1;
  call.x2 = x2;
  call.y2 = y2;
  call.colour = c;
  CurrentX = x2;
  CurrentY = y2;
  render(call);
}

void DrawingSurface::LineFromStep(float x1, float y1, float dx, float dy) {
  Line(x1, y1, x1 + dx, y1 + dy);
}

void DrawingSurface::LineTo(float x, float y) { LineTo(x, y, ForeColor); }

void DrawingSurface::LineTo(float x, float y, Colour c) {
  DrawCall call = pen(DrawOp::LineTo);
  call.x1 = CurrentX;
  call.y1 = CurrentY;
  call.x2 = x;
  call.y2 = y;
  call.colour = c;
  CurrentX = x;
  CurrentY = y;
  render(call);
}

void DrawingSurface::LineStep(float dx, float dy) {
  DrawCall call = pen(DrawOp::LineStep);
  call.x1 = CurrentX;
  call.y1 = CurrentY;
  call.x2 = CurrentX + dx;
  call.y2 = CurrentY + dy;
  CurrentX = call.x2;
  CurrentY = call.y2;
  render(call);
}

void DrawingSurface::LineBox(float x1, float y1, float x2, float y2) {
  DrawCall call = pen(DrawOp::LineBox);
  call.x1 = x1;
  call.y1 = y1;
  call.x2 = x2;
  call.y2 = y2;
  CurrentX = x2;
  CurrentY = y2;
  render(call);
}

void DrawingSurface::PSet(float x, float y) {
  DrawCall call = pen(DrawOp::PSet);
  call.x1 = call.x2 = x;
  call.y1 = call.y2 = y;
  CurrentX = x;
  CurrentY = y;
  render(call);
}

void DrawingSurface::PSetStep(float dx, float dy) { PSet(CurrentX + dx, CurrentY + dy); }

void DrawingSurface::Circle(float x, float y, float radius) { Circle(x, y, radius, ForeColor); }

void DrawingSurface::Circle(float x, float y, float radius, Colour c) {
  DrawCall call = pen(DrawOp::Circle);
  call.x1 = call.x2 = x;
  call.y1 = call.y2 = y;
  call.radius = radius;
  call.colour = c;
  CurrentX = x;
  CurrentY = y;
  render(call);
}

void DrawingSurface::Cls() {
  CurrentX = 0;
  CurrentY = 0;
  render(pen(DrawOp::Cls));
}

void DrawingSurface::Print(std::initializer_list<PrintItem> items, PrintEnd end) {
  DrawCall call = pen(DrawOp::Print);
  for (const auto& item : items) call.text += item.text();
  call.x1 = call.x2 = CurrentX;
  call.y1 = call.y2 = CurrentY;
  render(call);
  if (end == PrintEnd::NewLine) {
    CurrentX = ScaleLeft;
    CurrentY += TextHeight(call.text.empty() ? std::string_view("0") : std::string_view(call.text));
  } else {
    CurrentX += TextWidth(call.text);
  }
}

void DrawingSurface::NewPage() {
  ++Page;
  CurrentX = ScaleLeft;
  CurrentY = ScaleTop;
  render(pen(DrawOp::NewPage));
}

void DrawingSurface::EndDoc() {
  render(pen(DrawOp::EndDoc));
  Page = 1;
  CurrentX = ScaleLeft;
  CurrentY = ScaleTop;
}

}  // namespace tolmar
