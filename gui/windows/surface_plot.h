// A widget that shows a figure drawn on the program's DrawingSurface: the
// figure is drawn again into a picture of the widget's size whenever it
// repaints.
#pragma once

#include <QWidget>
#include <functional>

#include "board/drawing_surface.h"

namespace tolmar::gui {

class SurfacePlot : public QWidget {
  Q_OBJECT
 public:
  // draw(surface, width, height): the whole surface is the figure's, twips.
  using Draw = std::function<void(DrawingSurface&, float width, float height)>;
  explicit SurfacePlot(QWidget* parent = nullptr);
  void setDraw(Draw d);
  QSize sizeHint() const override { return {700, 420}; }

 protected:
  void paintEvent(QPaintEvent* e) override;

 private:
  Draw draw_;
};

}  // namespace tolmar::gui
