// The one list of drawing operations that the board's picture and the
// printer both offer.  Drawing units are twips (1/1440 inch) unless the
// Scale* fields say otherwise; Y grows downward.  The base class keeps the
// pen and the current position and resolves every operation to absolute
// coordinates; a device only renders the resolved calls.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

namespace tolmar {

using Colour = std::int32_t;  // red in the low byte, then green, then blue

inline constexpr std::int16_t kStyleSolid = 0;
inline constexpr std::int16_t kStyleDash = 1;
inline constexpr std::int16_t kStyleDot = 2;
inline constexpr std::int16_t kStyleDashDot = 3;
inline constexpr std::int16_t kStyleDashDotDot = 4;
inline constexpr std::int16_t kModeCopyPen = 13;
inline constexpr std::int16_t kModeXorPen = 7;

enum class DrawOp { Line, LineTo, LineStep, LineBox, PSet, Circle, Cls, Print, NewPage, EndDoc };

// One operation with everything a device needs to render it.  Lines and
// boxes run from (x1, y1) to (x2, y2); PSet, Circle and Print stand at
// (x1, y1).
struct DrawCall {
  DrawOp op = DrawOp::Cls;
  float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  float radius = 0;
  std::string text;
  Colour colour = 0;
  std::int16_t style = kStyleSolid;
  std::int16_t width = 1;
  std::int16_t mode = kModeCopyPen;
};

// An item of a Print list: a text as it is, or a number in its print form.
class PrintItem {
 public:
  PrintItem(std::string_view s) : v_(std::string(s)) {}
  PrintItem(const char* s) : v_(std::string(s)) {}
  PrintItem(const std::string& s) : v_(s) {}
  PrintItem(double v) : v_(v) {}
  PrintItem(float v) : v_(v) {}
  PrintItem(int v) : v_(static_cast<double>(v)) {}
  std::string text() const;

 private:
  std::variant<std::string, double, float> v_;
};

enum class PrintEnd { NewLine, StayOnLine };

class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;

  // Pen.
  Colour ForeColor = 0;
  std::int16_t DrawStyle = kStyleSolid;
  std::int16_t DrawWidth = 1;  // device dots
  std::int16_t DrawMode = kModeCopyPen;
  std::string FontName;  // empty: the device's default font
  float FontSize = 8;    // points

  float CurrentX = 0, CurrentY = 0;

  // Coordinate system; a device sets it to its own size at construction.
  float ScaleLeft = 0, ScaleTop = 0, ScaleWidth = 0, ScaleHeight = 0;
  std::int16_t Page = 1;  // printer only

  // Outer size in twips.
  float Width() const { return width_; }
  float Height() const { return height_; }

  void Line(float x1, float y1, float x2, float y2);
  void Line(float x1, float y1, float x2, float y2, Colour c);
  void LineFromStep(float x1, float y1, float dx, float dy);  // second point as a step
  void LineTo(float x, float y);
  void LineTo(float x, float y, Colour c);
  void LineStep(float dx, float dy);
  void LineBox(float x1, float y1, float x2, float y2);
  void PSet(float x, float y);
  void PSetStep(float dx, float dy);
  void Circle(float x, float y, float radius);  // leaves the pen at the centre
  void Circle(float x, float y, float radius, Colour c);
  void Cls();
  void Print(std::initializer_list<PrintItem> items, PrintEnd end = PrintEnd::NewLine);
  void Print(const PrintItem& item, PrintEnd end = PrintEnd::NewLine) { Print({item}, end); }
  void NewPage();
  void EndDoc();

  virtual float TextWidth(std::string_view text) const = 0;
  virtual float TextHeight(std::string_view text) const = 0;

 protected:
  void setOuterSize(float widthTwips, float heightTwips);
  // Drawing units to twips of the device, through the Scale* fields.
  float twipX(float x) const;
  float twipY(float y) const;
  virtual void render(const DrawCall& call) = 0;

 private:
  DrawCall pen(DrawOp op) const;
  float width_ = 0, height_ = 0;
};

}  // namespace tolmar
