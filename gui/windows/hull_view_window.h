// The hull in 3-D beside the board: shaded plates, the lines over them,
// orbit with the left button, pan with the right, the wheel zooms about
// the pointer; buttons for the five standard views and "fit".  It follows
// the hull: after a redraw on the board it shows the new lines.
//
// The picture is a QOpenGLWindow inside the widget window: it draws
// straight into its own surface, so a frame costs no extra pass through a
// texture and the widgets' compositor, which with a software renderer
// costs more than the hull itself.
#pragma once

#include <QOpenGLWindow>
#include <QWidget>
#include <memory>

#include "hull/hull_store.h"
#include "qtdraw/hull_scene.h"
#include "qtdraw/scene_renderer.h"

namespace tolmar::gui {

class HullGlView : public QOpenGLWindow {
  Q_OBJECT
 public:
  HullGlView();
  ~HullGlView() override;

  void setHull(const HullStore& h);
  void showView(StandardView v);
  // Frames the hull tightly from the present direction.
  void fit();
  const SceneCamera& camera() const { return cam_; }
  const HullScene& scene() const { return scene_; }
  // Draws a frame now and returns it (for tests and pictures): the window
  // shows its frames through the swap, after which they cannot be read.
  QImage picture();
  // Turns the camera as a drag of (dx, dy) pixels with the left button does.
  void orbit(double dx, double dy);

 protected:
  void initializeGL() override;
  void resizeGL(int w, int h) override;
  void paintGL() override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void wheelEvent(QWheelEvent* e) override;

 private:
  void releaseGl();
  double aspect() const;

  HullScene scene_;
  SceneRenderer renderer_;
  SceneCamera cam_;
  QPointF last_;
  // Fitted again when the picture changes size, until the user moves the
  // camera.
  bool framed_ = true;
};

class HullViewWindow : public QWidget {
  Q_OBJECT
 public:
  HullViewWindow(QWidget* parent, const HullStore& h);
  HullGlView& view() { return *gl_; }
  QWidget* picture() const { return container_; }
  // Shows the hull again if its lines changed since it was last shown.
  void follow();

 private:
  const HullStore& h_;
  HullGlView* gl_;
  QWidget* container_;
  PointTable lastX_, lastY_, lastZ_;
  int lastChines_ = -1;
};

// The window, or null after a message when no OpenGL context can be made.
HullViewWindow* openHullViewWindow(QWidget* board, const HullStore& h);

// "3-D model (STL, OBJ)…" of the File menu: a save dialog, then the file.
void saveHullModel(QWidget* board, const HullStore& h);

}  // namespace tolmar::gui
