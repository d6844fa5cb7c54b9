// The hull in 3-D beside the board: shaded plates, the lines over them,
// orbit with the left button, pan with the right, the wheel zooms about
// the pointer; buttons for the five standard views and "fit".  It follows
// the hull: after a redraw on the board it shows the new lines.
#pragma once

#include <QOpenGLWidget>
#include <QWidget>

#include "hull/hull_store.h"
#include "qtdraw/hull_scene.h"

namespace tolmar::gui {

class HullGlWidget : public QOpenGLWidget {
  Q_OBJECT
 public:
  explicit HullGlWidget(QWidget* parent = nullptr);

  void setHull(const HullStore& h);
  void showView(StandardView v);
  void fit();
  const SceneCamera& camera() const { return cam_; }
  // Turns the camera as a drag of (dx, dy) pixels with the left button does.
  void orbit(double dx, double dy);

 protected:
  void initializeGL() override {}
  void paintGL() override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void wheelEvent(QWheelEvent* e) override;

 private:
  HullScene scene_;
  SceneCamera cam_;
  QPointF last_;
  bool fitted_ = false;
};

class HullViewWindow : public QWidget {
  Q_OBJECT
 public:
  HullViewWindow(QWidget* parent, const HullStore& h);
  HullGlWidget& view() { return *gl_; }
  // Shows the hull again if its lines changed since it was last shown.
  void follow();

 private:
  const HullStore& h_;
  HullGlWidget* gl_;
  PointTable lastX_, lastY_, lastZ_;
  int lastChines_ = -1;
};

// The window, or null after a message when no OpenGL context can be made.
HullViewWindow* openHullViewWindow(QWidget* board, const HullStore& h);

// "3-D model (STL, OBJ)…" of the File menu: a save dialog, then the file.
void saveHullModel(QWidget* board, const HullStore& h);

}  // namespace tolmar::gui
