// Twips (1/1440 inch) to the pixels of a widget's screen and back, through
// the screen's logical resolution: px = twips * logicalDpi / 1440.  The one
// place where a layout size in twips becomes a widget geometry.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSizeF>

#include "board/board_layout.h"

class QWidget;

namespace tolmar::gui {

class Twips {
 public:
  explicit Twips(const QWidget& w);
  Twips(double dpiX, double dpiY) : dpiX_(dpiX), dpiY_(dpiY) {}

  int x(double twips) const;  // across
  int y(double twips) const;  // down
  // Edges are rounded one by one, so that neighbours stay neighbours.
  QRect rect(const board::Rect& r) const;
  QRect rect(double left, double top, double width, double height) const {
    return rect(board::Rect{left, top, width, height});
  }
  double twipsX(double px) const;
  double twipsY(double px) const;
  // The pixel that a position in twips falls in, as a window is moved to
  // it: cut toward zero, not rounded.
  QPoint pixelAt(double xTwips, double yTwips) const;

 private:
  double dpiX_, dpiY_;
};

// The size of the display that shows w, in twips.
QSizeF displayTwips(const QWidget& w);

// Sets w's geometry (within its parent) from twips.
void place(QWidget* w, const Twips& t, const board::Rect& r);
inline void place(QWidget* w, const Twips& t, double left, double top, double width,
                  double height) {
  place(w, t, board::Rect{left, top, width, height});
}

}  // namespace tolmar::gui
